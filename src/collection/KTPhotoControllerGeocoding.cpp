#include "collection/KTBatchOperationController.h"
#include "collection/KTGeocodingProgress.h"
#include "collection/KTPhotoController.h"
#include "photo/KTLinkablePoint.h"
#include "platform/gazetteer/KTGazetteer.h"

struct KTPhotoController::Place {
    const char* latitudeKey;
    const char* longitudeKey;
    void (KTPhoto::*writeNames)(const std::shared_ptr<KTLinkablePoint>&);
};

void KTPhotoController::reverseGeocodeLocationCreatedPhotos(const Photos& photos) {
    reverseGeocode(photos,
                   {"latitude", "longitude", &KTPhoto::reverseGeocodeLocationCreatedFromLinkablePoint});
}

void KTPhotoController::reverseGeocodeLocationShownPhotos(const Photos& photos) {
    reverseGeocode(
        photos, {"latitudeShown", "longitudeShown", &KTPhoto::reverseGeocodeLocationShownFromLinkablePoint});
}

/// All positions are asked for at once; the gazetteer answers them in the order of the steps, each of which
/// waits for its own.
void KTPhotoController::reverseGeocode(const Photos& photos, const Place& place) {
    if (batchOperationController == nullptr)
        return;
    KTGazetteer& gazetteer = KTGazetteer::sharedGazetteer();
    const auto batch = std::make_shared<KTGazetteer::Batch>(gazetteer); // to the end of the last step
    KTBatchOperationController::Operations steps;
    for (const auto& photo : photos) {
        const auto latitude = photo->decimalForKey(place.latitudeKey);
        const auto longitude = photo->decimalForKey(place.longitudeKey);
        if (!latitude || !longitude)
            continue;
        const auto point = KTLinkablePoint::initWithGeoPoint({.latitude = latitude, .longitude = longitude},
                                                             KTLinkablePointTypeMapPoint);
        point->fetchLocationDescription();
        steps.push_back(std::make_shared<KTOperation>(
            [&collection = manager, photo, point, batch, writeNames = place.writeNames] {
                if (collection.isLoaded(*photo))
                    (photo.get()->*writeNames)(point);
            }));
    }
    if (!steps.empty())
        batchOperationController->batchProcessOperations(
            std::move(steps), KTGeocodingProgressDescription("Reverse geocoding photo %u of %u"));
}
