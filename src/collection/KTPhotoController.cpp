#include "collection/KTPhotoController.h"

#include <algorithm>

void KTPhotoController::setup() {
    managerObservation = manager.observe([this](const KTChange& change) { forward(change); });
}

void KTPhotoController::tearDown() {
    managerObservation.stop();
}

void KTPhotoController::forward(const KTChange& change) {
    auto announce = [&](std::string_view key, KTChange::Kind kind, const Indexes& indexes) {
        change.isPrior ? willChange(key, kind, indexes) : didChange(key, kind, indexes);
    };
    const auto setting = KTChange::Kind::Setting;
    if (change.key == "photos" && manager.photoSortDescriptors().empty())
        announce("photos", change.kind, change.indexes);
    else if (change.key == "photos" || change.key == "photoSortDescriptors")
        announce("photos", setting, {});
    else if (change.key == "selectedPhotoIndexes")
        for (const char* key : {"selectedPhotoIndexes", "selectedPhotos"})
            announce(key, setting, {});
}

void KTPhotoController::selectNext() {
    const Indexes selected = selectedPhotoIndexes();
    if (!selected.empty() && selected.back() + 1 < manager.numberOfPhotos())
        manager.setSelectedPhotoIndexes({selected.back() + 1});
}

KTPhotoController::Photos KTPhotoController::stillLoaded(const Photos& photos) const {
    Photos present;
    std::ranges::copy_if(photos, std::back_inserter(present),
                         [this](const auto& photo) { return manager.isLoaded(*photo); });
    return present;
}

void KTPhotoController::setIsBatchGeotagRemovalInProgress(bool isInProgress) {
    willChange("isBatchGeotagRemovalInProgress");
    isRemovingGeotags = isInProgress;
    didChange("isBatchGeotagRemovalInProgress");
}
