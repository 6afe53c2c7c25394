#pragma once
#include "platform/gazetteer/GridPosition.h"

/// A circle on the earth's surface, taken as a sphere, with the box of latitudes and longitudes around it:
/// what lies outside the box is outside the circle, which is found out at once.
class EarthCircle {
public:
    EarthCircle(GridPosition middle, double metres);

    GridPosition centre;
    double radius; ///< metres
    /// Half of the box's height and width; the width is all of a turn when a pole lies within.
    std::int32_t reachInLatitude;
    std::int32_t reachInLongitude;
};
