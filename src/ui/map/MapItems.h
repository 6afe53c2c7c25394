#pragma once
#include "ui/map/MapView.h"

#include <QRect>

/// One thing that is seen on the map, for those who cannot see it.
struct MapItem {
    const void* key = nullptr; ///< the same as long as it stands for the same thing
    QString name, description;
    QRect place; ///< in the view
    bool isSelected = false;
    std::function<void()> press; ///< what a click does; none for what is only looked at
};

/// What the view shows now: photos and clusters of them, candidate locations,
/// tracks.
std::vector<MapItem> itemsOf(MapView& view);
