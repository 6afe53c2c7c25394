#pragma once
#include "platform/cartography/KTGeometry.h"

#include <optional>

/// The smallest box, in degrees, around positions. One that crosses the 180° meridian has an east end above
/// 180: its west end lies within [-180, 180), its width is at most 360.
struct KTMapBounds {
    double west = 0, south = 0, east = 0, north = 0;

    /// The bounds of what is a position among @p points: finite, with a latitude within ±90. Nothing when
    /// there is none. Takes time in proportion to their number.
    static std::optional<KTMapBounds> ofPoints(std::span<const KTMapPoint> points);

    KTMapPoint southWest() const { return {west, south}; }
    KTMapPoint northEast() const { return {east, north}; }
    bool operator==(const KTMapBounds&) const = default;
};
