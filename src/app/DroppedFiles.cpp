#include "app/DroppedFiles.h"

#include "collection/KTPhotoFileList.h"
#include "platform/desktop/KTItemReplacement.h"
#include "platform/tracklibrary/KTTrackManager.h"

#include <algorithm>

namespace fs = std::filesystem;

namespace {

bool isBundle(const fs::path& path) {
    return path.native().ends_with(".ktplugin");
}

/// Folders come with or without a slash at their end.
fs::path withoutSlash(const fs::path& path) {
    return path.has_filename() ? path : path.parent_path();
}

} // namespace

DroppedFiles DroppedFiles::inPaths(const Paths& paths, bool bundlesAreFiles, const std::stop_token& stop) {
    DroppedFiles files;
    for (const fs::path& given : paths) {
        const fs::path path = withoutSlash(given);
        std::error_code ignored;
        if (bundlesAreFiles && isBundle(path))
            files.bundles.push_back(path);
        else if (fs::is_directory(path, ignored)) {
            if (files.lookThrough(path, bundlesAreFiles, stop))
                files.photos.push_back(path);
        } else {
            if (KTPhotoFileList::validFileTypePredicate(path.native()))
                files.photos.push_back(path);
            if (KTTrackManager::validFileTypePredicate(path))
                files.tracks.push_back(path);
        }
    }
    return files;
}

/// Adds the tracks below @p folder; whether there are photos.
bool DroppedFiles::lookThrough(const fs::path& folder, bool bundlesAreFiles, const std::stop_token& stop) {
    bool hasPhotos = false;
    Paths found;
    std::error_code error, ignored;
    fs::recursive_directory_iterator entry(folder, fs::directory_options::skip_permission_denied, error);
    for (; !error && entry != fs::recursive_directory_iterator() && !stop.stop_requested();
         entry.increment(error)) {
        const fs::path& path = entry->path();
        if (entry->is_directory(ignored)) {
            if (KTItemReplacement::isReplacementFolder(path.filename()) ||
                (bundlesAreFiles && isBundle(path)))
                entry.disable_recursion_pending();
            continue;
        }
        hasPhotos |= KTPhotoFileList::validFileTypePredicate(path.native());
        if (KTTrackManager::validFileTypePredicate(path))
            found.push_back(path);
    }
    std::ranges::sort(found);
    tracks.insert(tracks.end(), found.begin(), found.end());
    return hasPhotos;
}
