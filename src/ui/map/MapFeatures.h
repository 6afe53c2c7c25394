#pragma once
#include "photo/KTPhoto.h"
#include "platform/cartography/KTGeometry.h"
#include "platform/cartography/KTSpatialObjectController.h"
#include "platform/presentation/KTMenu.h"

#include <functional>

/// What a map view shows beside the ground, and what is done with what the user
/// does to it. The controllers must outlive the view.
struct MapFeatures {
    using Photos = std::vector<std::shared_ptr<KTPhoto>>;

    KTSpatialObjectController& photos;
    KTSpatialObjectController& points; ///< candidate locations
    std::function<KTMenu(KTMapPoint place)> contextMenu;
    std::function<void(const Photos& dropped, KTMapPoint place)> geotagPhotos;
};
