#include "metadata/KTMetadataLocationShownFields.h"

#include "metadata/KTTagAccess.h"

namespace {

using Tags = KTMetadataLocationPartField::Tags;

constexpr Tags kCity = {"IPTC:City", "XMP:City", "XMP:LocationShownCity"};
constexpr Tags kState = {"IPTC:Province-State", "XMP:State", "XMP:LocationShownProvinceState"};
constexpr Tags kCountry = {"IPTC:Country-PrimaryLocationName", "XMP:Country", "XMP:LocationShownCountryName"};
constexpr Tags kCountryCode = {"IPTC:Country-PrimaryLocationCode", "XMP:CountryCode",
                               "XMP:LocationShownCountryCode"};
constexpr Tags kSublocation = {"IPTC:Sub-location", "XMP:Location", "XMP:LocationShownSublocation"};

} // namespace

KTValue
KTMetadataLocationPartField::valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                         const KTMetadataProperties& properties) const {
    KTTagReading reading{tags, properties};
    KTValue xmp = reading.firstOf({tagKeys.xmp, tagKeys.xmpShown}, KTValueType::Text);
    return valueFromIPTCValue(reading.text(tagKeys.iptc), xmp, properties);
}

void KTMetadataLocationPartField::modifyExifToolChangesDictionary(
    KTTagDictionary& changes, const KTValue& value, const KTTagDictionary& existing,
    const KTMetadataProperties& properties) const {
    KTValue text = coerceExifToolValue(value, KTValueType::Text);
    if (valueFromExifToolDictionary(existing, properties) == text) {
        for (std::string_view tagKey : {tagKeys.iptc, tagKeys.xmp, tagKeys.xmpShown})
            changes.remove(tagKey);
        return;
    }
    KTTagWriting writing{changes, existing, properties};
    if (properties.hasIPTCBlock)
        writing.add(tagKeys.iptc, text);
    writing.add(tagKeys.xmp, text);
    writing.add(tagKeys.xmpShown, text, KTValueType::List);
}

KTMetadataCityShownField::KTMetadataCityShownField(KTMetadataFieldDefinition fieldDefinition)
    : KTMetadataFieldOfClass(std::move(fieldDefinition), kCity) {}
KTMetadataStateShownField::KTMetadataStateShownField(KTMetadataFieldDefinition fieldDefinition)
    : KTMetadataFieldOfClass(std::move(fieldDefinition), kState) {}
KTMetadataCountryShownField::KTMetadataCountryShownField(KTMetadataFieldDefinition fieldDefinition)
    : KTMetadataFieldOfClass(std::move(fieldDefinition), kCountry) {}
KTMetadataCountryCodeShownField::KTMetadataCountryCodeShownField(KTMetadataFieldDefinition fieldDefinition)
    : KTMetadataFieldOfClass(std::move(fieldDefinition), kCountryCode) {}
KTMetadataLocationShownField::KTMetadataLocationShownField(KTMetadataFieldDefinition fieldDefinition)
    : KTMetadataFieldOfClass(std::move(fieldDefinition), kSublocation) {}
