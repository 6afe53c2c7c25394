#include "metadata/KTMetadataField.h"

#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTCalendar.h"
#include "platform/common/KTText.h"

namespace {

constexpr char kListSeparator = '|';
constexpr std::string_view kJoinedListSeparator = " | ";

KTValue textOf(const KTValue& value) {
    if (auto text = value.text())
        return KTTrimmed(*text).empty() ? KTValue() : value;
    if (auto number = value.number())
        return number->toText();
    std::vector<std::string> parts;
    if (auto list = value.list())
        for (const KTValue& element : *list)
            if (KTValue part = textOf(element); part.isSomething())
                parts.push_back(*part.text());
    return parts.empty() ? KTValue() : KTValue(KTJoin(parts, kJoinedListSeparator));
}

KTValue decimalOf(const KTValue& value) {
    if (value.isNumber())
        return value;
    if (!value.text())
        return {};
    std::string_view text = KTTrimmed(*value.text());
    if (KTEqualIgnoringCase(text, "true"))
        return 1;
    if (KTEqualIgnoringCase(text, "false"))
        return 0;
    return KTDecimal::fromPrefix(text.substr(0, text.find_first_of(" \t\r\n\v\f")));
}

KTValue componentsOf(const KTValue& value) {
    return value.text() ? KTDateComponents::dateComponentsWithString(*value.text()) : std::nullopt;
}

KTValue dateOf(const KTValue& value) {
    KTValue components = componentsOf(value);
    if (!components.isSomething())
        return {};
    auto zone = KTTimeZone::timeZoneWithString(*value.text());
    if (!zone)
        zone = KTMetadataFieldManager::sharedMetadataFieldManager().assumedTimeZone();
    return KTCalendar(*zone).dateFromComponents(*components.components());
}

/// Numbers, here and in lists that other programs wrote, are handed on as their decimal text.
KTValue elementOf(const KTValue& value) {
    auto number = value.number();
    return number ? KTValue(number->toText()) : value;
}

KTValue listOf(const KTValue& value) {
    KTValue::List result;
    if (auto text = value.text())
        for (const std::string& piece : KTSplit(*text, kListSeparator))
            result.emplace_back(KTTrimmed(piece, " \t"));
    else if (auto list = value.list())
        std::ranges::transform(*list, std::back_inserter(result), elementOf);
    else if (value.isSomething())
        result.push_back(elementOf(value));
    return result;
}

bool isEmptyList(const KTValue& value) {
    return value.list() && value.list()->empty();
}

/// @p value as it stands in a dictionary of changes.
KTValue recorded(KTValue value) {
    return value.isSomething() && !isEmptyList(value) ? value : KTValue::null();
}

bool isSameDecimal(const KTValue& left, const KTValue& right) {
    auto a = left.number(), b = right.number();
    return a && b && KTMetadataField::diffRoundingBehavior((*a - *b).abs()).isZero();
}

void recordChange(const KTValue& newValue, const KTValue& oldValue, std::string_view key,
                  KTTagDictionary& changes) {
    if (newValue == oldValue || isSameDecimal(newValue, oldValue))
        changes.remove(key);
    else
        changes.set(key, newValue);
}

} // namespace

KTValue KTMetadataField::coerceExifToolValue(const KTValue& value, KTValueType type) {
    switch (type) {
    case KTValueType::Text:
        return textOf(value);
    case KTValueType::Decimal:
        return decimalOf(value);
    case KTValueType::List:
        return listOf(value);
    case KTValueType::Date:
        return dateOf(value);
    case KTValueType::DateComponents:
        return componentsOf(value);
    case KTValueType::None:
        break;
    }
    return {};
}

void KTMetadataField::addValue(const KTValue& value, KTValueType type, std::string_view key,
                               KTTagDictionary& changes, const KTTagDictionary& existing) {
    KTValue oldValue = coerceExifToolValue(existing.valueForKey(key), type);
    recordChange(recorded(coerceExifToolValue(value, type)), recorded(oldValue), key, changes);
}

void KTMetadataField::replaceValue(const KTValue& value, KTValueType type, std::string_view key,
                                   KTTagDictionary& changes, const KTTagDictionary& existing) {
    if (existing.hasValue(key) && coerceExifToolValue(*existing.find(key), type).isSomething())
        addValue(value, type, key, changes, existing);
}

KTValue KTMetadataField::valueFromEXIFValue(const KTValue& exif, const KTValue& orXMPValue,
                                            const KTMetadataProperties& properties) {
    const KTValue& first = properties.hasEXIFBlock ? exif : orXMPValue;
    const KTValue& second = properties.hasEXIFBlock ? orXMPValue : exif;
    return first.isSomething() ? first : second;
}

KTValue KTMetadataField::valueFromIPTCValue(const KTValue& iptc, const KTValue& orXMPValue,
                                            const KTMetadataProperties& properties) {
    if (!properties.hasIPTCBlock)
        return orXMPValue;
    if (!properties.hasXMPBlock)
        return iptc;
    // A digest that does not match tells that a program changed the IPTC data and left XMP alone.
    if (properties.hasIPTCChecksum && !properties.iptcChecksumDoesMatch)
        return iptc;
    return orXMPValue.isSomething() && !isEmptyList(orXMPValue) ? orXMPValue : iptc;
}

KTValue KTMetadataField::valueFromEXIFValue(const KTValue& exif, const KTValue& orIPTCValue,
                                            const KTValue& orXMPValue,
                                            const KTMetadataProperties& properties) {
    KTValue fromEXIF = valueFromEXIFValue(exif, orXMPValue, properties);
    KTValue fromIPTC = valueFromIPTCValue(orIPTCValue, orXMPValue, properties);
    if (!fromIPTC.isSomething())
        return fromEXIF;
    if (!fromEXIF.isSomething())
        return fromIPTC;
    return properties.hasIPTCChecksum && !properties.iptcChecksumDoesMatch ? fromIPTC : fromEXIF;
}
