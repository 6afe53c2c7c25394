#include "platform/tracklibrary/KTTrackPointSearch.h"

#include "platform/tracklibrary/KTTrackStore.h"

std::optional<KTGeoPoint> KTTrackPointSearch::pointPrecedingTime(KTInstant time) const {
    std::optional<KTGeoPoint> best;
    for (const KTTrackStore* store : stores) {
        auto found = store->pointPrecedingTime(time);
        if (found && (!best || *found->date > *best->date))
            best = std::move(found);
    }
    return best;
}

std::optional<KTGeoPoint> KTTrackPointSearch::pointFollowingTime(KTInstant time) const {
    std::optional<KTGeoPoint> best;
    for (const KTTrackStore* store : stores) {
        auto found = store->pointFollowingTime(time);
        if (found && (!best || *found->date < *best->date))
            best = std::move(found);
    }
    return best;
}

std::int64_t KTTrackPointSearch::countOfDatedPoints(std::int64_t limit) const {
    std::int64_t count = 0;
    for (const KTTrackStore* store : stores)
        count += store->countOfDatedPoints(limit - count);
    return count;
}
