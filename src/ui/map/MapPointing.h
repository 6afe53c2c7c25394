#pragma once
#include "ui/map/MapHoverCard.h"
#include "ui/map/MapLayers.h"

/// What lies under the pointer of a map view, in words. Main thread.
class MapPointing {
public:
    MapPointing(MapLayers& mapLayers, KTMapController& mapController)
        : layers(mapLayers), map(mapController) {}

    /// Photos lie above flags, flags above tracks; nothing where there is none of
    /// them.
    MapHoverCard::Content contentAt(KTViewPoint point);
    /// The one photo whose marker is there; null for several or none.
    std::shared_ptr<KTPhoto> photoAt(KTViewPoint point);

    static MapHoverCard::Content describe(const KTPhoto& photo);
    /// What a sign stands for: the names of its photos, cut when they are many.
    MapHoverCard::Content describe(const KTPhotoLayers::Mark& mark);

private:
    MapLayers& layers;
    KTMapController& map;
};
