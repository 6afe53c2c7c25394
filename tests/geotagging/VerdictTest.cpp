#include "geotagging/KTGeotaggingCounters.h"

#include "platform/geodesy/KTGeodesy.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck.h>

namespace {

using enum KTGeotaggingVerdict;
using Choice = std::optional<KTPointChoice>;

constexpr KTInstant kTaken = KTInstantFromMilliseconds(1'400'000'000'000);

/// A track point @p seconds after the photo was taken.
KTGeoPoint pointAt(double seconds, double latitude = 48, double longitude = 11) {
    KTGeoPoint point;
    point.date = kTaken + std::chrono::milliseconds(std::llround(seconds * 1000));
    point.latitude = KTDecimal::fromDouble(latitude);
    point.longitude = KTDecimal::fromDouble(longitude);
    return point;
}

struct Fate {
    KTGeotaggingVerdict verdict;
    Choice choice;
    bool operator==(const Fate&) const = default;
};

Fate fateOf(const KTGeotaggingCriteria& criteria, const KTTrackNeighbours& neighbours) {
    const KTGeotaggingVerdict verdict = KTJudgePhoto(criteria, false, kTaken, neighbours);
    return {verdict, verdict == Accepted ? KTChoosePoint(criteria, kTaken, neighbours) : std::nullopt};
}

TEST(GeotaggingVerdict, FollowsFromWhichRestrictionsAreOnAndMet) {
    struct Case {
        bool usesDistance, usesTime, needsBoth, distancePasses, timePasses;
        KTGeotaggingVerdict expected;
    };
    constexpr bool no = false, yes = true;
    const Case cases[] = {
        {no, no, no, no, no, Accepted},
        {no, no, yes, no, no, Accepted},
        {no, yes, no, no, yes, Accepted},
        {no, yes, yes, no, no, TimeCriteriaFailure},
        {no, yes, no, yes, no, TimeCriteriaFailure},
        {yes, no, yes, yes, no, Accepted},
        {yes, no, no, no, yes, DistanceCriteriaFailure},
        {yes, yes, no, yes, no, Accepted},
        {yes, yes, no, no, yes, Accepted},
        {yes, yes, no, yes, yes, Accepted},
        {yes, yes, no, no, no, TimeAndDistanceFailure},
        {yes, yes, yes, yes, yes, Accepted},
        {yes, yes, yes, no, yes, DistanceCriteriaFailure},
        {yes, yes, yes, yes, no, TimeCriteriaFailure},
        {yes, yes, yes, no, no, TimeAndDistanceFailure},
    };
    for (const Case& c : cases) {
        KTGeotaggingCriteria criteria;
        criteria.shouldUseDistanceRestriction = c.usesDistance;
        criteria.shouldUseTimeRestriction = c.usesTime;
        criteria.shouldANDRestrictions = c.needsBoth;
        EXPECT_EQ(KTVerdictForCriteria(criteria, c.distancePasses, c.timePasses), c.expected)
            << c.usesDistance << c.usesTime << c.needsBoth << c.distancePasses << c.timePasses;
    }
}

TEST(GeotaggingVerdict, LimitsOfTheRestrictions) {
    const KTGeotaggingCriteria usual;
    EXPECT_EQ(fateOf(usual, {pointAt(-240), pointAt(600)}), (Fate{Accepted, KTPointChoice::Preceding}));
    EXPECT_EQ(fateOf(usual, {pointAt(-600), pointAt(299.999)}), (Fate{Accepted, KTPointChoice::Next}));
    EXPECT_EQ(fateOf(usual, {pointAt(-300), pointAt(301)}).verdict, TimeCriteriaFailure);
    EXPECT_EQ(fateOf(usual, {}).verdict, TimeCriteriaFailure);

    KTGeotaggingCriteria near = usual;
    near.shouldUseDistanceRestriction = true;
    near.shouldUseTimeRestriction = false;
    near.distanceRestriction = KTEarthDistance(11, 48, 11, 48.001);
    EXPECT_EQ(fateOf(near, {pointAt(-9999), pointAt(9998, 48.001)}), (Fate{Accepted, KTPointChoice::Next}));
    near.distanceRestriction = std::nextafter(near.distanceRestriction, 0.0);
    EXPECT_EQ(fateOf(near, {pointAt(-1), pointAt(1, 48.001)}).verdict, DistanceCriteriaFailure);
    EXPECT_EQ(fateOf(near, {pointAt(-1), std::nullopt}).verdict, DistanceCriteriaFailure);
    near.distanceRestriction = KTGeotaggingCriteria::restrictionFromInput(-5);
    EXPECT_EQ(fateOf(near, {pointAt(-1), pointAt(1)}).verdict, Accepted);
    KTGeoPoint incomplete = pointAt(1);
    incomplete.longitude.reset();
    near.distanceRestriction = std::numeric_limits<double>::max();
    EXPECT_EQ(fateOf(near, {pointAt(-1), incomplete}).verdict, DistanceCriteriaFailure);
    EXPECT_EQ(KTGeotaggingCriteria::restrictionFromInput(std::nan("")), 0);
}

TEST(GeotaggingVerdict, PhotosWithoutADateOrWithAPosition) {
    KTGeotaggingCriteria criteria;
    const KTTrackNeighbours neighbours = {pointAt(-1), pointAt(1)};
    EXPECT_EQ(KTJudgePhoto(criteria, true, std::nullopt, neighbours), PreviouslyGeotagged);
    EXPECT_EQ(KTJudgePhoto(criteria, false, std::nullopt, neighbours), NoDateTimeOriginal);
    criteria.shouldIgnorePreviouslyTaggedPhotos = false;
    EXPECT_EQ(KTJudgePhoto(criteria, true, kTaken, neighbours), Accepted);
}

TEST(PointChoice, TiesSingleNeighboursAndNone) {
    KTGeotaggingCriteria anything;
    anything.shouldUseTimeRestriction = false;
    EXPECT_EQ(fateOf(anything, {pointAt(-60), pointAt(60)}).choice, KTPointChoice::Preceding);
    EXPECT_EQ(fateOf(anything, {}), (Fate{Accepted, std::nullopt}));
    anything.shouldUseTimeWeightedAverage = true;
    EXPECT_EQ(fateOf(anything, {pointAt(-60), pointAt(10)}).choice, KTPointChoice::TimeWeighted);
    EXPECT_EQ(fateOf(anything, {std::nullopt, pointAt(10)}).choice, KTPointChoice::Next);
    EXPECT_EQ(fateOf(anything, {pointAt(-10), std::nullopt}).choice, KTPointChoice::Preceding);
}

/// The rules once more, step by step as one would explain them.
KTGeotaggingVerdict explainedVerdict(const KTGeotaggingCriteria& c, const std::optional<double>& before,
                                     const std::optional<double>& after, double metres) {
    const bool nearInTime = (before && *before < c.timeRestriction) || (after && *after < c.timeRestriction);
    const bool nearInSpace = before && after && metres <= c.distanceRestriction;
    if (c.shouldUseTimeRestriction && c.shouldUseDistanceRestriction) {
        if (c.shouldANDRestrictions ? nearInTime && nearInSpace : nearInTime || nearInSpace)
            return Accepted;
        if (nearInTime)
            return DistanceCriteriaFailure;
        return nearInSpace ? TimeCriteriaFailure : TimeAndDistanceFailure;
    }
    if (c.shouldUseTimeRestriction && !nearInTime)
        return TimeCriteriaFailure;
    return c.shouldUseDistanceRestriction && !nearInSpace ? DistanceCriteriaFailure : Accepted;
}

TEST(GeotaggingVerdict, AgreesWithTheRulesAsExplained) {
    const bool agrees = rc::check("verdict and choice for random photos", [] {
        KTGeotaggingCriteria c;
        c.shouldUseTimeRestriction = *rc::gen::arbitrary<bool>();
        c.shouldUseDistanceRestriction = *rc::gen::arbitrary<bool>();
        c.shouldANDRestrictions = *rc::gen::arbitrary<bool>();
        c.shouldUseTimeWeightedAverage = *rc::gen::arbitrary<bool>();
        c.timeRestriction = *rc::gen::inRange(0, 8);
        const double step = KTEarthDistance(11, 48, 11, 48.0001);
        c.distanceRestriction = step * *rc::gen::inRange(0, 5) + step / 2;
        KTTrackNeighbours neighbours;
        std::optional<double> before, after;
        const int apart = *rc::gen::inRange(0, 5);
        if (*rc::gen::arbitrary<bool>())
            neighbours.preceding = pointAt(-*(before = *rc::gen::inRange(1, 8)));
        if (*rc::gen::arbitrary<bool>())
            neighbours.next = pointAt(*(after = *rc::gen::inRange(0, 8)), 48 + apart * 0.0001);

        const Fate fate = fateOf(c, neighbours);
        RC_ASSERT(fate.verdict == explainedVerdict(c, before, after, apart * step));
        if (fate.verdict != Accepted)
            return;
        if (before && after && c.shouldUseTimeWeightedAverage)
            RC_ASSERT(fate.choice == KTPointChoice::TimeWeighted);
        else if (before && (!after || *before <= *after))
            RC_ASSERT(fate.choice == KTPointChoice::Preceding);
        else
            RC_ASSERT(fate.choice == (after ? Choice(KTPointChoice::Next) : std::nullopt));
    });
    EXPECT_TRUE(agrees);
}

TEST(GeotaggingCounters, CountEveryPhotoOnce) {
    KTGeotaggingCounters counters;
    for (auto choice : {Choice(KTPointChoice::Preceding), Choice(KTPointChoice::Next),
                        Choice(KTPointChoice::TimeWeighted), Choice()})
        counters.count(Accepted, choice);
    for (auto verdict : {PreviouslyGeotagged, NoDateTimeOriginal, TimeCriteriaFailure,
                         DistanceCriteriaFailure, DistanceCriteriaFailure, TimeAndDistanceFailure})
        counters.count(verdict, std::nullopt);
    const KTGeotaggingCounters expected = {.totalSuccesses = 3,
                                           .totalPreceding = 1,
                                           .totalNext = 1,
                                           .previouslyGeotaggedFailures = 1,
                                           .noDateTimeOriginalFailures = 1,
                                           .timeCriteriaFailures = 1,
                                           .distanceCriteriaFailures = 2,
                                           .timeAndDistanceFailures = 1};
    EXPECT_EQ(counters, expected);
    EXPECT_EQ(counters.totalFailures(), 6u);
}

KTGeoPoint textPoint(const char* latitude, const char* longitude, const char* elevation, int seconds) {
    KTGeoPoint point = pointAt(seconds);
    point.latitude = KTDecimal::fromText(latitude);
    point.longitude = KTDecimal::fromText(longitude);
    point.elevation = KTDecimal::fromText(elevation);
    return point;
}

TEST(TimeWeightedPosition, KeepsTheDecimalsOfBothPoints) {
    const KTGeoPoint before = textPoint("48.10000001", "11.1", "500.5", -30),
                     after = textPoint("48.2", "-10.7", "480.3", 90);
    auto middle = KTTimeWeightedPosition(before, after, kTaken);
    ASSERT_TRUE(middle);
    EXPECT_EQ(middle->latitude->toText(), "48.1250000075"); // a quarter of the way
    EXPECT_EQ(middle->longitude->toText(), "5.65");
    EXPECT_EQ(middle->elevation->toText(), "495.45");
    EXPECT_FALSE(middle->date);

    auto exact = KTTimeWeightedPosition(before, textPoint("48.123456789012345", "11.2", "", 0), kTaken);
    ASSERT_TRUE(exact);
    EXPECT_EQ(exact->latitude->toText(), "48.123456789012345");
    EXPECT_EQ(exact->longitude->toText(), "11.2");
    EXPECT_FALSE(exact->elevation);
}

TEST(TimeWeightedPosition, OddNeighbours) {
    const KTGeoPoint west = textPoint("0", "179", "1", -10), east = textPoint("0", "-179", "1", 10);
    EXPECT_EQ(KTTimeWeightedPosition(west, east, kTaken)->longitude->toText(), "0");
    KTGeoPoint twin = west, dateless = east, halved = east;
    twin.latitude = KTDecimal::fromInteger(9);
    EXPECT_EQ(KTTimeWeightedPosition(west, twin, *west.date)->latitude->toText(),
              "0"); // no time span to share
    dateless.date.reset();
    halved.longitude.reset();
    EXPECT_FALSE(KTTimeWeightedPosition(west, dateless, kTaken));
    EXPECT_FALSE(KTTimeWeightedPosition(halved, east, kTaken));
}

} // namespace
