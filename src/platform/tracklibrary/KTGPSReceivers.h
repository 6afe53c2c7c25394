#pragma once
#include <filesystem>
#include <vector>

/// GPS receivers and loggers that the desktop has mounted as disks.
struct KTGPSReceivers {
    /// Where desktops mount disks of this user: /run/media/USER, /media/USER and /media.
    static std::vector<std::filesystem::path> mountFolders();
    /// The track files on the disks in @p mounts, at any depth below the folders in which receivers keep them
    /// ("Garmin", "GPX", "GPSLog", "Tracks", in any letter case, at the top of the disk), by path. Links are
    /// not followed; what cannot be read is left out. Any thread; slow disks take their time.
    static std::vector<std::filesystem::path> trackFiles(const std::vector<std::filesystem::path>& mounts);
};
