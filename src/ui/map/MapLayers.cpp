#include "ui/map/MapLayers.h"

MapLayers::MapLayers(KTMapController& mapController) : map(mapController) {
    for (KTMapLayer* layer :
         std::initializer_list<KTMapLayer*>{&baseMap, &crosshairs, &scaleBarLayer, &attributionLayer})
        composition.addLayer(*layer);
    observation = map.observe([this](const KTChange& change) {
        if (!change.isPrior)
            follow(change.key);
    });
    follow("shouldShowCrosshairs");
    attributionLayer.setText(attribution());
}

void MapLayers::follow(std::string_view key) {
    if (key == "shouldShowCrosshairs")
        crosshairs.setShown(map.shouldShowCrosshairs());
}
