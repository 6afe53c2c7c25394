#include "metadata/KTMetadataPositionFields.h"

#include "metadata/KTMetadataFieldManager.h"
#include "metadata/KTTagAccess.h"
#include "platform/common/KTCalendar.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/geodesy/KTGeodesy.h"

namespace {

using enum KTValueType;

constexpr KTMetadataCoordinateField::Tags kLatitude = {
    "EXIF:GPSLatitude", "EXIF:GPSLatitudeRef", "S", "N", "XMP:GPSLatitude", "latitude"};
constexpr KTMetadataCoordinateField::Tags kLongitude = {
    "EXIF:GPSLongitude", "EXIF:GPSLongitudeRef", "W", "E", "XMP:GPSLongitude", "longitude"};
constexpr KTMetadataCoordinateField::Tags kLatitudeShown = {
    "EXIF:GPSDestLatitude", "EXIF:GPSDestLatitudeRef", "S", "N", "XMP:GPSDestLatitude", ""};
constexpr KTMetadataCoordinateField::Tags kLongitudeShown = {
    "EXIF:GPSDestLongitude", "EXIF:GPSDestLongitudeRef", "W", "E", "XMP:GPSDestLongitude", ""};

constexpr std::string_view kAltitudeIsEditable = "AltitudeFieldIsEditableDefault";

KTValue rounded(const KTDecimal& number) {
    return KTMetadataField::roundingBehavior(number);
}

std::optional<KTDecimal> decimalOf(const KTValue& value) {
    return KTMetadataField::coerceExifToolValue(value, Decimal).number();
}

KTDecimal decimal(const char* text) {
    return KTDecimal::fromText(text).value_or(KTDecimal());
}

} // namespace

KTValue KTMetadataCoordinateField::valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                               const KTMetadataProperties& properties) const {
    KTTagReading reading{tags, properties};
    KTValue exif = reading.decimal(tagKeys.value);
    if (!exif.isSomething())
        return reading.decimal(tagKeys.xmp);
    return tags.valueForKey(tagKeys.reference) == tagKeys.negative ? rounded(-*exif.number()) : exif;
}

void KTMetadataCoordinateField::modifyExifToolChangesDictionary(
    KTTagDictionary& changes, const KTValue& value, const KTTagDictionary& existing,
    const KTMetadataProperties& properties) const {
    KTTagWriting writing{changes, existing, properties};
    if (!properties.hasEXIFBlock)
        return writing.add(tagKeys.xmp, value, Decimal);
    KTValue reference, magnitude;
    if (auto number = decimalOf(value)) {
        reference = *number > KTDecimal() ? tagKeys.positive : tagKeys.negative;
        magnitude = rounded(number->abs());
    }
    writing.add(tagKeys.reference, reference);
    writing.add(tagKeys.value, magnitude, Decimal);
    writing.replace(tagKeys.xmp, value, Decimal);
}

KTMetadataLatitudeField::KTMetadataLatitudeField(KTMetadataFieldDefinition fieldDefinition)
    : KTMetadataFieldOfClass(std::move(fieldDefinition), kLatitude) {}
KTMetadataLongitudeField::KTMetadataLongitudeField(KTMetadataFieldDefinition fieldDefinition)
    : KTMetadataFieldOfClass(std::move(fieldDefinition), kLongitude) {}
KTMetadataLatitudeShownField::KTMetadataLatitudeShownField(KTMetadataFieldDefinition fieldDefinition)
    : KTMetadataFieldOfClass(std::move(fieldDefinition), kLatitudeShown) {}
KTMetadataLongitudeShownField::KTMetadataLongitudeShownField(KTMetadataFieldDefinition fieldDefinition)
    : KTMetadataFieldOfClass(std::move(fieldDefinition), kLongitudeShown) {}

bool KTMetadataAltitudeField::directlyUserEditable() const {
    return KTUserDefaults::standardUserDefaults().boolForKey(kAltitudeIsEditable);
}

void KTMetadataAltitudeField::setDirectlyUserEditable(bool editable) {
    KTUserDefaults::standardUserDefaults().setValue(kAltitudeIsEditable, editable);
}

KTValue KTMetadataAltitudeField::valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                             const KTMetadataProperties& properties) const {
    KTTagReading reading{tags, properties};
    KTValue altitude = reading.exifOrXMP("EXIF:GPSAltitude", "XMP:GPSAltitude", Decimal);
    auto reference = reading.exifOrXMP("EXIF:GPSAltitudeRef", "XMP:GPSAltitudeRef", Decimal).number();
    bool isBelow = reference && !reference->isZero();
    return altitude.isSomething() && isBelow ? rounded(-*altitude.number()) : altitude;
}

void KTMetadataAltitudeField::modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                                              const KTTagDictionary& existing,
                                                              const KTMetadataProperties& properties) const {
    KTTagWriting writing{changes, existing, properties};
    KTValue reference, magnitude;
    if (auto number = decimalOf(value)) {
        reference = *number >= KTDecimal() ? 0 : 1;
        magnitude = rounded(number->abs());
    }
    if (!properties.hasEXIFBlock) {
        writing.add("XMP:GPSAltitudeRef", reference, Decimal);
        writing.add("XMP:GPSAltitude", magnitude, Decimal);
        return;
    }
    writing.add("EXIF:GPSAltitudeRef", reference, Decimal);
    writing.add("EXIF:GPSAltitude", magnitude, Decimal);
    writing.replace("XMP:GPSAltitudeRef", reference, Decimal);
    writing.replace("XMP:GPSAltitude", magnitude, Decimal);
}

KTValue
KTMetadataImageDirectionField::valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                           const KTMetadataProperties& properties) const {
    for (std::string block : {"EXIF", "XMP"}) {
        KTValue direction = coerceExifToolValue(tags.valueForKey(block + ":GPSImgDirection"), Decimal);
        if (!direction.isSomething())
            continue;
        bool isMagnetic = tags.valueForKey(block + ":GPSImgDirectionRef") == "M";
        return isMagnetic ? trueNorthFromMagneticNorth(*direction.number(), tags, properties) : direction;
    }
    return {};
}

KTValue KTMetadataImageDirectionField::trueNorthFromMagneticNorth(const KTDecimal& direction,
                                                                  const KTTagDictionary& dict,
                                                                  const KTMetadataProperties& prop) {
    auto read = [&](std::string_view key) {
        auto field = KTMetadataFieldManager::sharedMetadataFieldManager().metadataFieldForKey(key);
        return field->valueFromExifToolDictionary(dict, prop);
    };
    auto latitude = read("latitude").number(), longitude = read("longitude").number();
    if (!latitude || !longitude)
        return {};
    KTValue date = read("dateTimeOriginalComponents");
    // The declination changes so slowly that the beginning of a partial date will do.
    auto instant = date.components() && date.components()->timeZone
                       ? KTCalendar(*date.components()->timeZone).dateFromComponents(*date.components())
                       : std::nullopt;
    auto declination = KTDeclinationForLatitudeLongitude(latitude->toDouble(), longitude->toDouble(),
                                                         instant.value_or(KTInstantNow()));
    if (!declination)
        return {};
    return directionWithDeclination(direction, KTDecimal::fromDouble(*declination));
}

KTDecimal KTMetadataImageDirectionField::directionWithDeclination(const KTDecimal& direction,
                                                                  const KTDecimal& declination) {
    const KTDecimal fullTurn = KTDecimal::fromInteger(360);
    KTDecimal sum = direction + declination;
    if (sum >= fullTurn)
        return sum - fullTurn;
    return sum < KTDecimal() ? sum + fullTurn : sum;
}

void KTMetadataImageDirectionField::modifyExifToolChangesDictionary(
    KTTagDictionary& changes, const KTValue& value, const KTTagDictionary& existing,
    const KTMetadataProperties& properties) const {
    KTTagWriting writing{changes, existing, properties};
    KTValue reference = decimalOf(value) ? KTValue("T") : KTValue();
    if (!properties.hasEXIFBlock) {
        writing.add("XMP:GPSImgDirectionRef", reference);
        writing.add("XMP:GPSImgDirection", value, Decimal);
        return;
    }
    writing.add("EXIF:GPSImgDirectionRef", reference);
    writing.add("EXIF:GPSImgDirection", value, Decimal);
    writing.replace("XMP:GPSImgDirectionRef", reference);
    writing.replace("XMP:GPSImgDirection", value, Decimal);
}

KTValue KTMetadataGPSSpeedField::valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                             const KTMetadataProperties& properties) const {
    KTTagReading reading{tags, properties};
    auto speed = reading.exifOrXMP("EXIF:GPSSpeed", "XMP:GPSSpeed", Decimal).number();
    KTValue unit = reading.exifOrXMP("EXIF:GPSSpeedRef", "XMP:GPSSpeedRef", Text);
    if (!speed || !unit.isSomething())
        return {};
    if (unit == "K")
        return *speed / decimal("3.6");
    if (unit == "M")
        return *speed * decimal("0.44704");
    if (unit == "N")
        return *speed * decimal("0.514444444444");
    return *speed;
}
