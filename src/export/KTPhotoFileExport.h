#pragma once
#include "export/waymark/KTPhotoExportInterface.h"

#include <filesystem>
#include <optional>
#include <vector>

class KTPhoto;

/// How one photo becomes a file of its own. A value type.
struct KTPhotoFileExport {
    std::filesystem::path destination = {};
    std::optional<KTImageSize> size = {}; ///< none keeps the picture's
    std::string type = {};                ///< a type identifier; empty for the photo's own
    double quality = 1;
    bool excludesLocation = false;
    bool mayReplace = false; ///< whether a file that is there goes

    /// As the options say; without destination.
    static KTPhotoFileExport withOptions(const KTPhotoExportOptions& options);
    /// The type identifiers of the pictures that can be made, the usual one first.
    static std::vector<std::string> validFormats();

    /// Writes @p photo, as the record shows it, in one step. A file of another size or type is made anew,
    /// every other one is copied with its picture as it is. Why it could not be, for users; nothing is left
    /// behind then. Any thread, one call for a photo at a time.
    std::optional<std::string> exportPhoto(const KTPhoto& photo) const;
};
