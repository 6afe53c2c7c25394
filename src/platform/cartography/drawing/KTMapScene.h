#pragma once
#include "platform/cartography/KTMapController.h"
#include "platform/cartography/drawing/KTAttributionLayer.h"
#include "platform/cartography/drawing/KTBaseMapLayer.h"
#include "platform/cartography/drawing/KTCrosshairsLayer.h"
#include "platform/cartography/drawing/KTMapPicture.h"
#include "platform/cartography/drawing/KTScaleBarLayer.h"
#include "platform/cartography/drawing/features/KTLinkablePointLayer.h"
#include "platform/cartography/drawing/features/KTPhotoLayers.h"
#include "platform/cartography/drawing/tiles/KTTileLayer.h"
#include "platform/cartography/drawing/tracks/KTTrackLayer.h"

/// All layers of a map that a controller steers: what windows, the command line and exports draw. Main
/// thread.
class KTMapScene {
public:
    /// Follows the tile source and the crosshairs of @p controller, which must outlive the scene.
    explicit KTMapScene(KTMapController& controller);

    /// Shows the features of @p photos, which must outlive the scene, as photos.
    KTPhotoLayers& addPhotos(KTSpatialObjectController& photos);
    /// Shows the features of @p points, which must outlive the scene, as flags.
    KTLinkablePointLayer& addLinkablePoints(KTSpatialObjectController& points);
    KTTrackLayer& tracks() { return trackLayer; }
    KTTileLayer& tiles() { return tileLayer; }
    KTScaleBarLayer& scaleBar() { return scaleBarLayer; }

    /// Every layer, in any order; for a compositor.
    std::vector<KTMapLayer*> layers();
    /// What the controller's view shows, drawn at once.
    QImage picture(const KTMapLook& look) { return KTMapPicture(layers(), map.viewState(), look); }

private:
    void follow();

    KTMapController& map;
    KTBaseMapLayer baseMap;
    KTTileLayer tileLayer;
    KTTrackLayer trackLayer;
    std::vector<std::unique_ptr<KTPhotoLayers>> photoLayers;
    std::vector<std::unique_ptr<KTLinkablePointLayer>> pointLayers;
    KTCrosshairsLayer crosshairs;
    KTScaleBarLayer scaleBarLayer;
    KTAttributionLayer attribution;
    KTObservable::Observation observation;
};
