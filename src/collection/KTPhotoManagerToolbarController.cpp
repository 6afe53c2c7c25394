#include "collection/KTPhotoManagerToolbarController.h"

#include "collection/KTPhotoManager.h"
#include "platform/common/KTLocalizedString.h"

KTPhotoManagerToolbarController::KTPhotoManagerToolbarController(KTPhotoManager& content)
    : manager(content), loaded(content.photos()->size()), unsaved(content.unsavedPhotos()->size()),
      importLine(content.importDescription()), isSyncing(content.isSyncingWithIPhoto()) {
    describe();
    observation = manager.observe([this](const KTChange& change) {
        if (!change.isPrior)
            follow(change);
    });
}

std::string KTPhotoManagerToolbarController::unsavedPhotosButtonTitle() const {
    return KTLocalizedString("Write Changed Tags");
}

void KTPhotoManagerToolbarController::follow(const KTChange& change) {
    if (change.key == "isSyncingWithIPhoto")
        return set("isSyncingWithIPhoto", isSyncing, manager.isSyncingWithIPhoto());
    if (change.key == "importDescription")
        return set("importDescription", importLine, std::string(manager.importDescription()));
    const bool isList = change.key == "photos", isUnsavedList = change.key == "unsavedPhotos";
    if (!isList && !isUnsavedList)
        return;
    // Counted on, because a snapshot of the list for each of thousands of photos takes its time.
    std::size_t& count = isList ? loaded : unsaved;
    if (change.kind == KTChange::Kind::Insertion)
        count += change.indexes.size();
    else if (change.kind == KTChange::Kind::Removal)
        count -= change.indexes.size();
    else
        count = (isList ? manager.photos() : manager.unsavedPhotos())->size();
    describe();
}

void KTPhotoManagerToolbarController::describe() {
    std::string text = loaded == 0 ? KTLocalizedString("No loaded photos")
                                   : KTLocalizedCount("1 photo with unsaved changes, ",
                                                      "%d photos with unsaved changes, ", unsaved) +
                                         KTLocalizedCount("1 loaded photo", "%d loaded photos", loaded);
    set("unsavedPhotosDescription", description, std::move(text));
    set("isUnsavedPhotosButtonEnabled", isEnabled, loaded > 0 && unsaved > 0);
}

template<class Property>
void KTPhotoManagerToolbarController::set(std::string_view key, Property& property, Property value) {
    if (property == value)
        return;
    willChange(key);
    property = std::move(value);
    didChange(key);
}

void KTPhotoManagerToolbarController::writeUnsavedChanges() {
    manager.savePhotos(*manager.unsavedPhotos());
}

void KTPhotoManagerToolbarController::cancelImport() {
    manager.setShouldCancelImport(true);
}
