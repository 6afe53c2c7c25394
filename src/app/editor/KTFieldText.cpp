#include "app/editor/KTFieldText.h"

#include "app/editor/KTHeightText.h"
#include "metadata/KTFormatter.h"
#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTCalendar.h"
#include "platform/common/KTCountryCodes.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/common/KTTimeZoneManager.h"

#include <algorithm>
#include <regex>

namespace {

using Parsed = KTFieldText::Parsed;

Parsed valueFor(const std::string& key, KTValue value) {
    return {[key, value = std::move(value)](const KTPhoto&) {
                return KTValue::Dictionary{{key, value}};
            },
            {}};
}

Parsed problem(std::string_view english) {
    return {nullptr, KTLocalizedString(english)};
}

bool isCountryCode(const KTMetadataField& field) {
    return field.key().starts_with("countryCode");
}

std::string isoText(const KTDateComponents& date) {
    std::string text = date.xmpString().value_or("");
    std::replace(text.begin(), text.begin() + std::ptrdiff_t(std::min<std::size_t>(text.size(), 10)), ':',
                 '-');
    return text;
}

/// Files may hold dates of all kinds, but "09:04:12" typed as a time is not the year 9.
bool isDate(std::string_view typed) {
    static const std::regex date(
        "[0-9]{4}([-:][0-9]{1,2}){0,2}"
        "([ T]+[0-9]{1,2}(:[0-9]{1,2}){0,2}(\\.[0-9]+)? *([Zz]|[-+][0-9]{2}:?[0-9]{2})?)?");
    return std::regex_match(typed.begin(), typed.end(), date);
}

KTTimeZone displayZone() {
    return KTTimeZoneManager::sharedTimeZoneManager().timeZone();
}

/// The reading of the photo's clock at @p instant.
KTDateComponents readingAt(KTInstant instant, const KTPhoto& photo, const std::string& key) {
    const KTValue present = photo.valueForKey(key);
    const bool hasZone = present.components() && present.components()->timeZone;
    return KTCalendar(hasZone ? *present.components()->timeZone
                              : KTMetadataFieldManager::sharedMetadataFieldManager().assumedTimeZone())
        .componentsFromDate(instant);
}

} // namespace

std::string KTFieldText::editingText(const KTMetadataField& field, const KTValue& value) {
    if (field.key() == "altitude" && value.number())
        return KTHeightText(*value.number());
    if (value.components())
        return isoText(*value.components());
    if (value.date())
        return isoText(KTCalendar(displayZone()).componentsFromDate(*value.date()));
    return value.isSomething() ? value.description() : "";
}

std::string KTFieldText::displayText(const KTMetadataField& field, const KTValue& value) {
    if (!value.isSomething())
        return "";
    return field.formatter() ? field.formatter()->stringForObjectValue(value) : value.description();
}

Parsed KTFieldText::parse(const KTMetadataField& field, std::string_view text) {
    const std::string_view trimmed = KTTrimmed(text);
    if (trimmed.empty())
        return valueFor(field.key(), {});
    switch (field.propertyType()) {
    case KTValueType::Text:
        if (!isCountryCode(field))
            return valueFor(field.key(), text);
        if (const auto code = KTCountryCodeFromText(trimmed))
            return valueFor(field.key(), *code);
        return problem("No country has this code or name.");
    case KTValueType::Decimal: {
        const auto number =
            field.key() == "altitude" ? KTHeightFromText(trimmed) : KTDecimal::fromText(trimmed);
        return number ? valueFor(field.key(), *number) : problem("This is not a number.");
    }
    case KTValueType::Date:
    case KTValueType::DateComponents:
        return parseDate(field, trimmed);
    default:
        return problem("This cannot be typed.");
    }
}

Parsed KTFieldText::parseDate(const KTMetadataField& field, std::string_view text) {
    auto date = isDate(text) ? KTDateComponents::dateComponentsWithString(text) : std::nullopt;
    const bool hasTimeWithoutDay =
        date && date->day == KTDateComponents::kUndefined && date->hour != KTDateComponents::kUndefined;
    if (!date || hasTimeWithoutDay)
        return problem("A date is typed as 2014-05-03 17:41:09, or as its beginning.");
    const auto zone = KTTimeZone::timeZoneWithString(text);
    if (field.propertyType() == KTValueType::Date || zone) {
        date->timeZone = zone.value_or(displayZone());
        const auto instant = KTInstantOfComponents(*date);
        if (!instant)
            return problem("A date and a time with seconds are needed here.");
        if (field.propertyType() == KTValueType::Date)
            return valueFor(field.key(), *instant);
        return {[instant, key = field.key()](const KTPhoto& photo) {
                    return KTValue::Dictionary{{key, readingAt(*instant, photo, key)}};
                },
                {}};
    }
    return {[date = *date, key = field.key()](const KTPhoto& photo) mutable {
                const KTValue present = photo.valueForKey(key);
                date.timeZone = present.components() ? present.components()->timeZone : std::nullopt;
                return KTValue::Dictionary{{key, date}};
            },
            {}};
}
