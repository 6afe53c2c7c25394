#pragma once
#include "platform/cartography/KTMapController.h"
#include "platform/cartography/drawing/KTAttributionLayer.h"
#include "platform/cartography/drawing/KTBaseMapLayer.h"
#include "platform/cartography/drawing/KTCrosshairsLayer.h"
#include "platform/cartography/drawing/KTMapCompositor.h"
#include "platform/cartography/drawing/KTScaleBarLayer.h"
#include "platform/cartography/drawing/features/KTLinkablePointLayer.h"
#include "platform/cartography/drawing/features/KTPhotoLayers.h"
#include "platform/cartography/drawing/tiles/KTTileLayer.h"
#include "platform/cartography/drawing/tracks/KTTrackLayer.h"
#include "ui/map/MapFeatures.h"

/// The layers of the main window's map and what puts them together, kept as the
/// map's controller says.
class MapLayers {
public:
    MapLayers(KTMapController& mapController, const MapFeatures& features);

    KTMapCompositor& compositor() { return composition; }
    KTPhotoLayers& photos() { return photoLayers; }
    KTLinkablePointLayer& points() { return pointLayer; }
    KTTrackLayer& tracks() { return trackLayer; }
    KTScaleBarLayer& scaleBar() { return scaleBarLayer; }
    std::string attribution() const { return KTAttributionLayer::textOf(composition.layers()); }

private:
    void follow(std::string_view key);

    KTMapController& map;
    KTBaseMapLayer baseMap;
    KTTileLayer tiles;
    KTTrackLayer trackLayer;
    KTPhotoLayers photoLayers;
    KTLinkablePointLayer pointLayer;
    KTCrosshairsLayer crosshairs;
    KTScaleBarLayer scaleBarLayer;
    KTAttributionLayer attributionLayer;
    KTMapCompositor composition; // last: it draws them
    KTObservable::Observation observation;
};
