#include "platform/desktop/KTTypeIdentifiers.h"

#include "platform/common/KTText.h"

#include <algorithm>

namespace {

// clang-format off
constexpr KTTypeIdentifier kTypeIdentifiers[] = {
    {"jpg",  "public.jpeg",                "image/jpeg"},
    {"jpeg", "public.jpeg",                "image/jpeg"},
    {"jpe",  "public.jpeg",                "image/jpeg"},
    {"tif",  "public.tiff",                "image/tiff"},
    {"tiff", "public.tiff",                "image/tiff"},
    {"png",  "public.png",                 "image/png"},
    {"psd",  "com.adobe.photoshop-image",  "image/vnd.adobe.photoshop"},
    {"gif",  "com.compuserve.gif",         "image/gif"},
    {"pdf",  "com.adobe.pdf",              "application/pdf"},

    // Camera raw formats
    {"arw",  "com.sony.arw-raw-image",     "image/x-sony-arw"},
    {"cr2",  "com.canon.cr2-raw-image",    "image/x-canon-cr2"},
    {"crw",  "com.canon.crw-raw-image",    "image/x-canon-crw"},
    {"dng",  "com.adobe.raw-image",        "image/x-adobe-dng"},
    {"erf",  "com.epson.raw-image",        "image/x-epson-erf"},
    {"iiq",  "com.phaseone.raw-image",     ""},
    {"mos",  "com.leafamerica.raw-image",  ""},
    {"mrw",  "com.konicaminolta.raw-image", "image/x-minolta-mrw"},
    {"nef",  "com.nikon.raw-image",        "image/x-nikon-nef"},
    {"nrw",  "com.nikon.nrw-raw-image",    "image/x-nikon-nrw"},
    {"orf",  "com.olympus.raw-image",      "image/x-olympus-orf"},
    {"pef",  "com.pentax.raw-image",       "image/x-pentax-pef"},
    {"raf",  "com.fuji.raw-image",         "image/x-fuji-raf"},
    {"rw2",  "com.panasonic.rw2-raw-image", "image/x-panasonic-rw2"},
    {"rwl",  "com.leica.rwl-raw-image",    ""},
    {"sr2",  "com.sony.sr2-raw-image",     "image/x-sony-sr2"},
};
// clang-format on

const KTTypeIdentifier* firstWith(std::string_view value, std::string_view KTTypeIdentifier::*member) {
    const auto type = std::ranges::find(kTypeIdentifiers, value, member);
    return value.empty() || type == std::end(kTypeIdentifiers) ? nullptr : type;
}

} // namespace

const KTTypeIdentifier* KTTypeWithIdentifier(std::string_view identifier) {
    return firstWith(identifier, &KTTypeIdentifier::identifier);
}

const KTTypeIdentifier* KTTypeWithMIMEType(std::string_view mimeType) {
    return firstWith(mimeType, &KTTypeIdentifier::mimeType);
}

std::span<const KTTypeIdentifier> KTTypeIdentifiers() {
    return kTypeIdentifiers;
}

std::optional<std::string> KTTypeIdentifierForPath(const std::filesystem::path& file) {
    const std::string extension = file.extension().string();
    for (const KTTypeIdentifier& type : kTypeIdentifiers)
        if (!extension.empty() && KTEqualIgnoringCase(std::string_view(extension).substr(1), type.extension))
            return std::string(type.identifier);
    return std::nullopt;
}
