#include "geotagging/KTAppTrackPickerController.h"
#include "geotagging/KTGeotaggingController.h"
#include "geotagging/KTPhotoMatchController.h"
#include "platform/common/KTTimeZoneManager.h"
#include "tests/geotagging/GeotaggingWorld.h"

#include <gtest/gtest.h>

namespace {

using World = GeotaggingWorld;

KTGeotaggingFate fateOf(std::optional<double> taken, std::optional<double> before,
                        std::optional<double> after, KTGeotaggingVerdict verdict) {
    auto point = [](std::optional<double> seconds, KTLinkablePointType type) -> KTLinkedPoints::Point {
        if (!seconds)
            return nullptr;
        return KTLinkablePoint::initWithGeoPoint(
            KTGeoPoint{.date = World::at(*seconds),
                       .latitude = KTDecimal(),
                       .longitude = World::degrees(type == KTLinkablePointTypeNext ? 10 : 0)},
            type);
    };
    auto links = std::make_shared<KTLinkedPoints>();
    if (taken)
        links->instant = World::at(*taken);
    links->preceding = point(before, KTLinkablePointTypePreceding);
    links->next = point(after, KTLinkablePointTypeNext);
    return {.photo = KTPhoto::init(), .links = links, .verdict = verdict};
}

TEST(PhotoMatchTest, SaysWhyAPhotoIsRefused) {
    using enum KTGeotaggingVerdict;
    const KTTimeZone zone = KTTimeZone::fixed(7200);
    KTGeotaggingCriteria criteria;
    auto texts = [&](const KTGeotaggingFate& fate) {
        return KTPhotoMatchTexts::textsOf(fate, criteria, zone);
    };

    const auto late = texts(fateOf(7500, 0, std::nullopt, TimeCriteriaFailure));
    EXPECT_EQ(late.status, "No match: nearest track point 2 hours 5 minutes away");
    EXPECT_EQ(late.explanation, "The photo is more than 5 minutes from the nearest track point.\n"
                                "Photo: 2014-06-01 14:05:00 UTC (2014-06-01 16:05:00 +02:00)\n"
                                "Nearest track point: 2014-06-01 12:00:00 UTC (2014-06-01 14:00:00 +02:00)\n"
                                "2 hours 5 minutes before photo.");
    criteria.shouldUseDistanceRestriction = true;
    const auto wide = texts(fateOf(60, 0, 90, DistanceCriteriaFailure));
    EXPECT_EQ(wide.status, "No match: track points too far apart");
    EXPECT_NE(wide.explanation.find("30 seconds after photo."), std::string::npos) << wide.explanation;
    EXPECT_NE(wide.explanation.find("before and after it are 111 m apart."), std::string::npos)
        << wide.explanation;
    EXPECT_EQ(texts(fateOf(60, 0, 90, Accepted)).status, "Track point 30 seconds away");
    EXPECT_EQ(texts(fateOf({}, {}, {}, NoDateTimeOriginal)).status, "No capture date");
    EXPECT_EQ(texts(fateOf(60, {}, {}, TimeCriteriaFailure)).status, "No track points");
    EXPECT_EQ(texts(fateOf(60, 0, 90, PreviouslyGeotagged)).status, "");
    KTGeotaggingFate linking{.photo = KTPhoto::init(), .links = nullptr, .verdict = TimeCriteriaFailure};
    EXPECT_EQ(texts(linking).status, "Looking for track points…");
    EXPECT_EQ(texts(linking).explanation, "Looking for track points…")
        << "nothing is said that may change at once";
}

TEST(PhotoMatchTest, FollowsCriteriaEditsAndTracks) {
    World world;
    KTAppTrackPickerController picker(world.tracks);
    picker.setPhotoManager(&world.manager);
    picker.setup();
    KTGeotaggingController geotagging(world.controller, picker, world.batches);
    geotagging.setup();
    KTPhotoMatchController matches(geotagging);
    matches.setup();
    const auto near = world.add(10), far = world.add(5000), undated = world.add({});
    auto status = [&](const World::Photo& photo) { return matches.textsOfPhoto(photo).status; };
    auto comesTo = [&](const World::Photo& photo, std::string_view text) {
        return runEventLoopUntil([&] { return status(photo) == text; });
    };
    EXPECT_TRUE(comesTo(near, "No track points"));
    const auto first = world.importTrack({0, 60}), second = world.importTrack({9000}, 20);
    EXPECT_TRUE(comesTo(near, "Track point 10 seconds away"));
    EXPECT_TRUE(comesTo(far, "No match: nearest track point 1 hour 7 minutes away")) << status(far);
    EXPECT_TRUE(comesTo(undated, "No capture date"));
    EXPECT_TRUE(matches.isFarFromTracks(far));
    EXPECT_FALSE(matches.isFarFromTracks(near));
    EXPECT_EQ(matches.matchedPhotosOfTrack(first[0]), 1u);
    EXPECT_EQ(matches.matchedPhotosOfTrack(second[0]), 0u);

    World::set("timeRestriction", 6000);
    EXPECT_TRUE(runEventLoopUntil([&] { return matches.matchedPhotosOfTrack(second[0]) == 1; }));
    EXPECT_FALSE(matches.isFarFromTracks(far));
    near->setDateTimeOriginal(World::at(50));
    EXPECT_TRUE(runEventLoopUntil([&] {
        const auto& links = matches.fateOfPhoto(near)->links;
        return links && links->instant == World::at(50);
    }));
    world.tracks.deleteTracks(first);
    EXPECT_TRUE(runEventLoopUntil([&] { return matches.matchedPhotosOfTrack(first[0]) == 0; }));
    world.manager.removePhotos({far});
    EXPECT_TRUE(runEventLoopUntil([&] { return matches.fateOfPhoto(far) == nullptr; }));
    matches.tearDown();
    geotagging.tearDown();
}

} // namespace
