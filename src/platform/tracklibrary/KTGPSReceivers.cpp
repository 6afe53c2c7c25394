#include "platform/tracklibrary/KTGPSReceivers.h"

#include "platform/common/KTText.h"
#include "platform/tracklibrary/KTTrackManager.h"

#include <algorithm>
#include <cstdlib>

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kFolders[] = {"garmin", "gpx", "gpslog", "tracks"};

/// The folders in @p folder.
std::vector<fs::path> foldersIn(const fs::path& folder) {
    std::vector<fs::path> found;
    std::error_code error, ignored;
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error))
        if (entry->is_directory(ignored) && !entry->is_symlink(ignored))
            found.push_back(entry->path());
    return found;
}

void addTrackFiles(const fs::path& folder, std::vector<fs::path>& files) {
    std::error_code error, ignored;
    fs::recursive_directory_iterator entry(folder, fs::directory_options::skip_permission_denied, error);
    for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error))
        if (entry->is_regular_file(ignored) && KTTrackManager::validFileTypePredicate(entry->path()))
            files.push_back(entry->path());
}

} // namespace

std::vector<fs::path> KTGPSReceivers::mountFolders() {
    const char* user = std::getenv("USER");
    std::vector<fs::path> folders;
    if (user != nullptr && *user != 0)
        folders = {fs::path("/run/media") / user, fs::path("/media") / user};
    folders.emplace_back("/media");
    return folders;
}

std::vector<fs::path> KTGPSReceivers::trackFiles(const std::vector<fs::path>& mounts) {
    std::vector<fs::path> files;
    for (const fs::path& mount : mounts)
        for (const fs::path& disk : foldersIn(mount))
            for (const fs::path& folder : foldersIn(disk))
                if (std::ranges::find(kFolders, KTLowercase(folder.filename().string())) !=
                    std::end(kFolders))
                    addTrackFiles(folder, files);
    std::ranges::sort(files);
    files.erase(std::ranges::unique(files).begin(), files.end());
    return files;
}
