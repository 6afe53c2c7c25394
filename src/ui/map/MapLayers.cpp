#include "ui/map/MapLayers.h"

MapLayers::MapLayers(KTMapController& mapController, const MapFeatures& features)
    : map(mapController), photoLayers(features.photos), pointLayer(features.points) {
    for (KTMapLayer* layer :
         std::initializer_list<KTMapLayer*>{&baseMap, &tiles, &trackLayer, &pointLayer.layer(), &crosshairs,
                                            &scaleBarLayer, &attributionLayer})
        composition.addLayer(*layer);
    for (KTMapLayer* layer : photoLayers.layers())
        composition.addLayer(*layer);
    observation = map.observe([this](const KTChange& change) {
        if (!change.isPrior)
            follow(change.key);
    });
    follow("mapDataSource");
    follow("shouldShowCrosshairs");
}

void MapLayers::follow(std::string_view key) {
    if (key == "shouldShowCrosshairs") {
        crosshairs.setShown(map.shouldShowCrosshairs());
    } else if (key == "mapDataSource") {
        tiles.setDataSource(map.mapDataSource());
        attributionLayer.setText(attribution());
    }
}
