#pragma once
#include <span>

/// A position on the map in degrees: x the longitude, east positive, y the latitude, north positive.
struct KTMapPoint {
    double x = 0, y = 0;
    bool operator==(const KTMapPoint&) const = default;
};

/// Where a feature is on the map. This base class is the geometry of a feature that is nowhere. Immutable,
/// held by `std::shared_ptr<const KTGeometry>`; safe on every thread.
class KTGeometry {
public:
    KTGeometry() = default;
    virtual ~KTGeometry() = default;
    KTGeometry(const KTGeometry&) = delete;
    KTGeometry& operator=(const KTGeometry&) = delete;

    /// Every point, in order; valid as long as the geometry.
    virtual std::span<const KTMapPoint> points() const { return {}; }
    bool isEmpty() const { return points().empty(); }
};
