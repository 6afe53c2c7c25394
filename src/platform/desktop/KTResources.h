#pragma once
#include <filesystem>

/// Path of the file or folder @p name of the program's resources ("exiftoollib", "data/geomagnetism"): in the
/// folder that the environment variable WAYMARK_RESOURCES names, else beside the build (../share/waymark from
/// the executable), else in the installation's share folder. The path is returned whether or not it exists.
std::filesystem::path KTResourcePath(const std::filesystem::path& name);
