#pragma once
#include "platform/cartography/KTGeometry.h"

/// A position on the flat map of the whole world: x runs from 0 at 180° west to 1 at 180° east, y from 0 in
/// the north to 1 in the south. A position may stand for one of the world's repetitions: those east of the
/// first have x from 1 on.
struct KTWorldPoint {
    double x = 0, y = 0;
    bool operator==(const KTWorldPoint&) const = default;
};

/// A part of the flat map; its x may lie outside 0 to 1.
struct KTWorldRect {
    double left = 0, top = 0, right = 0, bottom = 0;

    double width() const { return right - left; }
    double height() const { return bottom - top; }
    KTWorldPoint centre() const { return {(left + right) / 2, (top + bottom) / 2}; }
    bool contains(KTWorldPoint point) const {
        return point.x >= left && point.x <= right && point.y >= top && point.y <= bottom;
    }
    bool contains(const KTWorldRect& other) const {
        return other.left >= left && other.right <= right && other.top >= top && other.bottom <= bottom;
    }
    bool operator==(const KTWorldRect&) const = default;
};

/// The map is square: it ends at this latitude, in degrees, north and south.
inline constexpr double kKTMapMaximumLatitude = 85.05112877980659;

/// The spherical Mercator projection that web maps share (EPSG:3857). Longitudes run on: 190° is at x 1.03.
/// Latitudes beyond the map's end are taken there. Any thread.
KTWorldPoint KTProject(KTMapPoint position);
/// The inverse; y outside 0 to 1 gives latitudes beyond the map's end.
KTMapPoint KTUnproject(KTWorldPoint point);
/// A longitude, in degrees, as one of [-180, 180).
double KTNormalizedLongitude(double longitude);
