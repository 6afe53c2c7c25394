#include "app/KTMapAndToolbarViewController.h"

#include "collection/KTPhotoController.h"
#include "geotagging/KTGeotaggingController.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/defaults/KTUserDefaults.h"

KTMapAndToolbarViewController::KTMapAndToolbarViewController(KTMapController& shownMap,
                                                             KTPhotoController& photos,
                                                             KTGeotaggingController& geotagging)
    : map(shownMap), photoController(photos), geotaggingController(geotagging),
      photoLayer(photos.photoManager()), followed(photos.selectedPhotos()),
      self(std::make_shared<KTMapAndToolbarViewController*>(this)) {}

KTMapAndToolbarViewController::~KTMapAndToolbarViewController() {
    tearDown();
}

void KTMapAndToolbarViewController::setup() {
    isSetUp = true;
    photoLayer.setup();
    map.addSpatialObjectController(photoLayer);
    map.addSpatialObjectController(geotaggingController);
    observation = photoController.observe([this](const KTChange& change) {
        if (change.key == "selectedPhotoIndexes" && !change.isPrior)
            followSelectionSoon();
    });
}

void KTMapAndToolbarViewController::tearDown() {
    if (!std::exchange(isSetUp, false))
        return;
    observation.stop();
    map.removeSpatialObjectController(geotaggingController);
    map.removeSpatialObjectController(photoLayer);
    photoLayer.tearDown();
}

void KTMapAndToolbarViewController::zoomToFitPhotos(const std::vector<std::shared_ptr<KTPhoto>>& photos) {
    map.fitSpatialObjects({photos.begin(), photos.end()});
}

void KTMapAndToolbarViewController::photoZoomToFitAction() {
    const auto selected = photoController.selectedPhotos();
    zoomToFitPhotos(selected->empty() ? *photoController.photos() : *selected);
}

/// Photos that come one by one move the places of the selected ones, each time.
void KTMapAndToolbarViewController::followSelectionSoon() {
    if (std::exchange(isFollowDue, true))
        return;
    KTPerformOnMainThread([alive = std::weak_ptr(self)] {
        const auto controller = alive.lock();
        if (!controller)
            return;
        (*controller)->isFollowDue = false;
        if ((*controller)->isSetUp)
            (*controller)->selectionDidChange();
    });
}

/// The setting "defaultAutoZoomPhotoSelectionStyle": the map stays (0), moves where it must (1), or fits.
void KTMapAndToolbarViewController::selectionDidChange() {
    const auto style =
        KTUserDefaults::standardUserDefaults().integerForKey("defaultAutoZoomPhotoSelectionStyle");
    const auto selected = photoController.selectedPhotos();
    if (*std::exchange(followed, selected) == *selected || style == 0 || selected->empty())
        return;
    const KTMapController::Objects objects(selected->begin(), selected->end());
    if (style == 1)
        map.revealSpatialObjects(objects);
    else
        map.fitSpatialObjects(objects);
}
