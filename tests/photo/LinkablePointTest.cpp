#include "photo/KTLinkablePoint.h"

#include "platform/cartography/KTGeometry.h"
#include "platform/common/KTUnitConverter.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/gazetteer/KTGazetteer.h"
#include "tests/photo/PhotoFixture.h"
#include "tests/support/FakeReverseGeocoder.h"

#include <thread>

namespace {

const KTPlaceAnswer kBasel{
    .place = {{"city", "Basel"}, {"state", "Basel-City"}, {"country", "Switzerland"}, {"countryCode", "CH"}}};

class LinkablePoint : public PhotoFixture {
protected:
    void SetUp() override {
        PhotoFixture::SetUp();
        gazetteer.setSelectedReverseGeocoder(fake);
        photo = KTPhoto::init();
        photo->setDateTimeOriginal(taken);
    }
    void TearDown() override { // the gazetteer's thread is done with the points of this test
        fake->release();
        gazetteer.setSelectedReverseGeocoder(fake);
        point()->waitUntilLocationDescriptionFetchIsCompleted();
    }

    static KTGeoPoint at(std::optional<KTInstant> date) {
        return {date, *KTDecimal::fromText("47.56"), *KTDecimal::fromText("7.59"), {}};
    }
    std::shared_ptr<KTLinkablePoint> point(KTLinkablePointType type = KTLinkablePointTypeNext) {
        return KTLinkablePoint::initWithGeoPoint(at(taken), type, photo);
    }

    KTGazetteer& gazetteer = KTGazetteer::sharedGazetteer();
    std::shared_ptr<FakeReverseGeocoder> fake = std::make_shared<FakeReverseGeocoder>(kBasel, "Places");
    const KTInstant taken = KTInstantFromMilliseconds(1401616800000);
    std::shared_ptr<KTPhoto> photo;
};

} // namespace

TEST_F(LinkablePoint, IsDescribedRelativeToItsPhoto) {
    auto file = makePhoto(folder, "a.jpg", {});
    photo = KTPhoto::initWithFile(file);
    photo->setDateTimeOriginal(taken);
    auto made = [&](KTLinkablePointType type, double seconds) {
        return KTLinkablePoint::initWithGeoPoint(
            at(KTInstantFromMilliseconds(1401616800000 + std::int64_t(seconds * 1000))), type, photo);
    };
    const auto before = made(KTLinkablePointTypePreceding, -90.6);
    EXPECT_EQ(before->pointTitle(), "Preceding track point");
    EXPECT_EQ(before->pointDescription(), "1 minute 30 seconds before photo.");
    EXPECT_EQ(before->pointLongDescription(), "1 minute 30 seconds before a.jpg.");
    const auto after = made(KTLinkablePointTypeNext, 1);
    EXPECT_EQ(after->pointLongDescription(), "1 second after a.jpg.");
    EXPECT_EQ(before->featureName() + "/" + after->featureName(), "Preceding point/Next point");
    EXPECT_EQ(after->kind() + "/" + after->featureDescription(), "Linkable Point/No Description.");
    const auto map = made(KTLinkablePointTypeMapPoint, 5);
    EXPECT_EQ(map->pointTitle() + map->pointDescription() + map->pointLongDescription(), "");
    EXPECT_EQ(map->photoName(), "a.jpg");

    KTUnitConverter& units = KTUnitConverter::sharedUnitConverter();
    units.setDistanceUnits(KTUnitConverter::Units::Metric);
    const auto between = KTLinkablePoint::initWithGeoPoint({}, KTLinkablePointTypeTimeWeighted, photo);
    EXPECT_EQ(between->featureName(), "Time weighted average point");
    between->setPrecedingDistance(1609.344);
    EXPECT_EQ(between->pointDescription(), "1.6 km from preceding track point and 0 m to next track point");
    between->setNextDistance(8046.72);
    int announcements = 0;
    const auto observation = between->observe([&](const KTChange& change) {
        announcements += change.key == "pointDescription" && !change.isPrior;
    });
    units.setDistanceUnits(KTUnitConverter::Units::Imperial);
    EXPECT_EQ(between->pointLongDescription(),
              "1 mi from preceding track point and 5 mi to next track point for a.jpg");
    EXPECT_EQ(announcements, 1);
    before->updateDescriptions();
    EXPECT_EQ(before->pointDescription(), "1 minute 30 seconds before photo.");
}

TEST_F(LinkablePoint, WithoutAPositionIsNowhereAndHasNoPlace) {
    KTGeoPoint source = at(taken);
    source.latitude = KTDecimal::notANumber();
    const auto nowhere = KTLinkablePoint::initWithGeoPoint(source, KTLinkablePointTypePreceding, photo);
    EXPECT_FALSE(nowhere->latitude());
    EXPECT_TRUE(nowhere->geometry()->isEmpty());
    EXPECT_EQ(nowhere->city(), "");
    EXPECT_TRUE(nowhere->requestCompleted());
    EXPECT_FALSE(nowhere->requestFailure());
    EXPECT_TRUE(fake->asked().empty());
    EXPECT_EQ(point()->geometry()->points().front(), (KTMapPoint{7.59, 47.56}));
}

TEST_F(LinkablePoint, SaysThatItAsksUntilTheAnswerComes) {
    fake->hold();
    const auto asking = point();
    EXPECT_FALSE(asking->requestMade());
    EXPECT_EQ(asking->city(), "Fetching the city from Places…");
    EXPECT_EQ(asking->state(), "Fetching the state from Places…");
    EXPECT_EQ(asking->country(), "Fetching the country from Places…");
    EXPECT_EQ(asking->locationDescription(), "Fetching the location description from Places…");
    KTLatch told;
    const auto observation = asking->observe([&](const KTChange& change) {
        if (change.key == "country" && !change.isPrior)
            told.signal();
    });
    fake->release();
    told.wait();
    EXPECT_EQ(asking->city() + asking->state() + asking->country(), "BaselBasel-CitySwitzerland");
    EXPECT_EQ(asking->locationDescription(), "Basel, Basel-City, Switzerland");
    EXPECT_EQ(fake->asked(), (std::vector<std::pair<double, double>>{{47.56, 7.59}})) << "asked once";
}

TEST_F(LinkablePoint, AsksAnotherGeocoderOnlyWhatWasAsked) {
    const auto asked = point(), unasked = point(), slow = point();
    const auto plain = KTLinkablePoint::initWithGeoPoint(at({}), KTLinkablePointTypeMapPoint);
    asked->waitUntilLocationDescriptionFetchIsCompleted();
    plain->waitUntilLocationDescriptionFetchIsCompleted();
    fake->hold();
    slow->fetchLocationDescription();
    fake->waitForQuestions(3);

    const auto other =
        std::make_shared<FakeReverseGeocoder>(KTPlaceAnswer{.place = {{"city", "Bâle"}}}, "Lieux");
    other->hold();
    gazetteer.setSelectedReverseGeocoder(other);
    fake->release();
    other->waitForQuestions(1); // so the other one's answer has come
    EXPECT_FALSE(slow->requestCompleted()) << "not the answer of the former geocoder";
    EXPECT_EQ(asked->city(), "Fetching the city from Lieux…");
    other->release();
    for (const auto& again : {asked, slow}) {
        again->waitUntilLocationDescriptionFetchIsCompleted();
        EXPECT_EQ(again->locationDescription(), "Bâle");
    }
    EXPECT_FALSE(unasked->requestMade());
    EXPECT_EQ(plain->city(), "Basel");
}

TEST_F(LinkablePoint, AWaitEndsWithTheAnswerOrWhenItIsStopped) {
    fake->hold();
    const auto asked = point();
    std::atomic<int> announcements = 0;
    KTLatch stopped, answered;
    {
        std::jthread waiting([&] {
            asked->waitUntilLocationDescriptionFetchIsCompleted();
            stopped.signal();
        });
        fake->waitForQuestions(1);
        const auto observation = asked->observe(
            [&](const KTChange& change) { announcements += change.key == "city" && !change.isPrior; });
        asked->stopWaiting();
        stopped.wait();
        EXPECT_EQ(announcements, 1);
    }
    EXPECT_EQ(asked->city(), "");
    EXPECT_EQ(asked->requestFailure(), "Places did not answer in time.");
    const auto observation = asked->observe([&](const KTChange& change) {
        if (change.key == "country" && !change.isPrior)
            answered.signal();
    });
    fake->release();
    answered.wait();
    EXPECT_EQ(asked->city(), "Basel") << "a late answer is still taken";
    EXPECT_FALSE(asked->requestFailure());

    fake->hold(); // the answer needs the main thread, which waits for it
    const auto other = point();
    const auto needsMain = other->observe([](const KTChange& change) {
        if (change.key == "city" && change.isPrior)
            KTPerformOnMainThreadAndWait([] {});
    });
    std::jthread releasing([&] { KTPerformOnMainThreadAndWait([&] { fake->release(); }); });
    other->waitUntilLocationDescriptionFetchIsCompleted();
    EXPECT_EQ(other->city(), "Basel");
}

TEST_F(LinkablePoint, MayBeReadWhileGeocodersAndUnitsChange) {
    std::vector<std::shared_ptr<KTLinkablePoint>> points;
    for (int i = 0; i < 20; ++i)
        points.push_back(point(i % 2 == 0 ? KTLinkablePointTypeTimeWeighted : KTLinkablePointTypeNext));
    std::vector<std::jthread> readers;
    std::atomic<bool> isOver = false;
    for (int reader = 0; reader < 2; ++reader)
        readers.emplace_back([&] {
            while (!isOver)
                for (const auto& read : points) {
                    read->waitUntilLocationDescriptionFetchIsCompleted();
                    const std::string shown = read->locationDescription() + read->pointDescription();
                    EXPECT_FALSE(shown.empty());
                    EXPECT_FALSE(read->geometry()->isEmpty());
                }
        });
    readers.emplace_back([&] { // as a linker fills its points
        while (!isOver) {
            const auto filled =
                KTLinkablePoint::initWithGeoPoint(at({}), KTLinkablePointTypeTimeWeighted, photo);
            filled->setPrecedingDistance(1);
            filled->setNextDistance(2);
        }
    });
    for (int round = 0; round < 50; ++round) {
        gazetteer.setSelectedReverseGeocoder(
            std::make_shared<FakeReverseGeocoder>(kBasel, std::to_string(round)));
        KTUnitConverter::sharedUnitConverter().setDistanceUnits(
            round % 2 == 0 ? KTUnitConverter::Units::Imperial : KTUnitConverter::Units::Metric);
    }
    isOver = true;
    readers.clear();
    for (const auto& read : points) {
        read->waitUntilLocationDescriptionFetchIsCompleted();
        EXPECT_EQ(read->city(), "Basel");
    }
    readers.emplace_back([&] { points.clear(); }); // points go while the gazetteer announces
    gazetteer.setSelectedReverseGeocoder(fake);
    readers.clear();
}
