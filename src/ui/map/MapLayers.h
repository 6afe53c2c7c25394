#pragma once
#include "platform/cartography/drawing/KTMapCompositor.h"
#include "platform/cartography/drawing/KTMapScene.h"
#include "ui/map/MapFeatures.h"

/// The layers of a window's map and what puts them together, kept as the map's controller says.
class MapLayers {
public:
    MapLayers(KTMapController& mapController, const MapFeatures& features)
        : scene(mapController), photoLayers(scene.addPhotos(features.photos)),
          pointLayer(scene.addLinkablePoints(features.points)) {
        for (KTMapLayer* layer : scene.layers())
            composition.addLayer(*layer);
    }

    KTMapCompositor& compositor() { return composition; }
    KTPhotoLayers& photos() { return photoLayers; }
    KTLinkablePointLayer& points() { return pointLayer; }
    KTTrackLayer& tracks() { return scene.tracks(); }
    KTScaleBarLayer& scaleBar() { return scene.scaleBar(); }

private:
    KTMapScene scene;
    KTPhotoLayers& photoLayers;
    KTLinkablePointLayer& pointLayer;
    KTMapCompositor composition; // last: it draws them
};
