#pragma once
#include "FolderExportSettings.h"

#include <waymark/KTPhotoExportManager.h>

#include <filesystem>

/// The files of an export. In a pattern of names, "{name}" stands for the photo's own name, "{number}" for
/// its place in the export (001), "{date}" and "{time}" for those of the camera's clock ("2014-06-01",
/// "12-00-00"),
/// "{title}" for its title; what a photo has not is empty. A name that says nothing is the photo's own.
class FolderNames {
public:
    FolderNames(const KTPhotoExportManager& exportManager, FolderExportSettings exportSettings,
                std::filesystem::path into)
        : manager(exportManager), settings(std::move(exportSettings)), folder(std::move(into)) {}

    /// A destination for each photo, in their order; no two are the same, whatever the letter case. With @p
    /// avoidsExisting none is there already.
    std::vector<std::filesystem::path> destinations(bool avoidsExisting) const;

private:
    std::string nameFor(const KTExportedPhoto& photo, std::size_t number, std::size_t count) const;
    std::string extensionFor(const KTExportedPhoto& photo) const;
    std::filesystem::path folderFor(const KTExportedPhoto& photo) const;

    const KTPhotoExportManager& manager;
    const FolderExportSettings settings;
    const std::filesystem::path folder;
};
