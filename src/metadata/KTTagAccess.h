#pragma once
#include "metadata/KTMetadataField.h"

/// Short forms for the field classes. Both refer to what they are given and live for one call.

/// Reads a file's tags with their precedences.
struct KTTagReading {
    const KTTagDictionary& tags;
    const KTMetadataProperties& properties;

    KTValue value(std::string_view key, KTValueType type) const {
        return KTMetadataField::coerceExifToolValue(tags.valueForKey(key), type);
    }
    KTValue text(std::string_view key) const { return value(key, KTValueType::Text); }
    KTValue decimal(std::string_view key) const { return value(key, KTValueType::Decimal); }
    KTValue components(std::string_view key) const { return value(key, KTValueType::DateComponents); }
    KTValue date(std::string_view key) const { return value(key, KTValueType::Date); }

    KTValue exifOrXMP(std::string_view exifKey, std::string_view xmpKey, KTValueType type) const {
        return KTMetadataField::valueFromEXIFValue(value(exifKey, type), value(xmpKey, type), properties);
    }
    /// The first of @p keys that reads as something.
    KTValue firstOf(std::initializer_list<std::string_view> keys, KTValueType type) const {
        for (std::string_view key : keys)
            if (KTValue result = value(key, type); result.isSomething())
                return result;
        return {};
    }
};

/// Records changes of a file's tags.
struct KTTagWriting {
    KTTagDictionary& changes;
    const KTTagDictionary& existing;
    const KTMetadataProperties& properties;

    void add(std::string_view key, const KTValue& value, KTValueType type = KTValueType::Text) const {
        KTMetadataField::addValue(value, type, key, changes, existing);
    }
    void replace(std::string_view key, const KTValue& value, KTValueType type = KTValueType::Text) const {
        KTMetadataField::replaceValue(value, type, key, changes, existing);
    }
};
