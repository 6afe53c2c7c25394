#include "photo/KTSaveTargets.h"

#include "platform/common/KTText.h"

std::span<const std::string_view> adobeDirectEmbedXMPTypes() {
    static constexpr std::string_view types[] = {"dng", "gif", "jpx", "jpe", "jpg", "jpeg", "'JPEG'",
                                                 "pdf", "png", "psd", "thm", "tif", "tiff", "xmp"};
    return types;
}

bool matchesAdobeDirectEmbedXMPTypePredicate(const std::filesystem::path& file) {
    const std::string name = file.filename().string();
    return std::ranges::any_of(adobeDirectEmbedXMPTypes(), [&](std::string_view type) {
        return name.size() > type.size() && name[name.size() - type.size() - 1] == '.' &&
               KTEqualIgnoringCase(std::string_view(name).substr(name.size() - type.size()), type);
    });
}

KTSaveTargets saveTargets(const std::filesystem::path& file, std::int64_t sidecarStyle, bool hasSidecar) {
    if (KTEqualIgnoringCase(file.extension().string(), ".crw"))
        return {false, true, hasSidecar};
    const bool embeds = matchesAdobeDirectEmbedXMPTypePredicate(file);
    switch (sidecarStyle) {
    case 0:
        return {true, false, hasSidecar};
    case 1:
        return {embeds, !embeds, hasSidecar};
    case 2:
        return {false, true, hasSidecar};
    case 3:
        return {true, true, hasSidecar};
    case 4:
        return {!hasSidecar, hasSidecar, hasSidecar};
    default:
        return {false, false, hasSidecar};
    }
}
