#pragma once
#include <waymark/KTPhotoExportInterface.h>

#include <optional>

/// How the copies are made. A value type.
struct FolderExportSettings {
    std::optional<KTImageSize> largestSize = {}; ///< none keeps the photo's size
    std::string imageType = {}; ///< "public.jpeg" or "public.png"; empty keeps the photo's type
    double imageQuality = 0.9;
    bool excludesLocation = false;

    /// What the user has chosen in the file waymark/Folder.ini of the configuration folder: "width" and
    /// "height" in pixels, "type" ("jpeg" or "png"), "quality" from 0 to 1, "excludeLocation". What is
    /// missing or makes no sense is as above.
    static FolderExportSettings ofUser();
    KTPhotoExportOptions options() const;
};
