#pragma once
#include "geotagging/KTPointChoice.h"

#include <cstddef>

/// How many photos of one computation met which fate. A value type.
struct KTGeotaggingCounters {
    std::size_t totalSuccesses = 0; ///< photos with a chosen point
    std::size_t totalPreceding = 0; ///< of these, those that take the preceding point
    std::size_t totalNext = 0;      ///< … the next point
    std::size_t previouslyGeotaggedFailures = 0;
    std::size_t noDateTimeOriginalFailures = 0;
    std::size_t timeCriteriaFailures = 0;
    std::size_t distanceCriteriaFailures = 0;
    std::size_t timeAndDistanceFailures = 0;

    /// Counts a photo; an accepted one only when a point was chosen for it.
    void count(KTGeotaggingVerdict verdict, const std::optional<KTPointChoice>& choice);
    /// All photos counted that get no point, those already geotagged among them.
    std::size_t totalFailures() const;

    bool operator==(const KTGeotaggingCounters&) const = default;
};
