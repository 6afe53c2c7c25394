#include "collection/KTPhotoFileList.h"

#include "collection/KTPhotoFileSearch.h"
#include "platform/common/KTText.h"
#include "platform/common/KTTextFolding.h"

#include <optional>

namespace {

constexpr std::string_view kValidFileTypes[] = {"arw", "cr2", "cs1", "crw", "dng",  "erf",    "hdp",  "iiq",
                                                "wdp", "jpx", "jpe", "jpg", "jpeg", "'JPEG'", "mef",  "mos",
                                                "mrw", "nef", "nrw", "orf", "pef",  "png",    "psd",  "raf",
                                                "raw", "rw2", "rwl", "sr2", "thm",  "tif",    "tiff", "xmp"};
static_assert(std::size(kValidFileTypes) == 32);

/// No extension holds a dot, so what follows the last one decides; nothing when it is not an accepted one.
std::optional<std::string_view> validTypeOf(std::string_view path) {
    const auto dot = path.rfind('.');
    if (dot == std::string_view::npos)
        return std::nullopt;
    const std::string ending = KTCaseAndDiacriticsFolded(path.substr(dot + 1));
    for (std::string_view type : kValidFileTypes)
        if (KTEqualIgnoringCase(type, ending))
            return type;
    return std::nullopt;
}

} // namespace

std::span<const std::string_view> KTPhotoFileList::validFileTypes() {
    return kValidFileTypes;
}

bool KTPhotoFileList::validFileTypePredicate(std::string_view path) {
    return validTypeOf(path).has_value();
}

bool KTPhotoFileList::validPhotoTypePredicate(std::string_view path) {
    const auto type = validTypeOf(path);
    return type && *type != "xmp";
}

KTPhotoFileList KTPhotoFileList::fromPaths(const std::vector<std::filesystem::path>& paths,
                                           const std::stop_token& stop) {
    KTPhotoFileSearch search(stop);
    for (const std::filesystem::path& path : paths) {
        if (stop.stop_requested())
            break;
        search.add(path);
    }
    return search.result();
}
