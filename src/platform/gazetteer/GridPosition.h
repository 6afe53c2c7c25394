#pragma once
#include <cstdint>

/// A position in whole hundred-thousandths of a degree (about a metre), WGS 84.
struct GridPosition {
    static constexpr std::int32_t kDegree = 100'000;
    static constexpr std::int32_t kTurn = 360 * kDegree;
    /// Mean radius of the earth in metres (IUGG, R1), on whose sphere distances are taken.
    static constexpr double kEarthRadius = 6371008.8;

    std::int32_t latitude = 0;  ///< within ±90 degrees
    std::int32_t longitude = 0; ///< within ±180 degrees

    /// From degrees; the latitude within ±90, the longitude finite: it is wrapped, to -180 at that meridian.
    static GridPosition fromDegrees(double latitude, double longitude);
    bool isValid() const;
    /// How far east of this position the longitude of @p other is, the short way round: within ±180 degrees.
    /// Here for the compiler: a search asks it of every place in a band of latitude.
    std::int32_t eastwardTo(GridPosition other) const {
        const std::int32_t east = other.longitude - longitude;
        return east > kTurn / 2 ? east - kTurn : east < -kTurn / 2 ? east + kTurn : east;
    }
    /// Metres along the great circle, on a sphere of the earth's mean radius: at most 0.6 % beside the
    /// ellipsoid's. Haversine formula, precise also for near positions.
    double distanceTo(GridPosition other) const;
};
