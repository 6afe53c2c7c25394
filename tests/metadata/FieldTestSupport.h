#pragma once
#include "metadata/KTMetadataFieldManager.h"
#include "platform/defaults/KTUserDefaults.h"

#include <gtest/gtest.h>

using Tags = KTTagDictionary;
using Properties = KTMetadataProperties;
using enum KTValueType;

inline const KTValue kDelete = KTValue::null();
inline constexpr Properties kEXIF{.hasEXIFBlock = true};
inline constexpr Properties kXMPOnly{.hasXMPBlock = true};
inline constexpr Properties kAllBlocks{.hasEXIFBlock = true, .hasIPTCBlock = true, .hasXMPBlock = true};

/// Settings of their own, and the assumed zone at UTC+2.
class FieldTest : public testing::Test {
protected:
    void SetUp() override {
        KTUserDefaults::useThrowAwayDomain();
        KTMetadataFieldManager::sharedMetadataFieldManager().setAssumedTimeZone(KTTimeZone::fixed(7200));
    }
};

inline const KTMetadataField& field(std::string_view key) {
    auto found = KTMetadataFieldManager::sharedMetadataFieldManager().metadataFieldForKey(key);
    if (!found)
        throw std::invalid_argument(std::string(key));
    return *found;
}

inline KTValue read(std::string_view key, const Tags& tags, const Properties& properties = {}) {
    return field(key).valueFromExifToolDictionary(tags, properties);
}

/// The changes that setting @p key to @p value makes, beginning with @p changes.
inline Tags write(std::string_view key, const KTValue& value, const Tags& tags, const Properties& properties,
                  Tags changes = {}) {
    field(key).modifyExifToolChangesDictionary(changes, value, tags, properties);
    return changes;
}

inline KTValue number(const char* text) {
    return KTDecimal::fromText(text);
}

inline KTValue texts(const std::vector<std::string>& elements) {
    return KTValue::listOfTexts(elements);
}

inline KTDateComponents components(std::string_view text) {
    return KTDateComponents::dateComponentsWithString(text).value();
}

/// For readable failures.
inline std::string describe(const KTValue& value) {
    return value.isNull() ? "(delete)" : value.isAbsent() ? "(absent)" : value.description();
}
inline void PrintTo(const KTValue& value, std::ostream* out) {
    *out << describe(value);
}
inline void PrintTo(const KTTagDictionary& tags, std::ostream* out) {
    for (const auto& [key, value] : tags)
        *out << "\n  " << key.text() << " = " << describe(value);
}
