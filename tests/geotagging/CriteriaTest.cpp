#include "geotagging/KTGeotaggingCriteria.h"

#include "platform/defaults/KTUserDefaults.h"

#include <gtest/gtest.h>

namespace {

TEST(GeotaggingCriteria, ComeFromTheSettings) {
    KTUserDefaults defaults;
    auto usual = KTGeotaggingCriteria::criteriaFromDefaults(defaults);
    EXPECT_TRUE(usual.shouldUseTimeRestriction && usual.shouldIgnorePreviouslyTaggedPhotos);
    EXPECT_EQ(usual.timeRestriction, 300);
    EXPECT_EQ(usual.distanceRestriction, 25);

    for (auto key : {"shouldUseDistanceRestriction", "shouldANDRestrictions", "shouldUseTimeWeightedAverage"})
        defaults.setValue(key, true);
    for (auto key : {"shouldUseTimeRestriction", "shouldIgnorePreviouslyTaggedPhotos"})
        defaults.setValue(key, false);
    defaults.setValue("timeRestriction", KTDecimal::fromDouble(12.5));
    defaults.setValue("distanceRestriction", -1);
    auto changed = KTGeotaggingCriteria::criteriaFromDefaults(defaults);
    EXPECT_TRUE(changed.shouldUseDistanceRestriction && changed.shouldANDRestrictions);
    EXPECT_TRUE(changed.shouldUseTimeWeightedAverage);
    EXPECT_FALSE(changed.shouldUseTimeRestriction || changed.shouldIgnorePreviouslyTaggedPhotos);
    EXPECT_EQ(changed.timeRestriction, 12.5);
    EXPECT_EQ(changed.distanceRestriction, 0);
}

} // namespace
