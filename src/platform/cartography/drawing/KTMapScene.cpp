#include "platform/cartography/drawing/KTMapScene.h"

KTMapScene::KTMapScene(KTMapController& controller) : map(controller) {
    observation = map.observe([this](const KTChange& change) {
        if (!change.isPrior && (change.key == "mapDataSource" || change.key == "shouldShowCrosshairs"))
            follow();
    });
    follow();
}

void KTMapScene::follow() {
    tileLayer.setDataSource(map.mapDataSource());
    crosshairs.setShown(map.shouldShowCrosshairs());
    attribution.setText(KTAttributionLayer::textOf({&tileLayer, &baseMap}));
}

KTPhotoLayers& KTMapScene::addPhotos(KTSpatialObjectController& photos) {
    return *photoLayers.emplace_back(std::make_unique<KTPhotoLayers>(photos));
}

KTLinkablePointLayer& KTMapScene::addLinkablePoints(KTSpatialObjectController& points) {
    return *pointLayers.emplace_back(std::make_unique<KTLinkablePointLayer>(points));
}

std::vector<KTMapLayer*> KTMapScene::layers() {
    std::vector<KTMapLayer*> all = {&baseMap,    &tileLayer,     &trackLayer,
                                    &crosshairs, &scaleBarLayer, &attribution};
    for (const auto& photos : photoLayers)
        for (KTMapLayer* layer : photos->layers())
            all.push_back(layer);
    for (const auto& points : pointLayers)
        all.push_back(&points->layer());
    return all;
}
