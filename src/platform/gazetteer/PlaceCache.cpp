#include "platform/gazetteer/PlaceCache.h"

const KTValue::Dictionary* PlaceCache::find(RoundedPosition position) {
    auto found = byPosition.find(position);
    if (found == byPosition.end())
        return nullptr;
    entries.splice(entries.begin(), entries, found->second);
    return &found->second->place;
}

void PlaceCache::insert(RoundedPosition position, KTValue::Dictionary place) {
    entries.push_front({position, std::move(place)});
    byPosition[position] = entries.begin();
    if (entries.size() > capacity) {
        byPosition.erase(entries.back().position);
        entries.pop_back();
    }
}
