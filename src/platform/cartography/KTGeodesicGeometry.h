#pragma once
#include "platform/cartography/KTMultiPointGeometry.h"

#include <cstddef>

/// The shortest path on the WGS 84 ellipsoid between two positions, as a line of points that are equally far
/// apart.
class KTGeodesicGeometry final : public KTMultiPointGeometry {
public:
    /// Half way around the Earth in steps of a kilometre is some 20,000 points.
    static constexpr std::size_t kMaximumPoints = 25'000;

    /// The line from @p start to @p end in steps of at most @p resolution metres, or longer ones where it
    /// would have more than kMaximumPoints points. It has at least two points.
    ///
    /// It begins at @p start and ends at @p end exactly, except that longitudes run on across the 180°
    /// meridian: from 179° east to 179° west it ends at 181. Only at a pole do they jump.
    ///
    /// Empty when a number is infinite or not a number, a latitude lies outside ±90, a longitude outside
    /// ±360, or the resolution is not positive. Throws nothing.
    KTGeodesicGeometry(KTMapPoint start, KTMapPoint end, double resolution);
};
