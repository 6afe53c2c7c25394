#include "platform/cartography/drawing/KTScaleBarLayer.h"

#include <gtest/gtest.h>

TEST(ScaleBar, standsForRoundDistances) {
    using Units = KTUnitConverter::Units;
    const KTMapViewState state({0, 0}, 10, 800, 600); // 152.87 m a pixel
    const auto distance = [&](double zoom, Units units) {
        return KTScaleBarLayer::roundDistance(state.zoomedTo(zoom), 120, units);
    };
    EXPECT_EQ(distance(10, Units::Metric), 10'000);
    EXPECT_EQ(distance(17, Units::Metric), 100);
    EXPECT_NEAR(distance(10, Units::Imperial), 10 * 1609.344, 1e-6);
    EXPECT_NEAR(distance(15, Units::Imperial), 1000 * 0.3048, 1e-6);
    EXPECT_NEAR(distance(10, Units::Nautical), 5 * 1852, 1e-6);
    EXPECT_EQ(distance(15, Units::Nautical), 500);
    // The same pixels are fewer metres further north.
    EXPECT_EQ(KTScaleBarLayer::roundDistance(KTMapViewState({0, 70}, 10, 800, 600), 120, Units::Metric),
              5000);
}
