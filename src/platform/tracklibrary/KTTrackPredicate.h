#pragma once
#include "platform/common/KTInstant.h"

#include <vector>

/// Which tracks or waypoints are meant: those of certain times. A value type.
struct KTTrackPredicate {
    struct Span {
        KTInstant first, last; ///< both belong to it
        bool operator==(const Span& other) const = default;
    };
    /// In order and apart from each other; none means nothing.
    std::vector<Span> spans = {};

    /// Whether the time from @p first to @p last has an instant in common with a span.
    bool matches(KTInstant first, KTInstant last) const;
    bool operator==(const KTTrackPredicate& other) const = default;
};

/// What is near some dates.
struct KTNearbyPredicates {
    KTTrackPredicate trackPredicate, waypointPredicate;
};
