#pragma once
#include <waymark/KTPhotoExportInterface.h>

#include <optional>

/// How the copies are made. A value type.
struct FolderExportSettings {
    enum SubFolders { None, Year, Month, Day };

    std::string namePattern = "{name}";          ///< see FolderNames
    SubFolders subFolders = None;                ///< by the date on the camera's clock: "2014/06/01"
    std::optional<KTImageSize> largestSize = {}; ///< none keeps the photo's size
    std::string imageType =
        {}; ///< "public.jpeg", "public.png" or "public.tiff"; empty keeps the photo's type
    double imageQuality = 0.9;
    bool excludesLocation = false;

    /// What the user has chosen, in the file waymark/Folder.ini of the configuration folder: "name",
    /// "subFolders"
    /// ("year", "month", "day"), "width" and "height" in pixels, "type" ("jpeg", "png", "tiff"), "quality"
    /// from 0 to 1, "excludeLocation". What is missing or makes no sense is as above.
    static FolderExportSettings ofUser();
    void store() const;
    /// These, where @p requested says nothing else.
    FolderExportSettings with(const KTPhotoExportOptions& requested) const;
    KTPhotoExportOptions options() const;
};
