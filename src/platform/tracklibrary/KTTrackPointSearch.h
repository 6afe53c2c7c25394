#pragma once
#include "platform/tracklibrary/KTGeoPoint.h"

class KTTrackStore;

/// Searches several track stores as if they were one: the user's library and, for one run, further tracks
/// beside it. The stores outlive the search. Any thread.
class KTTrackPointSearch {
public:
    /// Of points at the same instant, those of earlier stores of the list win.
    explicit KTTrackPointSearch(std::vector<const KTTrackStore*> searched) : stores(std::move(searched)) {}

    /// The last point with a position dated before @p time.
    std::optional<KTGeoPoint> pointPrecedingTime(KTInstant time) const;
    /// The first point with a position dated at or after @p time.
    std::optional<KTGeoPoint> pointFollowingTime(KTInstant time) const;
    /// How many points have a date, counted up to @p limit.
    std::int64_t countOfDatedPoints(std::int64_t limit = INT64_MAX) const;

private:
    std::vector<const KTTrackStore*> stores;
};
