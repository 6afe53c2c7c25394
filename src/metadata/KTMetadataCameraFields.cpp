#include "metadata/KTMetadataCameraFields.h"

#include "metadata/KTTagAccess.h"
#include "platform/common/KTText.h"

namespace {

using enum KTValueType;
using Choice = KTMetadataChoiceField::Choice;

constexpr Choice kExposurePrograms[] = {
    {0, "Not defined"},
    {1, "Manual"},
    {2, "Normal program"},
    {3, "Aperture priority"},
    {4, "Shutter priority"},
    {5, "Creative program (biased toward depth of field)"},
    {6, "Action program (biased toward fast shutter speed)"},
    {7, "Portrait mode (for closeup photos with the background out of focus)"},
    {8, "Landscape mode (for landscape photos with the background in focus)"},
};

constexpr Choice kMeteringModes[] = {
    {0, "Unknown"}, {1, "Average"},   {2, "Center Weighted Average"},
    {3, "Spot"},    {4, "MultiSpot"}, {5, "Pattern"},
    {6, "Partial"}, {255, "Other"},
};

constexpr Choice kFlashTexts[] = {
    {0, "Flash did not fire."},
    {1, "Flash fired."},
    {5, "Strobe return light not detected."},
    {7, "Strobe return light detected."},
    {9, "Flash fired, compulsory flash mode."},
    {13, "Flash fired, compulsory flash mode, return light not detected."},
    {15, "Flash fired, compulsory flash mode, return light detected."},
    {16, "Flash did not fire, compulsory flash mode."},
    {24, "Flash did not fire, auto mode."},
    {25, "Flash fired, auto mode."},
    {29, "Flash fired, auto mode, return light not detected."},
    {31, "Flash fired, auto mode, return light detected."},
    {32, "No flash function."},
    {65, "Flash fired, red-eye reduction mode."},
    {69, "Flash fired, red-eye reduction mode, return light not detected."},
    {71, "Flash fired, red-eye reduction mode, return light detected."},
    {73, "Flash fired, compulsory flash mode, red-eye reduction mode."},
    {77, "Flash fired, compulsory flash mode, red-eye reduction mode, return light not detected."},
    {79, "Flash fired, compulsory flash mode, red-eye reduction mode, return light detected."},
    {89, "Flash fired, auto mode, red-eye reduction mode."},
    {93, "Flash fired, auto mode, return light not detected, red-eye reduction mode."},
    {95, "Flash fired, auto mode, return light detected, red-eye reduction mode."},
};

constexpr KTMetadataFallbackField::Tags kSerialNumber = {"EXIF:CameraSerialNumber", "XMP:SerialNumber",
                                                         "MakerNotes:SerialNumber"};
constexpr KTMetadataFallbackField::Tags kISO = {"EXIF:ISO", "XMP:ISO", "Composite:ISO"};
constexpr KTMetadataFallbackField::Tags kShutterSpeed = {"EXIF:ShutterSpeedValue", "XMP:ShutterSpeedValue",
                                                         "Composite:ShutterSpeed"};
constexpr KTMetadataSensorSizeField::Tags kSensorWidth = {
    "MakerNotes:FocalPlaneXSize", "EXIF:FocalPlaneXResolution", "EXIF:ExifImageWidth", "File:ImageWidth"};
constexpr KTMetadataSensorSizeField::Tags kSensorHeight = {
    "MakerNotes:FocalPlaneYSize", "EXIF:FocalPlaneYResolution", "EXIF:ExifImageHeight", "File:ImageHeight"};

const Choice* choiceOf(std::span<const Choice> choices, const KTDecimal& number) {
    for (const Choice& choice : choices)
        if (KTDecimal::fromInteger(choice.number) == number)
            return &choice;
    return nullptr;
}

/// Millimetres in a unit of EXIF's focal plane resolution.
KTDecimal millimetresOfUnit(std::int64_t unit) {
    const char* text = unit == 2   ? "25.4"  /* inch */
                       : unit == 3 ? "10"    /* cm */
                       : unit == 5 ? "0.001" /* µm */
                                   : "1";
    return KTDecimal::fromText(text).value_or(KTDecimal());
}

/// The bits of EXIF's flash value from the parts of XMP's flash structure.
std::optional<KTDecimal> flashFromXMP(const KTTagReading& reading) {
    const KTTagDictionary& tags = reading.tags;
    bool isThere =
        tags.hasValue("XMP:FlashFired") || tags.hasValue("XMP:FlashMode") || tags.hasValue("XMP:FlashReturn");
    if (!isThere)
        return std::nullopt;
    auto bits = [&](std::string_view key, std::uint64_t weight) {
        auto number = reading.decimal(key).number();
        return number ? std::uint64_t(number->toInteger()) * weight : 0;
    };
    return KTDecimal::fromUnsigned(bits("XMP:FlashFired", 1) | bits("XMP:FlashReturn", 2) |
                                   bits("XMP:FlashMode", 8) | bits("XMP:FlashFunction", 32) |
                                   bits("XMP:FlashRedEyeMode", 64));
}

} // namespace

KTValue KTMetadataChoiceField::valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                           const KTMetadataProperties& properties) const {
    KTValue number = valueOfType(Decimal, tags, properties);
    if (!number.isSomething())
        return {};
    const Choice* choice = choiceOf(choices, *number.number());
    return choice ? KTValue(choice->text) : number;
}

void KTMetadataChoiceField::modifyExifToolChangesDictionary(KTTagDictionary&, const KTValue&,
                                                            const KTTagDictionary&,
                                                            const KTMetadataProperties&) const {}

KTMetadataExposureProgramField::KTMetadataExposureProgramField(KTMetadataFieldDefinition fieldDefinition)
    : KTMetadataFieldOfClass(std::move(fieldDefinition), kExposurePrograms) {}
KTMetadataMeteringModeField::KTMetadataMeteringModeField(KTMetadataFieldDefinition fieldDefinition)
    : KTMetadataFieldOfClass(std::move(fieldDefinition), kMeteringModes) {}

KTValue KTMetadataFallbackField::valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                             const KTMetadataProperties& properties) const {
    KTTagReading reading{tags, properties};
    KTValue value = reading.exifOrXMP(tagKeys.exif, tagKeys.xmp, propertyType());
    return value.isSomething() ? value : reading.value(tagKeys.fallback, propertyType());
}

KTMetadataSerialNumberField::KTMetadataSerialNumberField(KTMetadataFieldDefinition fieldDefinition)
    : KTMetadataFieldOfClass(std::move(fieldDefinition), kSerialNumber) {}
KTMetadataISOField::KTMetadataISOField(KTMetadataFieldDefinition fieldDefinition)
    : KTMetadataFieldOfClass(std::move(fieldDefinition), kISO) {}
KTMetadataShutterSpeedField::KTMetadataShutterSpeedField(KTMetadataFieldDefinition fieldDefinition)
    : KTMetadataFieldOfClass(std::move(fieldDefinition), kShutterSpeed) {}

KTValue KTMetadataSensorSizeField::valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                               const KTMetadataProperties& properties) const {
    KTTagReading reading{tags, properties};
    if (KTValue size = reading.decimal(tagKeys.size); size.isSomething())
        return size;
    auto resolution = reading.decimal(tagKeys.resolution).number();
    auto unit = reading.decimal("EXIF:FocalPlaneResolutionUnit").number();
    auto pixels = reading.firstOf({tagKeys.exifPixels, tagKeys.filePixels}, Decimal).number();
    if (!resolution || resolution->isZero() || !unit || *unit < KTDecimal::fromInteger(2) || !pixels)
        return {};
    return *pixels / *resolution * millimetresOfUnit(unit->toInteger());
}

KTMetadataSensorWidthField::KTMetadataSensorWidthField(KTMetadataFieldDefinition fieldDefinition)
    : KTMetadataFieldOfClass(std::move(fieldDefinition), kSensorWidth) {}
KTMetadataSensorHeightField::KTMetadataSensorHeightField(KTMetadataFieldDefinition fieldDefinition)
    : KTMetadataFieldOfClass(std::move(fieldDefinition), kSensorHeight) {}

KTValue KTMetadataFlashField::valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                          const KTMetadataProperties& properties) const {
    KTTagReading reading{tags, properties};
    auto number = reading.decimal("EXIF:Flash").number();
    if (!number)
        number = flashFromXMP(reading);
    const Choice* choice = number ? choiceOf(kFlashTexts, *number) : nullptr;
    return choice ? KTValue(choice->text) : KTValue();
}

KTValue KTMetadataImageSizeField::valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                              const KTMetadataProperties& properties) const {
    KTTagReading reading{tags, properties};
    auto side = [&](const std::string& name) {
        return reading.firstOf({"File:Image" + name, "MakerNotes:Image" + name,
                                "MakerNotes:CanonImage" + name, "EXIF:Image" + name, "XMP:Image" + name,
                                "EXIF:ExifImage" + name, "XMP:ExifImage" + name},
                               Text);
    };
    KTValue height = side("Height"), width = side("Width");
    if (!height.isSomething() || !width.isSomething())
        return {};
    return KTStringWithFormat("%@ x %@", {*width.text(), *height.text()});
}
