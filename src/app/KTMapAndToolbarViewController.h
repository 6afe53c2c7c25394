#pragma once
#include "collection/KTPhotoMap.h"
#include "collection/KTPhotoSpatialObjectController.h"
#include "platform/cartography/KTMapController.h"

class KTGeotaggingController;
class KTPhotoController;

/// The map of the main window with what it shows: the layer of the photos below, that of the linkable points
/// above. Main thread.
class KTMapAndToolbarViewController : public KTPhotoMap {
public:
    /// All must outlive the controller.
    KTMapAndToolbarViewController(KTMapController& shownMap, KTPhotoController& photos,
                                  KTGeotaggingController& geotagging);
    ~KTMapAndToolbarViewController() override; ///< as tearDown()
    void setup();
    void tearDown();

    KTMapController& mapController() const { return map; }
    KTPhotoSpatialObjectController& photoSpatialObjectController() { return photoLayer; }

    void zoomToFitPhotos(const std::vector<std::shared_ptr<KTPhoto>>& photos) override;
    /// Shows the selected photos; all where none is selected.
    void photoZoomToFitAction();

private:
    void followSelectionSoon();
    void selectionDidChange();

    KTMapController& map;
    KTPhotoController& photoController;
    KTGeotaggingController& geotaggingController;
    KTPhotoSpatialObjectController photoLayer;
    KTPhotoManager::Snapshot followed; // the photos that the map has gone to
    bool isSetUp = false, isFollowDue = false;
    KTObservable::Observation observation;
    const std::shared_ptr<KTMapAndToolbarViewController*> self; // for what is posted
};
