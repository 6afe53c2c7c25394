#include "platform/geodesy/KTGeodesy.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

struct Path {
    double longitude1, latitude1, longitude2, latitude2;
    double metres, bearing;
};

// A degree of the equator is a*pi/180 and its quarter meridian 10001965.729 m; the long paths are the
// library's published examples.
const Path kPaths[] = {
    {0, 0, 1, 0, 111319.490793, 90},
    {1, 0, 0, 0, 111319.490793, 270},
    {8, 0, 8, 90, 10001965.729, 0},
    {8, 90, 8, 0, 10001965.729, 180},
    {8, 0, 8, -90, 10001965.729, 180},
    {-73.8, 40.6, -0.5, 51.6, 5551759.400, 51.198883},
    {174.81, -41.32, -5.50, 40.96, 19959679.267, 161.067670}, // almost antipodes
    {179.9, 0, -179.9, 0, 22263.898159, 90},                  // across the antimeridian
    {-179.9, 0, 179.9, 0, 22263.898159, 270},
    {540.1, 0, 179.9, 0, 22263.898159, 270}, // 540.1 is -179.9
    {8.3064, 47.0502, 8.3064, 47.0502, 0, 0},
    {0, -90, 90, -90, 0, 0}, // a pole has every longitude
};

TEST(GeodesyTest, DistanceAndBearing) {
    for (const Path& path : kPaths) {
        SCOPED_TRACE(testing::Message() << path.longitude1 << ", " << path.latitude1 << " to "
                                        << path.longitude2 << ", " << path.latitude2);
        EXPECT_NEAR(KTEarthDistance(path.longitude1, path.latitude1, path.longitude2, path.latitude2),
                    path.metres, 0.001);
        EXPECT_NEAR(
            KTInitialBearingBetweenPoints(path.longitude1, path.latitude1, path.longitude2, path.latitude2),
            path.bearing, 0.000001);
    }
}

TEST(GeodesyTest, BearingsStayBelow360) {
    for (double east : {-1e-5, -1e-10, -1e-13, -1e-14, -1e-300, -0.0}) {
        const double bearing = KTInitialBearingBetweenPoints(0, 10, east, 20);
        EXPECT_TRUE(bearing >= 0 && bearing < 360) << east << " gives " << bearing;
        EXPECT_FALSE(std::signbit(bearing)) << east;
    }
}

TEST(GeodesyTest, WhatIsNoPositionHasNoDistance) {
    for (double bad : {kNaN, kInfinity, -kInfinity}) {
        EXPECT_TRUE(std::isnan(KTEarthDistance(bad, 1, 2, 3)));
        EXPECT_TRUE(std::isnan(KTEarthDistance(0, 1, 2, bad)));
        EXPECT_TRUE(std::isnan(KTInitialBearingBetweenPoints(0, bad, 2, 3)));
        EXPECT_TRUE(std::isnan(KTInitialBearingBetweenPoints(0, 1, bad, 3)));
    }
    EXPECT_TRUE(std::isnan(KTEarthDistance(0, 90.001, 2, 3)));
    EXPECT_TRUE(std::isnan(KTInitialBearingBetweenPoints(0, 1, 2, -91)));
}

} // namespace
