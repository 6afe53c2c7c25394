#pragma once
#include "platform/common/KTValue.h"

/// Order by one property.
struct KTSortDescriptor {
    std::string key;
    bool isAscending = true;
    bool operator==(const KTSortDescriptor&) const = default;
};

/// Negative, zero or positive as @p left comes before, with or after @p right where people look for things:
/// absent values first, numbers by value, dates by instant, texts as the user's language sorts them, without
/// regard to letter case, and numbers in texts by value ("IMG_2" before "IMG_10"). Different kinds have a
/// fixed order. Any thread.
int KTCompareForSorting(const KTValue& left, const KTValue& right);
