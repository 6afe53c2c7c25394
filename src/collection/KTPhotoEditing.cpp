#include "collection/KTPhotoEditing.h"

#include "platform/undo/KTUndoManager.h"

void KTEditPhotos(KTPhotoManager& collection, const KTPhotoManager::Photos& photos, std::string actionName,
                  const std::function<void(KTPhoto&)>& change) {
    collection.finishZoneChange();
    const auto undo = collection.undoManager();
    if (undo)
        undo->beginUndoGrouping(std::move(actionName));
    for (const auto& photo : photos) {
        photo->invalidateLastRecordedUndoKey();
        change(*photo);
        photo->invalidateLastRecordedUndoKey();
    }
    if (undo)
        undo->endUndoGrouping();
}
