#pragma once
#include "metadata/KTMetadataField.h"

/// A latitude or longitude in decimal degrees, north and east positive: in EXIF a magnitude and a reference
/// letter, in XMP one signed value.
class KTMetadataCoordinateField : public KTMetadataField {
public:
    /// The tags and letters of one coordinate.
    struct Tags {
        std::string_view value, reference;
        const char* negative;
        const char* positive;
        std::string_view xmp;
        std::string_view library; ///< name in a photo library's record; empty when libraries do not know it
    };

    KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                        const KTMetadataProperties& properties) const override;
    void modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                         const KTTagDictionary& existing,
                                         const KTMetadataProperties& properties) const override;
    bool iPhotoSupported() const override { return !tagKeys.library.empty(); }

protected:
    KTMetadataCoordinateField(KTMetadataFieldDefinition fieldDefinition, const Tags& fieldTags)
        : KTMetadataField(std::move(fieldDefinition)), tagKeys(fieldTags) {}
    KTMetadataCoordinateField(const KTMetadataCoordinateField&) = default;
    std::string_view libraryKey() const override { return tagKeys.library; }

private:
    const Tags& tagKeys;
};

class KTMetadataLatitudeField
    : public KTMetadataFieldOfClass<KTMetadataLatitudeField, KTMetadataCoordinateField> {
public:
    explicit KTMetadataLatitudeField(KTMetadataFieldDefinition fieldDefinition);
};

class KTMetadataLongitudeField
    : public KTMetadataFieldOfClass<KTMetadataLongitudeField, KTMetadataCoordinateField> {
public:
    explicit KTMetadataLongitudeField(KTMetadataFieldDefinition fieldDefinition);
};

class KTMetadataLatitudeShownField
    : public KTMetadataFieldOfClass<KTMetadataLatitudeShownField, KTMetadataCoordinateField> {
public:
    explicit KTMetadataLatitudeShownField(KTMetadataFieldDefinition fieldDefinition);
};

class KTMetadataLongitudeShownField
    : public KTMetadataFieldOfClass<KTMetadataLongitudeShownField, KTMetadataCoordinateField> {
public:
    explicit KTMetadataLongitudeShownField(KTMetadataFieldDefinition fieldDefinition);
};

/// Metres above sea level, negative below. Whether it can be edited is a setting
/// ("AltitudeFieldIsEditableDefault"), which every copy of the field shares.
class KTMetadataAltitudeField : public KTMetadataFieldOfClass<KTMetadataAltitudeField> {
public:
    using KTMetadataFieldOfClass::KTMetadataFieldOfClass;
    bool directlyUserEditable() const override;
    void setDirectlyUserEditable(bool editable) override;
    KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                        const KTMetadataProperties& properties) const override;
    void modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                         const KTTagDictionary& existing,
                                         const KTMetadataProperties& properties) const override;
};

/// Degrees clockwise from true north. A direction from magnetic north is turned to true north where the file
/// has a position, and is absent where it has none.
class KTMetadataImageDirectionField : public KTMetadataFieldOfClass<KTMetadataImageDirectionField> {
public:
    using KTMetadataFieldOfClass::KTMetadataFieldOfClass;
    KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                        const KTMetadataProperties& properties) const override;
    void modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                         const KTTagDictionary& existing,
                                         const KTMetadataProperties& properties) const override;

    /// @p direction from magnetic north, in degrees, at the position and date that @p dict holds (now, when
    /// it has no date); absent without position.
    static KTValue trueNorthFromMagneticNorth(const KTDecimal& direction, const KTTagDictionary& dict,
                                              const KTMetadataProperties& prop);
    /// The sum of both angles in degrees, brought into [0, 360) by at most one full turn.
    static KTDecimal directionWithDeclination(const KTDecimal& direction, const KTDecimal& declination);
};

/// Metres per second. Only read.
class KTMetadataGPSSpeedField : public KTMetadataFieldOfClass<KTMetadataGPSSpeedField> {
public:
    using KTMetadataFieldOfClass::KTMetadataFieldOfClass;
    KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                        const KTMetadataProperties& properties) const override;
};
