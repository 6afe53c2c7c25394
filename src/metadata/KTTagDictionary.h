#pragma once
#include "platform/common/KTValue.h"

#include <compare>
#include <initializer_list>
#include <vector>

/// The key of a metadata tag, group and name ("EXIF:Make"). Equal keys share one text of a pool that lives as
/// long as the process (the pool knows as many texts as there are different tags), so that keys are copied
/// and compared as pointers. Any thread.
class KTTagKey {
public:
    explicit KTTagKey(std::string_view text);

    const std::string& text() const { return *pooled; }
    operator std::string_view() const { return *pooled; }
    bool operator==(const KTTagKey&) const = default;
    std::strong_ordering operator<=>(const KTTagKey& other) const { return *pooled <=> *other.pooled; }

private:
    const std::string* pooled;
};

/// The tags of an image file, or changes of them, by key. In a dictionary of changes the null marker means
/// "delete this tag". A value type, compact and sorted by key; const use is safe on every thread.
class KTTagDictionary {
public:
    struct Entry {
        KTTagKey key;
        KTValue value;
        bool operator==(const Entry&) const = default;
    };
    using const_iterator = std::vector<Entry>::const_iterator;

    KTTagDictionary() = default;
    KTTagDictionary(std::initializer_list<std::pair<std::string_view, KTValue>> tags);
    /// From entries in any order; of several with one key the last wins. Faster than setting them one by one.
    explicit KTTagDictionary(std::vector<Entry> unsorted);

    /// The value of @p key, null when there is none. Valid until the dictionary changes.
    const KTValue* find(std::string_view key) const;
    /// The value of @p key, absent when there is none.
    KTValue valueForKey(std::string_view key) const;
    /// Whether @p key has a value other than the null marker.
    bool hasValue(std::string_view key) const;
    /// Sets @p key to @p value, replacing an earlier one. An absent value removes the key.
    void set(std::string_view key, KTValue value);
    void remove(std::string_view key);

    std::size_t size() const { return entries.size(); }
    bool empty() const { return entries.empty(); }
    const_iterator begin() const { return entries.begin(); } ///< in the order of the keys
    const_iterator end() const { return entries.end(); }

    bool operator==(const KTTagDictionary&) const = default;

private:
    std::vector<Entry> entries;
};
