#include "metadata/KTMetadataDateFields.h"

#include "metadata/KTTagAccess.h"
#include "platform/common/KTCalendar.h"
#include "platform/common/KTText.h"

namespace {

constexpr std::string_view kGPSDateStamp = "EXIF:GPSDateStamp";
constexpr std::string_view kGPSTimeStamp = "EXIF:GPSTimeStamp";
constexpr std::string_view kXMPGPSDateTime = "XMP:GPSDateTime";

/// "2014:06:01 12:00:00+02:00" in the computer's zone; nothing for a value that is no date.
std::optional<std::string> textInSystemZone(const KTValue& value) {
    if (!value.date())
        return std::nullopt;
    KTTimeZone zone = KTTimeZone::system();
    KTDateComponents components = KTCalendar(zone).componentsFromDate(*value.date());
    std::string offset = zone.offsetText(*value.date());
    return components.xmpString().value_or("") + (offset == "Z" ? "+00:00" : offset);
}

KTValue instantInUTC(const std::optional<KTDateComponents>& components) {
    return components ? KTValue(KTCalendar(KTTimeZone::utc()).dateFromComponents(*components)) : KTValue();
}

/// @p existing where it is @p text with a fraction of a second, else @p text followed by @p suffix.
KTValue keepingFraction(const KTValue& existing, const std::string& text, const char* suffix) {
    bool hasFraction = existing.text() && existing.text()->starts_with(text + ".");
    return hasFraction ? existing : KTValue(text + suffix);
}

} // namespace

KTValue KTMetadataModifyDateField::valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                               const KTMetadataProperties& properties) const {
    KTTagReading reading{tags, properties};
    KTValue first = reading.exifOrXMP("EXIF:ModifyDate", "XMP:DateTime", KTValueType::Date);
    KTValue second = reading.date("XMP:ModifyDate");
    if (!first.date() || !second.date())
        return first.date() ? first : second;
    return *second.date() > *first.date() ? second : first;
}

void KTMetadataModifyDateField::modifyExifToolChangesDictionary(
    KTTagDictionary& changes, const KTValue& value, const KTTagDictionary& existing,
    const KTMetadataProperties& properties) const {
    KTTagWriting writing{changes, existing, properties};
    KTValue text = textInSystemZone(value);
    if (properties.hasEXIFBlock)
        writing.add("EXIF:ModifyDate", text);
    writing.replace("XMP:DateTime", text);
    writing.add("XMP:ModifyDate", text);
}

KTValue KTMetadataMetadataDateField::valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                                 const KTMetadataProperties&) const {
    return coerceExifToolValue(tags.valueForKey("XMP:MetadataDate"), KTValueType::Date);
}

void KTMetadataMetadataDateField::modifyExifToolChangesDictionary(KTTagDictionary& changes,
                                                                  const KTValue& value,
                                                                  const KTTagDictionary& existing,
                                                                  const KTMetadataProperties&) const {
    addValue(textInSystemZone(value), KTValueType::Text, "XMP:MetadataDate", changes, existing);
}

KTValue
KTMetadataGPSDateTimeField::valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                        const KTMetadataProperties& properties) const {
    KTTagReading reading{tags, properties};
    KTValue date = reading.text(kGPSDateStamp), time = reading.text(kGPSTimeStamp);
    if (date.isSomething() && time.isSomething())
        return instantInUTC(KTDateComponents::dateComponentsWithString(
            KTStringWithFormat("%@ %@", {*date.text(), *time.text()})));
    KTValue xmp = reading.text(kXMPGPSDateTime);
    return xmp.text() ? instantInUTC(KTDateComponents::dateComponentsWithString(*xmp.text())) : KTValue();
}

void KTMetadataGPSDateTimeField::modifyExifToolChangesDictionary(
    KTTagDictionary& changes, const KTValue& value, const KTTagDictionary& existing,
    const KTMetadataProperties& properties) const {
    KTTagWriting writing{changes, existing, properties};
    KTValue date, time, xmp;
    if (value.date()) {
        KTDateComponents components = KTCalendar(KTTimeZone::utc()).componentsFromDate(*value.date());
        bool isUnchanged = valueFromExifToolDictionary(existing, properties) == value;
        date = components.iptcDateString();
        time = keepingFraction(isUnchanged ? existing.valueForKey(kGPSTimeStamp) : KTValue(),
                               components.iptcTimeString(), "");
        xmp =
            keepingFraction(existing.valueForKey(kXMPGPSDateTime), components.xmpString().value_or(""), "Z");
    }
    if (!properties.hasEXIFBlock)
        return writing.add(kXMPGPSDateTime, xmp);
    writing.replace(kXMPGPSDateTime, xmp);
    writing.add(kGPSDateStamp, date);
    writing.add(kGPSTimeStamp, time);
}
