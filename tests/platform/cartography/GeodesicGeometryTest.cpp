#include "platform/cartography/KTGeodesicGeometry.h"
#include "platform/geodesy/KTGeodesy.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

double distance(KTMapPoint from, KTMapPoint to) {
    return KTEarthDistance(from.x, from.y, to.x, to.y);
}

double bearing(KTMapPoint from, KTMapPoint to) {
    return KTInitialBearingBetweenPoints(from.x, from.y, to.x, to.y);
}

/// Every point lies in equal steps on the shortest path, and no longitude jumps but at a pole.
void expectGeodesic(KTMapPoint start, KTMapPoint end, double resolution) {
    SCOPED_TRACE(testing::Message() << start.x << ", " << start.y << " to " << end.x << ", " << end.y);
    const KTGeodesicGeometry line(start, end, resolution);
    const auto points = line.points();
    const double length = distance(start, end);
    const double steps = std::max(1.0, std::ceil(length / resolution));
    ASSERT_EQ(points.size(), steps + 1);
    EXPECT_EQ(points.front(), start);
    EXPECT_EQ(points.back().y, end.y);
    EXPECT_DOUBLE_EQ(std::remainder(points.back().x - end.x, 360), 0);
    for (std::size_t i = 1; i < points.size(); ++i) {
        EXPECT_NEAR(distance(points[i - 1], points[i]), length / steps, 1e-3);
        EXPECT_NEAR(distance(start, points[i]), length * double(i) / steps, 1e-3);
        const bool atPole = std::abs(points[i].y) > 89 || std::abs(points[i - 1].y) > 89;
        EXPECT_TRUE(atPole || std::abs(points[i].x - points[i - 1].x) < 90) << i;
    }
}

TEST(GeodesicGeometry, FollowsTheShortestPath) {
    expectGeodesic({8.5, 47.4}, {-70.6, -33.4}, 100'000);
    expectGeodesic({-122.4, 37.8}, {139.7, 35.7}, 100'000); // to the west, over the 180° meridian
    expectGeodesic({139.7, 35.7}, {-122.4, 37.8}, 100'000); // and back
    expectGeodesic({190, 10}, {150, -10}, 50'000);
    expectGeodesic({-180, 60}, {180, 62}, 10'000);
    expectGeodesic({0, 0}, {179.7, 0.2}, 100'000); // almost to the other side of the Earth
    expectGeodesic({20, 70}, {-160, 75}, 10'000);  // through the north pole
    expectGeodesic({20, 60}, {140, 90}, 100'000);
    expectGeodesic({-50, -90}, {140, -60}, 100'000);
    expectGeodesic({8.5, 47.4}, {8.5005, 47.4}, 1000);
    expectGeodesic({8.5, 47.4}, {8.5, 47.4}, 1000);

    const KTMapPoint zurich{8.5, 47.4}, tokyo{139.7, 35.7};
    EXPECT_NEAR(bearing(zurich, KTGeodesicGeometry(zurich, tokyo, 1000).points()[1]), bearing(zurich, tokyo),
                1e-6);
}

TEST(GeodesicGeometry, LongitudesRunOnAcrossThe180DegreeMeridian) {
    EXPECT_EQ(KTGeodesicGeometry({179, 10}, {-179, 10}, 10'000).points().back().x, 181);
    EXPECT_EQ(KTGeodesicGeometry({-179, 10}, {179, 10}, 10'000).points().back().x, -181);
    EXPECT_EQ(KTGeodesicGeometry({-360, 10}, {360, 10}, 10'000).points().back().x, -360);
}

TEST(GeodesicGeometry, TheNumberOfPointsIsBounded) {
    const KTGeodesicGeometry line({0, 0}, {120, 40}, 1e-300);
    EXPECT_EQ(line.points().size(), KTGeodesicGeometry::kMaximumPoints);
    EXPECT_EQ(line.points().back(), (KTMapPoint{120, 40}));
    EXPECT_LE(KTGeodesicGeometry({0, 0}, {180, 0}, 1000).points().size(), KTGeodesicGeometry::kMaximumPoints);
    EXPECT_EQ(KTGeodesicGeometry({0, 0}, {180, 0}, 1e300).points().size(), 2U);
}

TEST(GeodesicGeometry, WhatIsNoPositionOrResolutionGivesAnEmptyLine) {
    const KTMapPoint good{10, 20};
    for (KTMapPoint bad : {KTMapPoint{NAN, 0}, KTMapPoint{0, NAN}, KTMapPoint{INFINITY, 0},
                           KTMapPoint{0, -INFINITY}, KTMapPoint{0, 90.001}, KTMapPoint{360.001, 0}}) {
        EXPECT_TRUE(KTGeodesicGeometry(bad, good, 1000).isEmpty());
        EXPECT_TRUE(KTGeodesicGeometry(good, bad, 1000).isEmpty());
    }
    for (double resolution : {0.0, -1000.0, double(NAN), double(INFINITY)})
        EXPECT_TRUE(KTGeodesicGeometry(good, {11, 21}, resolution).isEmpty());
}

} // namespace
