#pragma once
#include "platform/cartography/KTMapController.h"
#include "platform/cartography/drawing/KTAttributionLayer.h"
#include "platform/cartography/drawing/KTBaseMapLayer.h"
#include "platform/cartography/drawing/KTCrosshairsLayer.h"
#include "platform/cartography/drawing/KTMapCompositor.h"
#include "platform/cartography/drawing/KTScaleBarLayer.h"

/// The layers of the main window's map and what puts them together, kept as the
/// map's controller says.
class MapLayers {
public:
    explicit MapLayers(KTMapController& mapController);

    KTMapCompositor& compositor() { return composition; }
    KTScaleBarLayer& scaleBar() { return scaleBarLayer; }
    std::string attribution() const { return KTAttributionLayer::textOf(composition.layers()); }

private:
    void follow(std::string_view key);

    KTMapController& map;
    KTBaseMapLayer baseMap;
    KTCrosshairsLayer crosshairs;
    KTScaleBarLayer scaleBarLayer;
    KTAttributionLayer attributionLayer;
    KTMapCompositor composition; // last: it draws them
    KTObservable::Observation observation;
};
