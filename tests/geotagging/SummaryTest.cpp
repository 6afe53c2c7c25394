#include "geotagging/KTGeotaggingSummary.h"

#include "platform/common/KTUnitConverter.h"

#include <gtest/gtest.h>

namespace {

KTGeotaggingSummary summaryOf(const KTGeotaggingCounters& counters) {
    KTGeotaggingCriteria criteria;
    criteria.timeRestriction = 300.9;
    return KTGeotaggingSummary::summaryOf(counters, criteria);
}

TEST(GeotaggingSummary, FailuresOfOneKindNameTheRestrictionAndGiveATip) {
    const auto& converter = KTUnitConverter::sharedUnitConverter();
    const std::string time = converter.roundedDescriptionFromSeconds(300);
    const std::string distance = converter.roundedDefaultDistanceDescriptionFromMeters(25);
    struct Case {
        KTGeotaggingCounters counters;
        std::string title, description, tip;
    };
    const Case cases[] = {
        {{.timeCriteriaFailures = 1},
         "Unable To Geotag 1 Photo",
         "1 photo is more than " + time + " from the nearest track point.",
         "Tip: Try adjusting the camera's time zone."},
        {{.timeCriteriaFailures = 12},
         "Unable To Geotag 12 Photos",
         "12 photos are more than " + time + " from the nearest track point.",
         "Tip: Try adjusting the camera's time zone."},
        {{.distanceCriteriaFailures = 1},
         "Unable To Geotag 1 Photo",
         "1 photo is not between points less than " + distance + " apart.",
         "Tip: Edit the distance criteria or even manually geotag the photos."},
        {{.distanceCriteriaFailures = 2},
         "Unable To Geotag 2 Photos",
         "2 photos are not between points less than " + distance + " apart.",
         "Tip: Edit the distance criteria or even manually geotag the photos."},
        {{.timeAndDistanceFailures = 3},
         "Unable To Geotag 3 Photos",
         "3 photos fail both the time and distance critieria.",
         "Tip: Edit the distance or time criteria; or manually geotag the photos."},
        {{.noDateTimeOriginalFailures = 1},
         "Unable To Geotag 1 Photo",
         "1 photo does not have a time stamp.",
         "Tip: Use the date & time setter to add a time to the photo."},
    };
    for (const Case& c : cases) {
        const KTGeotaggingSummary summary = summaryOf(c.counters);
        EXPECT_TRUE(summary.hasFailures && summary.hasFailureTip);
        EXPECT_EQ(summary.failureTitle, c.title);
        EXPECT_EQ(summary.failureDescription, c.description);
        EXPECT_EQ(summary.failureTip, c.tip);
    }
}

TEST(GeotaggingSummary, FailuresOfSeveralKindsAreListed) {
    const KTGeotaggingSummary three = summaryOf(
        {.noDateTimeOriginalFailures = 3, .timeCriteriaFailures = 2, .distanceCriteriaFailures = 1});
    EXPECT_EQ(three.failureTitle, "Unable To Geotag 6 Photos");
    EXPECT_EQ(three.failureDescription,
              "2 photos failed the time criteria, 1 photo failed the distance criteria and "
              "3 photos do not have stamps.");
    EXPECT_FALSE(three.hasFailureTip);
    EXPECT_EQ(three.failureTip, "");
    EXPECT_EQ(summaryOf({.noDateTimeOriginalFailures = 1, .timeAndDistanceFailures = 2}).failureDescription,
              "2 photos failed both the time & distance criteria and 1 photo does not have a time stamp.");
}

TEST(GeotaggingSummary, SuccessesAndPhotosThatHaveAPosition) {
    const KTGeotaggingSummary none = summaryOf({});
    EXPECT_FALSE(none.hasSuccesses || none.hasFailures || none.hasAlreadyGeotagged || none.hasFailureTip);
    EXPECT_EQ(none.successButtonTitle, "Geotag Photos");
    EXPECT_EQ(none.successTitle + none.successDescription + none.failureDescription +
                  none.alreadyGeotaggedDescription,
              "");

    const KTGeotaggingSummary one = summaryOf({.totalSuccesses = 1, .previouslyGeotaggedFailures = 1});
    EXPECT_TRUE(one.hasSuccesses && one.hasAlreadyGeotagged && !one.hasFailures);
    EXPECT_EQ(one.successTitle, "Proposed Locations");
    EXPECT_EQ(one.successDescription, "1 photo can be geotagged.");
    EXPECT_EQ(one.successButtonTitle, "Geotag 1 Photo");
    EXPECT_EQ(one.alreadyGeotaggedDescription, "1 photo already geotagged.");

    const KTGeotaggingSummary many = summaryOf({.totalSuccesses = 40, .previouslyGeotaggedFailures = 7});
    EXPECT_EQ(many.successDescription, "40 photos can be geotagged");
    EXPECT_EQ(many.successButtonTitle, "Geotag 40 Photos");
    EXPECT_EQ(many.alreadyGeotaggedDescription, "7 photos already geotagged.");
}

} // namespace
