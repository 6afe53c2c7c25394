#include "geotagging/KTGeotaggingVerdict.h"

#include "platform/geodesy/KTGeodesy.h"

#include <limits>

namespace {

using enum KTGeotaggingVerdict;

/// The verdict by which restrictions are on; within a row by how the photo does: [distance passes][time
/// passes].
struct Row {
    bool usesDistance, usesTime, needsBoth;
    KTGeotaggingVerdict verdicts[2][2];
};

constexpr Row kVerdicts[] = {
    {false, false, false, {{Accepted, Accepted}, {Accepted, Accepted}}},
    {false, true, false, {{TimeCriteriaFailure, Accepted}, {TimeCriteriaFailure, Accepted}}},
    {true, false, false, {{DistanceCriteriaFailure, DistanceCriteriaFailure}, {Accepted, Accepted}}},
    {true, true, false, {{TimeAndDistanceFailure, Accepted}, {Accepted, Accepted}}},
    {true, true, true, {{TimeAndDistanceFailure, DistanceCriteriaFailure}, {TimeCriteriaFailure, Accepted}}},
};

bool isWithin(double seconds, KTInstant instant, const std::optional<KTTrackNeighbour>& point) {
    return point && point->date && KTSecondsBetween(instant, *point->date) < seconds;
}

double degrees(const std::optional<KTDecimal>& coordinate) {
    return coordinate ? coordinate->toDouble() : std::numeric_limits<double>::quiet_NaN();
}

} // namespace

KTTrackNeighbour::KTTrackNeighbour(const KTGeoPoint& point)
    : date(point.date), longitude(degrees(point.longitude)), latitude(degrees(point.latitude)) {}

KTGeotaggingVerdict KTVerdictForCriteria(const KTGeotaggingCriteria& criteria, bool distancePasses,
                                         bool timePasses) {
    const bool usesDistance = criteria.shouldUseDistanceRestriction,
               usesTime = criteria.shouldUseTimeRestriction;
    const bool needsBoth = usesDistance && usesTime && criteria.shouldANDRestrictions;
    for (const Row& row : kVerdicts)
        if (row.usesDistance == usesDistance && row.usesTime == usesTime && row.needsBoth == needsBoth)
            return row.verdicts[distancePasses ? 1 : 0][timePasses ? 1 : 0];
    return Accepted; // the table holds every combination
}

KTGeotaggingVerdict KTJudgePhoto(const KTGeotaggingCriteria& criteria, bool hasPosition,
                                 const std::optional<KTInstant>& dateTimeOriginal,
                                 const KTTrackNeighbours& neighbours) {
    if (criteria.shouldIgnorePreviouslyTaggedPhotos && hasPosition)
        return PreviouslyGeotagged;
    if (!dateTimeOriginal)
        return NoDateTimeOriginal;
    const auto& [preceding, next] = neighbours;
    const bool distancePasses = criteria.shouldUseDistanceRestriction && preceding && next &&
                                KTEarthDistance(preceding->longitude, preceding->latitude, next->longitude,
                                                next->latitude) <= criteria.distanceRestriction;
    const bool timePasses = isWithin(criteria.timeRestriction, *dateTimeOriginal, preceding) ||
                            isWithin(criteria.timeRestriction, *dateTimeOriginal, next);
    return KTVerdictForCriteria(criteria, distancePasses, timePasses);
}
