#pragma once
#include <filesystem>
#include <string>
#include <vector>

/// One thing that was looked at, in the user's language.
struct InstallationFinding {
    enum class Kind { Fine, Warning, Failure };
    std::string subject; ///< "Image::ExifTool"
    Kind kind = Kind::Fine;
    std::string text;   ///< what was found
    std::string advice; ///< what to do; empty where there is nothing to do
};

/// Looks at whatever the program needs to work: the library that reads and writes photos (a small picture is
/// written and read back in a temporary folder), the program's own data, the user's stores and their disks
/// and the helper program for tracks. Of @p folders, which hold photos, it also tells whether photos can be
/// saved there. Changes nothing, and makes no store that is not there yet. Any thread; takes a second or so.
std::vector<InstallationFinding> examineInstallation(const std::filesystem::path& trackLibrary,
                                                     const std::vector<std::filesystem::path>& folders);
