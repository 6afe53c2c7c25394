#include "metadata/KTMetadataTextFields.h"

#include "metadata/KTTagAccess.h"
#include "platform/common/KTText.h"

namespace {

using enum KTValueType;

constexpr const char* kCopyrighted = "Copyrighted";
constexpr const char* kPublicDomain = "Public Domain";
constexpr const char* kUnknownStatus = " ";

bool isEmptyList(const KTValue& value) {
    return !value.list() || value.list()->empty();
}

/// The creators of a tag as one text.
KTValue creatorsOf(const KTValue& tagValue) {
    if (!tagValue.list())
        return KTMetadataField::coerceExifToolValue(tagValue, Text);
    std::vector<std::string> names;
    for (const KTValue& element : *tagValue.list())
        if (KTValue name = KTMetadataField::coerceExifToolValue(element, Text); name.isSomething())
            names.push_back(*name.text());
    return names.empty() ? KTValue() : KTValue(KTJoin(names, "; "));
}

} // namespace

std::vector<std::string> KTMetadataCaptionField::exifToolKeys() const {
    return {"EXIF:ImageDescription", "IPTC:Caption-Abstract", "XMP:Description", "XMP:UserComment",
            "XMP:ImageDescription"};
}

KTValue KTMetadataCaptionField::valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                            const KTMetadataProperties& properties) const {
    KTTagReading reading{tags, properties};
    KTValue exif = reading.exifOrXMP("EXIF:ImageDescription", "XMP:ImageDescription", Text);
    return valueFromEXIFValue(exif, reading.text("IPTC:Caption-Abstract"), reading.text("XMP:Description"),
                              properties);
}

void KTMetadataCaptionField::modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                                             const KTTagDictionary& existing,
                                                             const KTMetadataProperties& properties) const {
    KTTagWriting writing{changes, existing, properties};
    if (properties.hasEXIFBlock)
        writing.replace("EXIF:ImageDescription", value);
    if (properties.hasIPTCBlock)
        writing.add("IPTC:Caption-Abstract", value);
    writing.replace("XMP:ImageDescription", value);
    writing.add("XMP:Description", value);
}

KTValue KTMetadataCopyrightField::valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                              const KTMetadataProperties& properties) const {
    KTTagReading reading{tags, properties};
    return valueFromEXIFValue(reading.text("EXIF:Copyright"), reading.text("IPTC:CopyrightNotice"),
                              reading.text("XMP:Rights"), properties);
}

void KTMetadataCopyrightField::modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                                               const KTTagDictionary& existing,
                                                               const KTMetadataProperties& properties) const {
    KTTagWriting writing{changes, existing, properties};
    if (properties.hasEXIFBlock)
        writing.replace("EXIF:Copyright", value);
    if (properties.hasIPTCBlock)
        writing.add("IPTC:CopyrightNotice", value);
    writing.add("XMP:Rights", value);
}

KTValue KTMetadataCreatorField::valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                            const KTMetadataProperties& properties) const {
    return valueFromEXIFValue(coerceExifToolValue(tags.valueForKey("EXIF:Artist"), Text),
                              creatorsOf(tags.valueForKey("IPTC:By-line")),
                              creatorsOf(tags.valueForKey("XMP:Creator")), properties);
}

void KTMetadataCreatorField::modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                                             const KTTagDictionary& existing,
                                                             const KTMetadataProperties& properties) const {
    KTTagWriting writing{changes, existing, properties};
    // A list that already reads as the new text stays a list.
    auto keepingList = [&](std::string_view tagKey) {
        KTValue current = existing.valueForKey(tagKey);
        return creatorsOf(current) == coerceExifToolValue(value, Text) ? current : value;
    };
    if (properties.hasEXIFBlock)
        writing.replace("EXIF:Artist", value);
    if (properties.hasIPTCBlock)
        writing.replace("IPTC:By-line", keepingList("IPTC:By-line"));
    writing.add("XMP:Creator", keepingList("XMP:Creator"));
}

KTValue KTMetadataPeopleField::valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                           const KTMetadataProperties& properties) const {
    KTTagReading reading{tags, properties};
    KTValue people =
        reading.value(tags.hasValue("XMP:PersonInImage") ? "XMP:PersonInImage" : "XMP:People", List);
    return isEmptyList(people) ? reading.value("IPTC:Contact", List) : people;
}

void KTMetadataPeopleField::modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                                            const KTTagDictionary& existing,
                                                            const KTMetadataProperties& properties) const {
    KTTagWriting writing{changes, existing, properties};
    bool isCleared = isEmptyList(coerceExifToolValue(value, List));
    if (properties.hasIPTCBlock)
        writing.replace("IPTC:Contact", value, List);
    // Beside the newer tag the older one is left alone, except that it must not reappear when that is
    // cleared.
    if (isCleared || !existing.hasValue("XMP:PersonInImage"))
        writing.replace("XMP:People", value, List);
    else
        changes.remove("XMP:People");
    writing.add("XMP:PersonInImage", value, List);
}

KTValue KTMetadataPeopleField::valueFromiPhotoDictionary(const KTTagDictionary& record) const {
    return coerceExifToolValue(record.valueForKey("xml:people"), List);
}

KTValue KTMetadataEventField::valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                          const KTMetadataProperties& properties) const {
    return KTTagReading{tags, properties}.firstOf({"XMP:Event", "IPTC:FixtureIdentifier"}, Text);
}

void KTMetadataEventField::modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                                           const KTTagDictionary& existing,
                                                           const KTMetadataProperties& properties) const {
    KTTagWriting writing{changes, existing, properties};
    if (properties.hasIPTCBlock)
        writing.replace("IPTC:FixtureIdentifier", value);
    writing.add("XMP:Event", value);
}

KTValue KTMetadataEventField::valueFromiPhotoDictionary(const KTTagDictionary& record) const {
    return KTTagReading{record, {}}.firstOf({"sql:event", "xml:event"}, Text);
}

KTValue
KTMetadataCopyrightURLField::valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                         const KTMetadataProperties& properties) const {
    return KTTagReading{tags, properties}.firstOf({"XMP:WebStatement", "Photoshop:URL"}, Text);
}

void KTMetadataCopyrightURLField::modifyExifToolChangesDictionary(
    KTTagDictionary& changes, const KTValue& value, const KTTagDictionary& existing,
    const KTMetadataProperties& properties) const {
    KTTagWriting writing{changes, existing, properties};
    writing.replace("Photoshop:URL", value);
    writing.add("XMP:WebStatement", value);
}

KTValue KTMetadataMarkedField::valueFromExifToolDictionary(const KTTagDictionary& tags,
                                                           const KTMetadataProperties&) const {
    KTValue marked = tags.valueForKey("XMP:Marked");
    return marked == "True" ? kCopyrighted : marked == "False" ? kPublicDomain : kUnknownStatus;
}

void KTMetadataMarkedField::modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                                            const KTTagDictionary& existing,
                                                            const KTMetadataProperties& properties) const {
    KTValue marked = value == kCopyrighted    ? KTValue("True")
                     : value == kPublicDomain ? KTValue("False")
                                              : KTValue();
    KTTagWriting{changes, existing, properties}.add("XMP:Marked", marked);
}
