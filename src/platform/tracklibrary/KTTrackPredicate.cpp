#include "platform/tracklibrary/KTTrackPredicate.h"

#include <algorithm>

bool KTTrackPredicate::matches(KTInstant first, KTInstant last) const {
    auto candidate = std::ranges::lower_bound(spans, first, {}, &Span::last);
    return candidate != spans.end() && candidate->first <= last;
}
