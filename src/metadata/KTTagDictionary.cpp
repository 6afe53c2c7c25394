#include "metadata/KTTagDictionary.h"

#include <algorithm>
#include <mutex>
#include <shared_mutex>
#include <unordered_set>

namespace {

struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
};

const std::string* pooledText(std::string_view text) {
    static std::shared_mutex mutex;
    using Pool = std::unordered_set<std::string, TextHash, std::equal_to<>>;
    static Pool& pool = *new Pool; // its elements never move; used until the last static object is gone
    {
        std::shared_lock guard(mutex);
        if (auto known = pool.find(text); known != pool.end())
            return &*known;
    }
    std::lock_guard guard(mutex);
    return &*pool.emplace(text).first;
}

std::string_view keyText(const KTTagDictionary::Entry& entry) {
    return entry.key.text();
}

} // namespace

KTTagKey::KTTagKey(std::string_view text) : pooled(pooledText(text)) {}

KTTagDictionary::KTTagDictionary(std::initializer_list<std::pair<std::string_view, KTValue>> tags) {
    for (const auto& [key, value] : tags)
        set(key, value);
}

KTTagDictionary::KTTagDictionary(std::vector<Entry> unsorted) : entries(std::move(unsorted)) {
    std::erase_if(entries, [](const Entry& entry) { return entry.value.isAbsent(); });
    std::ranges::stable_sort(entries, {}, keyText);
    // Of equal keys keep the last: walking backwards, the one that std::unique meets first.
    auto kept = std::unique(entries.rbegin(), entries.rend(),
                            [](const Entry& left, const Entry& right) { return left.key == right.key; });
    entries.erase(entries.begin(), kept.base());
}

const KTValue* KTTagDictionary::find(std::string_view key) const {
    auto place = std::ranges::lower_bound(entries, key, {}, keyText);
    return place != entries.end() && keyText(*place) == key ? &place->value : nullptr;
}

KTValue KTTagDictionary::valueForKey(std::string_view key) const {
    auto value = find(key);
    return value ? *value : KTValue();
}

bool KTTagDictionary::hasValue(std::string_view key) const {
    auto value = find(key);
    return value && value->isSomething();
}

void KTTagDictionary::set(std::string_view key, KTValue value) {
    if (value.isAbsent())
        return remove(key);
    auto place = std::ranges::lower_bound(entries, key, {}, keyText);
    if (place != entries.end() && keyText(*place) == key)
        place->value = std::move(value);
    else
        entries.insert(place, {KTTagKey(key), std::move(value)});
}

void KTTagDictionary::remove(std::string_view key) {
    auto place = std::ranges::lower_bound(entries, key, {}, keyText);
    if (place != entries.end() && keyText(*place) == key)
        entries.erase(place);
}
