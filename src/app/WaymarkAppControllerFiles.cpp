#include "app/DroppedFiles.h"
#include "app/WaymarkAppController.h"
#include "collection/KTPhotoFileList.h"
#include "collection/KTPhotoManager.h"
#include "export/KTPluginManager.h"
#include "geotagging/KTAppTrackPickerController.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/concurrency/KTThreadPool.h"

#include <algorithm>

namespace {

/// Property lists of photo libraries; the last one is written in two ways.
constexpr std::string_view kLibraryTypes[] = {
    "ImageDataListPboardType", "ApertureImageDataPboardType",
    "com.apple.MediaLibrary.PboardType.MediaObjectIdentifiersPlist",
    "com.apple.MediaLibrary.PBoardType.MediaObjectIdentifiersPlist"};

bool isFolder(const std::filesystem::path& path) {
    std::error_code ignored;
    return std::filesystem::is_directory(path, ignored);
}

} // namespace

bool WaymarkAppController::validateFilesAtPaths(const Paths& paths) const {
    return std::ranges::any_of(paths, [](const auto& path) {
        return KTPhotoFileList::validFileTypePredicate(path.native()) ||
               KTTrackManager::validFileTypePredicate(path) || isFolder(path);
    });
}

std::string WaymarkAppController::descriptionOfDrop(const Paths& paths) const {
    std::size_t photos = 0, tracks = 0, folders = 0;
    for (const auto& path : paths) {
        if (KTPhotoFileList::validFileTypePredicate(path.native()))
            ++photos;
        else if (KTTrackManager::validFileTypePredicate(path))
            ++tracks;
        else
            folders += isFolder(path);
    }
    std::vector<std::string> parts;
    if (photos != 0)
        parts.push_back(KTLocalizedCount("1 photo", "%d photos", photos));
    if (tracks != 0)
        parts.push_back(KTLocalizedCount("1 track", "%d tracks", tracks));
    if (folders != 0)
        parts.push_back(KTLocalizedCount("1 folder", "%d folders", folders));
    if (parts.empty())
        return {};
    std::string list = parts.back();
    if (parts.size() > 1) {
        parts.pop_back();
        list = KTStringWithFormat(KTLocalizedString("%@ and %@"), {KTJoin(parts, ", "), list});
    }
    return KTStringWithFormat(KTLocalizedString("Add %@"), {list});
}

void WaymarkAppController::importFilesAtPaths(const Paths& paths) {
    importFiles(paths, false);
}

void WaymarkAppController::importFilesFromOpenFilesAppDelegateAtPaths(const Paths& paths) {
    importFiles(paths, true);
}

/// Folders may be large and on slow disks, so they are looked through beside the main thread.
void WaymarkAppController::importFiles(const Paths& paths, bool bundlesAreFiles) {
    KTRunOnThreadPool([paths, bundlesAreFiles, alive = std::weak_ptr(self), stop = listingStop.get_token()] {
        KTPerformOnMainThread([alive, files = DroppedFiles::inPaths(paths, bundlesAreFiles, stop)] {
            if (const auto controller = alive.lock())
                (*controller)->importDroppedFiles(files);
        });
    });
}

void WaymarkAppController::importDroppedFiles(const DroppedFiles& files) {
    if (!files.bundles.empty())
        plugins->importPluginsAtPaths(files.bundles);
    if (!files.photos.empty()) {
        std::vector<std::string> photos;
        for (const auto& path : files.photos)
            photos.push_back(path.string());
        photoManager().importPhotosAtPaths(std::move(photos), {.didEnd = [alive = std::weak_ptr(self)] {
                                               if (const auto controller = alive.lock())
                                                   (*controller)->selectFirstPhotos();
                                           }});
    }
    if (!files.tracks.empty()) {
        trackPicker->showWindowQuietly();
        trackPicker->importFilesAtPaths(files.tracks);
    }
}

/// Whoever begins finds the photos selected, ready to be geotagged; whoever has selected some keeps them.
void WaymarkAppController::selectFirstPhotos() {
    if (std::exchange(hasSelectedFirstPhotos, true) || !photoManager().selectedPhotoIndexes().empty())
        return;
    selectAllPhotos();
}

void WaymarkAppController::importFilesFromPasteboard(const KTPasteboard& pasteboard) {
    const bool isOfLibrary = std::ranges::any_of(
        kLibraryTypes, [&](std::string_view type) { return pasteboard.propertyLists.contains(type); });
    if (isOfLibrary)
        photoManager().importPhotosFromPasteboard(pasteboard);
    else
        importFilesAtPaths(pasteboard.files);
}
