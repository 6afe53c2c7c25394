#include "collection/KTBatchOperationController.h"
#include "collection/KTPhotoManager.h"
#include "photo/KTPhotoSaveStep.h"
#include "photo/KTiPhotoTool.h"
#include "platform/defaults/KTUserDefaults.h"

#include <algorithm>
#include <ctime>

/// By the calendar's year: that of the week would put the last days of December into the next one.
std::optional<std::filesystem::path> KTPhotoManager::makeBackupFolder() {
    const KTUserDefaults& defaults = KTUserDefaults::standardUserDefaults();
    const std::filesystem::path root = defaults.textForKey("defaultBackupPathBookmark");
    if (!defaults.boolForKey("defaultShouldBackupWhenWritingToImageFiles") || root.empty())
        return std::nullopt;
    const std::time_t now = std::time(nullptr);
    std::tm local = {};
    localtime_r(&now, &local);
    char name[40];
    std::strftime(name, sizeof name, "%Y-%m-%d_%H-%M-%S", &local);
    std::error_code ignored; // each save tells that it cannot make its backup
    std::filesystem::create_directory(root / name, ignored);
    return root / name;
}

void KTPhotoManager::savePhotos(const Photos& photos, std::function<void()> didSave) {
    finishZoneChange();
    const bool syncs =
        std::ranges::any_of(photos, [](const Photo& photo) { return photo->shouldUseIPhotoProperties(); });
    const auto backupFolder = makeBackupFolder();
    Photos changed;
    std::unordered_set<const KTPhoto*> known; // saves overlap, but never two of one photo
    std::ranges::copy_if(photos, std::back_inserter(changed), [&](const Photo& photo) {
        return photo->hasUnsavedChanges() && known.insert(photo.get()).second;
    });
    if (syncs)
        KTiPhotoTool::sharediPhotoTool().setObservationIsPaused(true);
    batches->batchProcessOperations(
        KTPhotoSaveStep::stepsForPhotos(changed, backupFolder), {},
        [this, photos, syncs, didSave] {
            if (syncs)
                KTiPhotoTool::sharediPhotoTool().setObservationIsPaused(false);
            didChange(KTPhotoControllerDidWriteUnsavedChanges);
            logNewOperations(photos);
            if (didSave)
                didSave();
        },
        KTPhotoSaveStep::kOverlapping);
}

void KTPhotoManager::logNewOperations(const Photos& saved) {
    Operations added;
    for (const Photo& photo : saved) {
        const auto entry = watched.find(photo.get());
        if (entry == watched.end())
            continue;
        const Operations log = photo->photoOperations();
        added.insert(added.end(), log.begin() + static_cast<std::ptrdiff_t>(entry->second.logged), log.end());
        entry->second.logged = log.size();
    }
    std::ranges::stable_sort(added, {}, &KTPhotoOperation::operationTime);
    addPhotoOperations(added);
}
