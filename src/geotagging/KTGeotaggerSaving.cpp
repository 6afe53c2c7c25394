#include "collection/KTGeocodingProgress.h"
#include "geotagging/KTGeotagger.h"
#include "photo/KTPhoto.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/gazetteer/KTGazetteer.h"

/// The candidates may be those of a photo that is no longer the selected one, or of a former capture instant,
/// until the next computation.
void KTGeotagger::saveCandidate(Candidate which) {
    const auto selected = photoController.selectedPhotos();
    const Point point = candidate(which);
    if (selected->size() != 1 || !point)
        return;
    const Links current = linker->linkedPointsForPhoto(selected->back());
    if (!current || (*current).*which != point)
        return;
    selected->back()->setLocationCreatedFromLinkablePoint(point);
    advanceToNextPhoto();
}

void KTGeotagger::advanceToNextPhoto() {
    if (shouldAutoAdvanceToNextPhoto())
        photoController.selectNext();
}

/// The computation comes first, and the batch after it, so that none of what the batch writes is in it yet;
/// and not on the main thread, which many photos would hold up.
void KTGeotagger::batchSave() {
    if (isSavingBatch)
        return;
    photoController.photoManager().finishZoneChange();
    setIsBatchOperationInProgress(true);
    updateGeotagsQueue.async([this, proposed = computation()] {
        computeTrackPointsWithBatchCriteriaForPhotos(*photoController.selectedPhotos());
        KTPerformOnMainThread([weak = std::weak_ptr(self), proposed] {
            if (const auto alive = weak.lock())
                (*alive)->handOver(*proposed);
        });
    });
}

void KTGeotagger::handOver(const KTGeotaggingComputation& proposed) {
    const auto places = std::make_shared<KTGazetteer::Batch>(KTGazetteer::sharedGazetteer());
    batchOperationController.batchProcessOperations(
        proposed.operations(), KTGeocodingProgressDescription("Geotagging photo %u of %u"),
        [weak = std::weak_ptr(self), places,
         sparesGeotagged = proposed.criteria.shouldIgnorePreviouslyTaggedPhotos] {
            if (const auto alive = weak.lock())
                (*alive)->endBatch(sparesGeotagged);
        });
}

/// The photos just written count as geotagged from now on.
void KTGeotagger::endBatch(bool sparesGeotagged) {
    setIsBatchOperationInProgress(false);
    if (sparesGeotagged)
        updateGeotagsQueue.async(
            [this] { computeTrackPointsWithBatchCriteriaForPhotos(*photoController.selectedPhotos()); });
}

void KTGeotagger::setIsBatchOperationInProgress(bool isInProgress) {
    willChange("isBatchOperationInProgress");
    isSavingBatch = isInProgress;
    didChange("isBatchOperationInProgress");
}

void KTGeotagger::geotagPhotos(const Photos& photos, const Point& toLinkablePoint) {
    geotag(photos, toLinkablePoint, &KTPhoto::setLocationCreatedFromLinkablePoint);
}

void KTGeotagger::geotagPhotosToLocationShown(const Photos& photos, const Point& withLinkablePoint) {
    geotag(photos, withLinkablePoint, &KTPhoto::setLocationShownFromLinkablePoint);
}

void KTGeotagger::geotag(const Photos& photos, const Point& point, Setter setter) {
    Operations operations;
    for (const auto& photo : photos)
        operations.push_back(
            std::make_shared<KTOperation>([photo, point, setter] { (photo.get()->*setter)(point); }));
    batchOperationController.batchProcessOperations(std::move(operations),
                                                    KTLocalizedString("Geotagging photo %u of %u"));
}
