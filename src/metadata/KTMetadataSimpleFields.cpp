#include "metadata/KTMetadataSimpleFields.h"

#include "metadata/KTTagAccess.h"
#include "platform/common/KTText.h"

#include <filesystem>

namespace {

/// The version of the GPS tags that this program writes.
constexpr const char* kWrittenGPSVersion = "2.2.0.0";

std::string replaced(std::string text, char from, char to) {
    std::ranges::replace(text, from, to);
    return text;
}

} // namespace

std::vector<std::string> KTMetadataSimpleField::exifToolKeys() const {
    std::vector<std::string> keys;
    for (const std::string& tagKey : {primaryExifToolKey(), xmpExifToolKey()})
        if (!tagKey.empty())
            keys.push_back(tagKey);
    return keys;
}

KTValue KTMetadataSimpleField::valueOfType(KTValueType type, const KTTagDictionary& tags,
                                           const KTMetadataProperties& properties) const {
    KTTagReading reading{tags, properties};
    KTValue xmp = xmpExifToolKey().empty() ? KTValue() : reading.value(xmpExifToolKey(), type);
    if (primaryExifToolKey().empty())
        return xmp;
    KTValue primary = reading.value(primaryExifToolKey(), type);
    if (primaryExifToolKey().starts_with("EXIF"))
        return valueFromEXIFValue(primary, xmp, properties);
    if (primaryExifToolKey().starts_with("IPTC"))
        return valueFromIPTCValue(primary, xmp, properties);
    return primary;
}

KTValue KTMetadataSimpleField::valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                           const KTMetadataProperties& properties) const {
    return valueOfType(propertyType(), tags, properties);
}

void KTMetadataSimpleField::modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                                            const KTTagDictionary& existing,
                                                            const KTMetadataProperties& properties) const {
    KTValueType type = exifToolPropertyType();
    if (type != KTValueType::Text && type != KTValueType::Decimal && type != KTValueType::List)
        return;
    KTTagWriting writing{changes, existing, properties};
    // By way of the property's type: a text of blanks is absent, not a list of one blank text.
    KTValue written = coerceExifToolValue(value, propertyType());
    if (primaryExifToolKey().starts_with("EXIF") && properties.hasEXIFBlock) {
        writing.add(primaryExifToolKey(), written, type);
        if (!xmpExifToolKey().empty())
            writing.replace(xmpExifToolKey(), written, type);
        return;
    }
    if (primaryExifToolKey().starts_with("IPTC") && properties.hasIPTCBlock)
        writing.add(primaryExifToolKey(), written, type);
    if (!xmpExifToolKey().empty())
        writing.add(xmpExifToolKey(), written, type);
}

KTValue KTMetadataCompositeField::valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                              const KTMetadataProperties&) const {
    return coerceExifToolValue(tags.valueForKey(compositeExifToolKey()), propertyType());
}

KTValue
KTMetadataGPSVersionIDField::valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                         const KTMetadataProperties& properties) const {
    KTValue version = KTMetadataSimpleField::valueFromExifToolDictionary(tags, properties);
    return version.text() ? KTValue(replaced(*version.text(), ' ', '.')) : version;
}

void KTMetadataGPSVersionIDField::modifyExifToolChangesDictionary(
    KTTagDictionary& changes, const KTValue& value, const KTTagDictionary& existing,
    const KTMetadataProperties& properties) const {
    KTTagWriting writing{changes, existing, properties};
    KTValue version = coerceExifToolValue(value, KTValueType::Text);
    KTValue xmp = version.isSomething() ? KTValue(kWrittenGPSVersion) : KTValue();
    if (!properties.hasEXIFBlock)
        return writing.add(xmpExifToolKey(), xmp);
    writing.replace(xmpExifToolKey(), xmp);
    if (!version.isSomething())
        return writing.add(primaryExifToolKey(), {});
    std::string withBlanks = replaced(*version.text(), '.', ' ');
    KTValue current = coerceExifToolValue(existing.valueForKey(primaryExifToolKey()), KTValueType::Text);
    bool isUnchanged = current.text() && replaced(*current.text(), '.', ' ') == withBlanks;
    writing.add(primaryExifToolKey(), isUnchanged ? current : KTValue(withBlanks));
}

KTValue KTMetadataTitleField::valueFromiPhotoDictionary(const KTTagDictionary& record) const {
    KTValue title = KTMetadataField::valueFromiPhotoDictionary(record);
    KTValue file =
        record.valueForKey(record.hasValue("xml:originalPath") ? "xml:originalPath" : "xml:imagePath");
    if (title.text() && file.text() &&
        KTEqualIgnoringCase(*title.text(), std::filesystem::path(*file.text()).stem().string()))
        return {};
    return title;
}
