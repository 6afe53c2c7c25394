#include "platform/cartography/KTMapBounds.h"
#include "platform/cartography/KTMapViewState.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>

namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

rc::Gen<double> within(double from, double to) {
    return rc::gen::map(rc::gen::inRange(0, 1'000'001),
                        [=](int part) { return from + (to - from) * part / 1e6; });
}

} // namespace

TEST(MapProjection, knownPlaces) {
    // Tile numbers of web maps: at zoom 10, Basel lies in tile 533 / 357.
    const KTWorldPoint basel = KTProject({7.5886, 47.5596});
    EXPECT_EQ(std::floor(basel.x * 1024), 533);
    EXPECT_EQ(std::floor(basel.y * 1024), 357);
    EXPECT_NEAR(KTProject({0, 90}).y, 0, 1e-12);
    EXPECT_NEAR(KTProject({0, -90}).y, 1, 1e-12);
    EXPECT_EQ(KTNormalizedLongitude(180), -180);
    EXPECT_EQ(KTNormalizedLongitude(541), -179);
    EXPECT_LT(KTNormalizedLongitude(-180 - 1e-15), 180);
}

RC_GTEST_PROP(MapViewState, everyStateIsSoundAndGoesBothWays, ()) {
    const KTMapViewState state({*within(-400, 400), *within(-95, 95)}, *within(-3, 22), *within(1, 4000),
                               *within(1, 3000), *within(0.5, 3));
    const KTWorldRect visible = state.visibleRect();
    RC_ASSERT(visible.top >= -1e-12 && visible.bottom <= 1 + 1e-12);
    RC_ASSERT(state.worldCentre().x >= 0 && state.worldCentre().x < 1);
    RC_ASSERT(state.zoom() <= KTMapViewState::kMaximumZoom || state.height() > 1e8);

    const KTViewPoint point{*within(0, state.width()), *within(0, state.height())};
    const KTViewPoint back = state.viewPoint(state.worldPoint(point));
    RC_ASSERT(std::hypot(back.x - point.x, back.y - point.y) < 1e-3);

    // Zooming keeps the place under the pointer, as far as the map's ends allow.
    const KTMapViewState zoomed = state.zoomedTo(state.zoom() + *within(0, 2), point);
    const KTWorldPoint before = state.worldPoint(point), after = zoomed.worldPoint(point);
    RC_ASSERT(std::abs(std::remainder(before.x - after.x, 1)) * zoomed.worldSize() < 1e-3);
    RC_ASSERT(std::abs(before.y - after.y) * zoomed.worldSize() < 1e-3);
}

TEST(MapViewState, hostileNumbers) {
    for (const double number : {kNone, HUGE_VAL, -HUGE_VAL}) {
        const KTMapViewState state({number, number}, number, number, number, number);
        EXPECT_EQ(state, KTMapViewState({0, 0}, 0, 1, 1, 1));
        EXPECT_EQ(state.pannedBy(number, number), state);
        EXPECT_EQ(state.zoomedTo(number), state);
    }
}

TEST(MapViewState, worldRepeatsAcrossTheDateLine) {
    const KTMapViewState fiji({179.9, -17}, 8, 1000, 600);
    EXPECT_LT(fiji.viewPoint(KTMapPoint{-179.9, -17}).x, 1000);
    EXPECT_GT(fiji.viewPoint(KTMapPoint{-179.9, -17}).x, 500);
    EXPECT_NEAR(fiji.position({600, 300}).x, -180 + (100 / fiji.worldSize() * 360 - 0.1), 1e-9);
    const auto turns = fiji.visibleTurns();
    EXPECT_EQ(turns.first, 0);
    EXPECT_EQ(turns.last, 1);
    const auto ofEurope = fiji.visibleTurns(0.5, 0.55);
    EXPECT_GT(ofEurope.first, ofEurope.last);

    const KTMapViewState world({0, 0}, 0, 1600, 250);
    EXPECT_EQ(world.visibleTurns().first, -3);
    EXPECT_EQ(world.visibleTurns().last, 3);
    // Panned around the world, one is where one was.
    EXPECT_NEAR(fiji.pannedBy(fiji.worldSize(), 0).centre().x, 179.9, 1e-9);
    EXPECT_NEAR(fiji.pannedBy(-100, 0).centre().x, -180.1 + 360 * (100 / fiji.worldSize()), 1e-9);
}

TEST(MapViewState, endsAtThePoles) {
    const KTMapViewState north = KTMapViewState({20, 90}, 4, 800, 600).pannedBy(0, 5000);
    EXPECT_NEAR(north.viewPoint(KTMapPoint{20, 90}).y, 0, 1e-6);
    EXPECT_NEAR(north.widenedBy(100).visibleRect().top, -100 / north.worldSize(), 1e-12);
    EXPECT_GE(KTMapViewState({0, 0}, 0, 100, 2000).worldSize(), 2000);
}

TEST(MapViewState, scaleDenominator) {
    // The known value for zoom 0 at the equator is 559,082,264 with pixels of 0.28 mm.
    EXPECT_NEAR(KTMapViewState({0, 0}, 0, 1, 1).scaleDenominator(), 559'082'264 * 0.28 / (25.4 / 96),
                500'000);
    EXPECT_NEAR(KTMapViewState({0, 60}, 5, 1, 1).metresPerPixel() * 2,
                KTMapViewState({0, 0}, 5, 1, 1).metresPerPixel(), 0.01);
}

TEST(MapBounds, smallestBoxAroundPoints) {
    using Points = std::vector<KTMapPoint>;
    const auto bounds = [](const Points& points) { return KTMapBounds::ofPoints(points); };
    EXPECT_EQ(bounds({}), std::nullopt);
    EXPECT_EQ(bounds({{kNone, 0}, {0, 91}}), std::nullopt);
    EXPECT_EQ(bounds({{7, 47}}), (KTMapBounds{7, 47, 7, 47}));
    EXPECT_EQ(bounds({{179, -17}, {-179, -18}, {181, -16}}), (KTMapBounds{179, -18, 181, -16}));
    EXPECT_EQ(bounds({{-100, 40}, {2, 48}, {100, 35}}), (KTMapBounds{-100, 35, 100, 48}));
    EXPECT_EQ(bounds({{170, 0}, {-100, 0}, {-20, 0}, {10, 0}}), (KTMapBounds{170, 0, 370, 0}));
    Points everywhere;
    for (int longitude = -180; longitude < 180; ++longitude)
        everywhere.push_back({static_cast<double>(longitude), 0});
    EXPECT_LE(bounds(everywhere)->east - bounds(everywhere)->west, 360);
}
