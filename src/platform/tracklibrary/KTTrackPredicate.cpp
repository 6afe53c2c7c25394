#include "platform/tracklibrary/KTTrackPredicate.h"

#include <algorithm>
#include <iterator>

KTTrackPredicate operator|(const KTTrackPredicate& left, const KTTrackPredicate& right) {
    KTTrackPredicate either{.meansEverything = left.meansEverything || right.meansEverything};
    std::ranges::set_union(left.sources, right.sources, std::back_inserter(either.sources));
    std::vector<KTTrackPredicate::Span> spans;
    std::ranges::merge(left.spans, right.spans, std::back_inserter(spans), {}, &KTTrackPredicate::Span::first,
                       &KTTrackPredicate::Span::first);
    for (const KTTrackPredicate::Span& span : spans) {
        if (either.spans.empty() || either.spans.back().last < span.first)
            either.spans.push_back(span);
        else
            either.spans.back().last = std::max(either.spans.back().last, span.last);
    }
    return either;
}

bool KTTrackPredicate::matches(KTInstant first, KTInstant last) const {
    if (meansEverything)
        return true;
    auto candidate = std::ranges::lower_bound(spans, first, {}, &Span::last);
    return candidate != spans.end() && candidate->first <= last;
}

bool KTTrackPredicate::matchesSource(std::int64_t source) const {
    return meansEverything || std::ranges::binary_search(sources, source);
}

bool KTTrackPredicate::matches(const KTTrack& track) const {
    return matchesSource(track.source) ||
           (track.firstDate && track.lastDate && matches(*track.firstDate, *track.lastDate));
}
