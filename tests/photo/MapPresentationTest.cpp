#include "photo/KTLinkablePoint.h"
#include "photo/KTLinkablePointBubble.h"
#include "platform/common/KTTimeZoneManager.h"
#include "platform/common/KTUnitConverter.h"
#include "platform/gazetteer/KTGazetteer.h"
#include "tests/photo/PhotoFixture.h"
#include "tests/support/FakeReverseGeocoder.h"

using MapPresentation = PhotoFixture;

TEST_F(MapPresentation, APlaceIsProvisionalUntilItIsSaved) {
    const auto file = makePhoto(folder, "a.jpg", {});
    TrackedPhoto photo = openWithUndo(file);
    EXPECT_EQ(photo->featureValues(), KTFeatureValues());
    photo->setValueForKey("caption", "An edit of something else");
    EXPECT_FALSE(photo->featureValues().isProvisional);
    photo->setValuesForKeysWithDictionary({{"latitude", *KTDecimal::fromText("47.5")},
                                           {"longitude", *KTDecimal::fromText("7.5")},
                                           {"imageDirection", 270},
                                           {"latitudeShown", 48},
                                           {"longitudeShown", 8}},
                                          "Geotag Photos");
    EXPECT_EQ(
        photo->featureValues(),
        (KTFeatureValues{.imageDirection = 270, .placeShown = KTMapPoint{8, 48}, .isProvisional = true}));
    photo->saveWithBackupToFolder({});
    EXPECT_FALSE(photo->hasUnsavedChanges());
    EXPECT_FALSE(photo->featureValues().isProvisional);
    photo->setValueForKey("longitude", 9);
    EXPECT_TRUE(photo->featureValues().isProvisional);
}

TEST_F(MapPresentation, ABubbleTellsOfACandidate) {
    auto fake = std::make_shared<FakeReverseGeocoder>(
        KTPlaceAnswer{.place = {{"city", "Basel"}, {"country", "Switzerland"}}}, "Places");
    KTGazetteer::sharedGazetteer().setSelectedReverseGeocoder(fake);
    fake->release();
    KTUnitConverter::sharedUnitConverter().setDistanceUnits(KTUnitConverter::Units::Metric);
    KTTimeZoneManager::sharedTimeZoneManager().setTimeZone(KTTimeZone::fixed(7200));
    const auto photo = KTPhoto::init();
    const KTInstant taken = KTInstantFromMilliseconds(1401616800000); // 2014-06-01, 10:00 UTC
    photo->setDateTimeOriginal(taken + std::chrono::minutes(2));
    const auto decimal = [](const char* text) { return *KTDecimal::fromText(text); };
    const auto point = KTLinkablePoint::initWithGeoPoint(
        KTGeoPoint{taken, decimal("-47.5543"), decimal("7.5901"), decimal("260")},
        KTLinkablePointTypePreceding, photo);
    point->waitUntilLocationDescriptionFetchIsCompleted();
    const auto bubble = KTLinkablePointBubble::of(*point);
    EXPECT_EQ(bubble.title, "Preceding track point");
    EXPECT_EQ(bubble.description, "2 minutes before photo.");
    EXPECT_NE(bubble.date.find("12:00:00"), std::string::npos) << bubble.date;
    EXPECT_EQ(bubble.position, "47.55430° S, 7.59010° E, 260 m");
    EXPECT_EQ(bubble.place, "Basel, Switzerland");
    EXPECT_EQ(bubble.lines().size(), 4u);
    EXPECT_TRUE(point->featureValues().isProvisional);
    EXPECT_EQ(point->featureValues().pointType, 1u);

    const auto nowhere = KTLinkablePoint::initWithGeoPoint({}, KTLinkablePointTypeMapPoint, nullptr);
    EXPECT_TRUE(KTLinkablePointBubble::of(*nowhere).position.empty());
}
