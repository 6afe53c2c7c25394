#pragma once
#include <filesystem>
#include <span>
#include <string_view>

/// File types into which XMP is written inside the file.
std::span<const std::string_view> adobeDirectEmbedXMPTypes();
/// Whether the path ends with one of them, whatever its letter case.
bool matchesAdobeDirectEmbedXMPTypePredicate(const std::filesystem::path& file);

/// Where a save of one photo writes.
struct KTSaveTargets {
    bool imageFile = false;
    bool xmpSidecar = false;
    bool hasSidecar = false; ///< there is one now
};

/// The targets for the image @p file under the setting `defaultXMPSidecarStyle`: 0 image, 1 image where its
/// type embeds XMP and else sidecar, 2 sidecar, 3 both, 4 sidecar where one exists and else image; no target
/// for any other value. A "crw" file is never written into, whatever the style.
KTSaveTargets saveTargets(const std::filesystem::path& file, std::int64_t sidecarStyle, bool hasSidecar);
