#pragma once
#include "metadata/KTMetadataField.h"

/// One part of the location that the picture shows: in IPTC, in the older XMP tag and in the list of
/// locations shown.
class KTMetadataLocationPartField : public KTMetadataField {
public:
    struct Tags {
        std::string_view iptc;
        std::string_view xmp;      ///< of the Photoshop or IPTC Core schema
        std::string_view xmpShown; ///< of the list of locations shown
    };

    KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                        const KTMetadataProperties& properties) const override;
    void modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                         const KTTagDictionary& existing,
                                         const KTMetadataProperties& properties) const override;

protected:
    KTMetadataLocationPartField(KTMetadataFieldDefinition fieldDefinition, const Tags& fieldTags)
        : KTMetadataField(std::move(fieldDefinition)), tagKeys(fieldTags) {}
    KTMetadataLocationPartField(const KTMetadataLocationPartField&) = default;

private:
    const Tags& tagKeys;
};

class KTMetadataCityShownField
    : public KTMetadataFieldOfClass<KTMetadataCityShownField, KTMetadataLocationPartField> {
public:
    explicit KTMetadataCityShownField(KTMetadataFieldDefinition fieldDefinition);
};

class KTMetadataStateShownField
    : public KTMetadataFieldOfClass<KTMetadataStateShownField, KTMetadataLocationPartField> {
public:
    explicit KTMetadataStateShownField(KTMetadataFieldDefinition fieldDefinition);
};

class KTMetadataCountryShownField
    : public KTMetadataFieldOfClass<KTMetadataCountryShownField, KTMetadataLocationPartField> {
public:
    explicit KTMetadataCountryShownField(KTMetadataFieldDefinition fieldDefinition);
};

class KTMetadataCountryCodeShownField
    : public KTMetadataFieldOfClass<KTMetadataCountryCodeShownField, KTMetadataLocationPartField> {
public:
    explicit KTMetadataCountryCodeShownField(KTMetadataFieldDefinition fieldDefinition);
};

class KTMetadataLocationShownField
    : public KTMetadataFieldOfClass<KTMetadataLocationShownField, KTMetadataLocationPartField> {
public:
    explicit KTMetadataLocationShownField(KTMetadataFieldDefinition fieldDefinition);
};
