#pragma once
#include "metadata/KTMetadataSimpleFields.h"

#include <span>

/// A numbered choice that reads as its text, an unknown number as itself. Only read.
class KTMetadataChoiceField : public KTMetadataSimpleField {
public:
    struct Choice {
        std::int64_t number;
        const char* text;
    };

    KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                        const KTMetadataProperties& properties) const override;
    void modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                         const KTTagDictionary& existing,
                                         const KTMetadataProperties& properties) const override;

protected:
    KTMetadataChoiceField(KTMetadataFieldDefinition fieldDefinition, std::span<const Choice> fieldChoices)
        : KTMetadataSimpleField(std::move(fieldDefinition)), choices(fieldChoices) {}
    KTMetadataChoiceField(const KTMetadataChoiceField&) = default;

private:
    std::span<const Choice> choices;
};

class KTMetadataExposureProgramField
    : public KTMetadataFieldOfClass<KTMetadataExposureProgramField, KTMetadataChoiceField> {
public:
    explicit KTMetadataExposureProgramField(KTMetadataFieldDefinition fieldDefinition);
};

class KTMetadataMeteringModeField
    : public KTMetadataFieldOfClass<KTMetadataMeteringModeField, KTMetadataChoiceField> {
public:
    explicit KTMetadataMeteringModeField(KTMetadataFieldDefinition fieldDefinition);
};

/// A value of EXIF or XMP, else of a third tag. Only read.
class KTMetadataFallbackField : public KTMetadataField {
public:
    struct Tags {
        std::string_view exif, xmp, fallback;
    };

    KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                        const KTMetadataProperties& properties) const override;

protected:
    KTMetadataFallbackField(KTMetadataFieldDefinition fieldDefinition, const Tags& fieldTags)
        : KTMetadataField(std::move(fieldDefinition)), tagKeys(fieldTags) {}
    KTMetadataFallbackField(const KTMetadataFallbackField&) = default;

private:
    const Tags& tagKeys;
};

class KTMetadataSerialNumberField
    : public KTMetadataFieldOfClass<KTMetadataSerialNumberField, KTMetadataFallbackField> {
public:
    explicit KTMetadataSerialNumberField(KTMetadataFieldDefinition fieldDefinition);
};

class KTMetadataISOField : public KTMetadataFieldOfClass<KTMetadataISOField, KTMetadataFallbackField> {
public:
    explicit KTMetadataISOField(KTMetadataFieldDefinition fieldDefinition);
};

/// Seconds.
class KTMetadataShutterSpeedField
    : public KTMetadataFieldOfClass<KTMetadataShutterSpeedField, KTMetadataFallbackField> {
public:
    explicit KTMetadataShutterSpeedField(KTMetadataFieldDefinition fieldDefinition);
};

/// A side of the sensor in millimetres, as the camera says or worked out from pixels and resolution. Only
/// read.
class KTMetadataSensorSizeField : public KTMetadataField {
public:
    struct Tags {
        std::string_view size, resolution, exifPixels, filePixels;
    };

    KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                        const KTMetadataProperties& properties) const override;

protected:
    KTMetadataSensorSizeField(KTMetadataFieldDefinition fieldDefinition, const Tags& fieldTags)
        : KTMetadataField(std::move(fieldDefinition)), tagKeys(fieldTags) {}
    KTMetadataSensorSizeField(const KTMetadataSensorSizeField&) = default;

private:
    const Tags& tagKeys;
};

class KTMetadataSensorWidthField
    : public KTMetadataFieldOfClass<KTMetadataSensorWidthField, KTMetadataSensorSizeField> {
public:
    explicit KTMetadataSensorWidthField(KTMetadataFieldDefinition fieldDefinition);
};

class KTMetadataSensorHeightField
    : public KTMetadataFieldOfClass<KTMetadataSensorHeightField, KTMetadataSensorSizeField> {
public:
    explicit KTMetadataSensorHeightField(KTMetadataFieldDefinition fieldDefinition);
};

/// What the flash did, as a sentence. Only read.
class KTMetadataFlashField : public KTMetadataFieldOfClass<KTMetadataFlashField> {
public:
    using KTMetadataFieldOfClass::KTMetadataFieldOfClass;
    KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                        const KTMetadataProperties& properties) const override;
};

/// "6000 x 4000", width first. Only read.
class KTMetadataImageSizeField : public KTMetadataFieldOfClass<KTMetadataImageSizeField> {
public:
    using KTMetadataFieldOfClass::KTMetadataFieldOfClass;
    KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                        const KTMetadataProperties& properties) const override;
};
