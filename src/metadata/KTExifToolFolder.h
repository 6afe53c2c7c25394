#pragma once
#include <filesystem>
#include <optional>
#include <string>

/// Lets bridges made from now on use the Image::ExifTool in @p folder, or in its folder "lib"; without one,
/// that of the setting "exifToolFolder", and where it is empty too the program's own. The folder is looked at
/// first: it must hold an Image::ExifTool of version 12 or later. Otherwise nothing changes, and the text for
/// the user says why. To be called before the first bridge is made.
std::optional<std::string> KTUseExifToolFolder(const std::filesystem::path& folder);

/// The version that the Image::ExifTool in @p folder says it has ("12.57"), found without loading it; empty
/// where there is none.
std::string KTVersionOfExifToolFolder(const std::filesystem::path& folder);
