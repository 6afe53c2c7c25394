#pragma once
#include "platform/common/KTValue.h"
#include "platform/gazetteer/RoundedPosition.h"

#include <list>

/// The places found last, up to a number; the one that was not asked for longest makes room. One thread at a
/// time.
class PlaceCache {
public:
    explicit PlaceCache(std::size_t largestSize) : capacity(largestSize) {}

    /// Null when not known; valid until the next call.
    const KTValue::Dictionary* find(RoundedPosition position);
    /// @p position must not be known yet.
    void insert(RoundedPosition position, KTValue::Dictionary place);

private:
    struct Entry {
        RoundedPosition position;
        KTValue::Dictionary place;
    };

    std::size_t capacity;
    std::list<Entry> entries; // the one asked for last at the front
    std::map<RoundedPosition, std::list<Entry>::iterator> byPosition;
};
