#include "metadata/KTMetadataDateFields.h"

#include "metadata/KTMetadataFieldManager.h"
#include "metadata/KTTagAccess.h"
#include "platform/common/KTDateArithmetic.h"
#include "platform/common/KTTimeZoneManager.h"

#include <regex>

namespace {

constexpr KTMetadataPictureDateField::Tags kOriginal = {"EXIF:DateTimeOriginal", "XMP:DateTimeOriginal",
                                                        "XMP:DateCreated",       "IPTC:DateCreated",
                                                        "IPTC:TimeCreated",      "Composite:DateTimeCreated"};
constexpr KTMetadataPictureDateField::Tags kDigitized = {
    "EXIF:CreateDate",          "XMP:DateTimeDigitized",    "XMP:CreateDate",
    "IPTC:DigitalCreationDate", "IPTC:DigitalCreationTime", "Composite:DigitalCreationDateTime"};

constexpr std::size_t kDateTimeLength = std::string_view("2014:06:01 12:00:00").size();
constexpr std::size_t kDateLength = std::string_view("2014:06:01").size();
constexpr std::size_t kTimeLength = std::string_view("12:00:00").size();
constexpr std::chrono::sys_days kReferenceDate = std::chrono::year(2001) / 1 / 1;

/// The new date as components; null when it is absent (a date without a year is none).
const KTDateComponents* dateOf(const KTValue& value) {
    auto components = value.components();
    return components && components->year != KTDateComponents::kUndefined ? components : nullptr;
}

/// The fraction of a second and the zone at the end of the existing text, after its first @p length
/// characters; nothing where something else stands there, as no file would take it behind the new text.
std::string suffixOf(const KTValue& existing, std::size_t length) {
    static const std::regex suffix("(\\.[0-9]+)?(Z|[+-][0-9]{2}:?[0-9]{2})?$");
    if (!existing.text() || existing.text()->size() <= length)
        return {};
    const std::string after = existing.text()->substr(length);
    std::smatch match;
    return std::regex_search(after, match, suffix) ? match.str() : std::string();
}

KTValue withSuffix(const std::optional<std::string>& text, const KTDateComponents* date,
                   const std::string& suffix) {
    // A zone behind a partial date would make it unreadable.
    return text ? KTValue(*text + (KTIsCompleteDate(*date) ? suffix : std::string())) : KTValue();
}

KTValue labelled(const KTValue& value, const KTTimeZone& zone) {
    if (!value.components())
        return value;
    KTDateComponents components = *value.components();
    components.timeZone = zone;
    return components;
}

} // namespace

std::vector<std::string> KTMetadataPictureDateField::exifToolKeys() const {
    return {std::string(tagKeys.exif), std::string(tagKeys.xmp), std::string(tagKeys.xmpDate),
            std::string(tagKeys.iptcDate), std::string(tagKeys.iptcTime)};
}

KTValue KTMetadataPictureDateField::valueOfTags(const Tags& keys, const KTTagDictionary& tags,
                                                const KTMetadataProperties& properties) {
    KTTagReading reading{tags, properties};
    KTValue exif = reading.exifOrXMP(keys.exif, keys.xmp, KTValueType::DateComponents);
    KTValue date = valueFromEXIFValue(exif, reading.components(keys.iptcBoth),
                                      reading.components(keys.xmpDate), properties);
    return labelled(date, KTMetadataFieldManager::sharedMetadataFieldManager().assumedTimeZone());
}

KTValue
KTMetadataPictureDateField::valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                        const KTMetadataProperties& properties) const {
    return valueOfTags(tagKeys, tags, properties);
}

void KTMetadataPictureDateField::modifyExifToolChangesDictionary(
    KTTagDictionary& changes, const KTValue& value, const KTTagDictionary& existing,
    const KTMetadataProperties& properties) const {
    KTTagWriting writing{changes, existing, properties};
    const KTDateComponents* date = dateOf(value);
    KTValue currentValue = valueFromExifToolDictionary(existing, properties);
    const KTDateComponents* current = currentValue.components();
    bool isChanged = date && current ? !date->hasSameReading(*current) : date != current;
    auto xmpText = date ? date->xmpString() : std::nullopt;

    if (properties.hasEXIFBlock)
        writing.add(tagKeys.exif, date ? date->exifString() : std::nullopt);
    if (!properties.hasEXIFBlock || existing.hasValue(tagKeys.xmp)) {
        KTValue existingText = existing.valueForKey(tagKeys.xmp);
        bool saysMore = existingText.text() && xmpText && xmpText->size() == kDateTimeLength &&
                        existingText.text()->starts_with(*xmpText);
        writing.add(tagKeys.xmp, saysMore ? existingText : KTValue(xmpText));
    }
    if (isChanged)
        writing.add(tagKeys.xmpDate,
                    withSuffix(xmpText, date, suffixOf(existing.valueForKey(tagKeys.xmpDate), kDateLength)));
    else
        changes.remove(tagKeys.xmpDate);
    writing.replace(tagKeys.iptcDate, date ? date->iptcDateString() : std::nullopt);
    auto time = date ? std::optional(date->iptcTimeString()) : std::nullopt;
    writing.replace(tagKeys.iptcTime,
                    withSuffix(time, date, suffixOf(existing.valueForKey(tagKeys.iptcTime), kTimeLength)));
}

KTMetadataDateTimeDigitizedField::KTMetadataDateTimeDigitizedField(KTMetadataFieldDefinition fieldDefinition)
    : KTMetadataFieldOfClass(std::move(fieldDefinition), kDigitized) {}

KTMetadataDateTimeOriginalField::KTMetadataDateTimeOriginalField(KTMetadataFieldDefinition fieldDefinition)
    : KTMetadataFieldOfClass(std::move(fieldDefinition), kOriginal) {}

KTValue
KTMetadataDateTimeOriginalField::valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                             const KTMetadataProperties& properties) const {
    KTValue original = valueOfTags(kOriginal, tags, properties);
    return original.isSomething() ? original : valueOfTags(kDigitized, tags, properties);
}

KTValue KTMetadataDateTimeOriginalField::valueFromiPhotoDictionary(const KTTagDictionary& record) const {
    auto seconds = coerceExifToolValue(record.valueForKey("xml:dateInterval"), KTValueType::Decimal).number();
    constexpr std::int64_t kLimit = 200'000'000'000; // beyond the years that components can tell
    if (!seconds || seconds->isNaN() || seconds->abs() > KTDecimal::fromInteger(kLimit))
        return {};
    auto milliseconds = (*seconds * KTDecimal::fromInteger(1000)).rounded(0).toInteger();
    KTInstant instant = kReferenceDate + std::chrono::milliseconds(milliseconds);
    return labelled(KTCalendar(KTTimeZone::utc()).componentsFromDate(instant),
                    KTTimeZoneManager::sharedTimeZoneManager().timeZone());
}

void KTMetadataDateTimeOriginalField::modifyiPhotoChangesDictionary(KTTagDictionary& changes,
                                                                    const KTValue& value,
                                                                    const KTTagDictionary& record) const {
    // A library knows complete dates alone.
    auto textOf = [](const KTValue& date) {
        auto components = dateOf(date);
        return components && KTIsCompleteDate(*components) ? KTValue(components->xmpString()) : KTValue();
    };
    if (dateOf(value) && !KTIsCompleteDate(*dateOf(value)))
        return changes.remove("date");
    KTTagDictionary current{{"date", textOf(valueFromiPhotoDictionary(record))}};
    addValue(textOf(value), KTValueType::Text, "date", changes, current);
}
