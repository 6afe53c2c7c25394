#pragma once
#include "geotagging/KTGeotaggingCriteria.h"
#include "platform/tracklibrary/KTGeoPoint.h"

/// What becomes of a photo under the criteria.
enum class KTGeotaggingVerdict {
    Accepted,
    PreviouslyGeotagged,
    NoDateTimeOriginal,
    TimeCriteriaFailure,
    DistanceCriteriaFailure,
    TimeAndDistanceFailure,
};

/// A track point as the criteria see it: its decimals are made doubles once, photos are judged often.
struct KTTrackNeighbour {
    KTTrackNeighbour(const KTGeoPoint& point);

    std::optional<KTInstant> date;
    double longitude, latitude; ///< degrees; not-a-number where the point has none
};

/// The track points around a photo's capture instant, as the track library's two searches give them.
struct KTTrackNeighbours {
    std::optional<KTTrackNeighbour> preceding; ///< the last one before the instant
    std::optional<KTTrackNeighbour> next;      ///< the first one at or after it
};

/// The verdict where it is known which restrictions are met; one that is off is not looked at.
KTGeotaggingVerdict KTVerdictForCriteria(const KTGeotaggingCriteria& criteria, bool distancePasses,
                                         bool timePasses);

/// Judges a photo taken at @p dateTimeOriginal that has a position already or not. A neighbour without a date
/// never meets the time restriction, one without a position never the distance restriction. Pure; any thread.
KTGeotaggingVerdict KTJudgePhoto(const KTGeotaggingCriteria& criteria, bool hasPosition,
                                 const std::optional<KTInstant>& dateTimeOriginal,
                                 const KTTrackNeighbours& neighbours);
