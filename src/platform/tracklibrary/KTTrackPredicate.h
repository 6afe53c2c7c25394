#pragma once
#include "platform/tracklibrary/KTTrack.h"

#include <vector>

/// Which tracks or waypoints are meant: those of certain times, and those that certain imports brought,
/// whatever their dates. A value type.
struct KTTrackPredicate {
    struct Span {
        KTInstant first, last; ///< both belong to it
        bool operator==(const Span& other) const = default;
    };
    /// In order and apart from each other.
    std::vector<Span> spans = {};
    /// Imports, as KTTrack::source numbers them, ascending.
    std::vector<std::int64_t> sources = {};
    /// Everything is meant, whatever stands above.
    bool meansEverything = false;

    static KTTrackPredicate everything() { return {.meansEverything = true}; }
    /// What either of the two means.
    friend KTTrackPredicate operator|(const KTTrackPredicate& left, const KTTrackPredicate& right);

    /// Whether the time from @p first to @p last has an instant in common with a span.
    bool matches(KTInstant first, KTInstant last) const;
    bool matchesSource(std::int64_t source) const;
    /// A track whose time, from its first to its last dated point, has an instant in common with a span, or
    /// of one of the imports.
    bool matches(const KTTrack& track) const;
    bool operator==(const KTTrackPredicate& other) const = default;
};

/// What is near some dates.
struct KTNearbyPredicates {
    KTTrackPredicate trackPredicate, waypointPredicate;
};
