#include "tests/corpus/NewSidecar.h"

#include "platform/common/KTText.h"
#include "tests/corpus/TagComparison.h"

#include <algorithm>

namespace {

/// Where the properties of a photo are kept in XMP, and where an image may hold their values under other
/// names. A sidecar made anew has them all.
struct Place {
    const char* xmp;
    std::vector<const char*> inImage;
};

const std::vector<Place> kPlaces = {
    {"XMP:XMP-dc:Title", {"XMP:Title", "IPTC:ObjectName"}},
    {"XMP:XMP-dc:Description",
     {"XMP:Description", "EXIF:ImageDescription", "XMP:ImageDescription", "IPTC:Caption-Abstract"}},
    {"XMP:XMP-dc:Subject", {"XMP:Subject", "IPTC:Keywords"}},
    {"XMP:XMP-dc:Creator", {"XMP:Creator", "EXIF:Artist", "IPTC:By-line"}},
    {"XMP:XMP-dc:Rights", {"XMP:Rights", "EXIF:Copyright", "IPTC:CopyrightNotice"}},
    {"XMP:XMP-iptcExt:PersonInImage", {"XMP:PersonInImage", "XMP:People", "IPTC:Contact"}},
    {"XMP:XMP-iptcExt:Event", {"XMP:Event", "IPTC:FixtureIdentifier"}},
    {"XMP:XMP-iptcCore:IntellectualGenre", {"XMP:IntellectualGenre", "IPTC:ObjectAttributeReference"}},
    {"XMP:XMP-iptcCore:SubjectCode", {"XMP:SubjectCode", "IPTC:SubjectReference"}},
    {"XMP:XMP-iptcCore:CountryCode", {"XMP:CountryCode", "IPTC:Country-PrimaryLocationCode"}},
    {"XMP:XMP-iptcCore:Location", {"XMP:Location", "IPTC:Sub-location"}},
    {"XMP:XMP-photoshop:City", {"XMP:City", "IPTC:City"}},
    {"XMP:XMP-photoshop:State", {"XMP:State", "IPTC:Province-State"}},
    {"XMP:XMP-photoshop:Country", {"XMP:Country", "IPTC:Country-PrimaryLocationName"}},
    {"XMP:XMP-photoshop:Urgency", {"XMP:Urgency", "IPTC:Urgency"}},
    {"XMP:XMP-photoshop:TransmissionReference",
     {"XMP:TransmissionReference", "IPTC:OriginalTransmissionReference"}},
    {"XMP:XMP-photoshop:Category", {"XMP:Category", "IPTC:Category"}},
    {"XMP:XMP-photoshop:SupplementalCategories",
     {"XMP:SupplementalCategories", "IPTC:SupplementalCategories"}},
    {"XMP:XMP-photoshop:Headline", {"XMP:Headline", "IPTC:Headline"}},
    {"XMP:XMP-photoshop:CaptionWriter", {"XMP:CaptionWriter", "IPTC:Writer-Editor"}},
    {"XMP:XMP-photoshop:AuthorsPosition", {"XMP:AuthorsPosition", "IPTC:By-lineTitle"}},
    {"XMP:XMP-photoshop:Credit", {"XMP:Credit", "IPTC:Credit"}},
    {"XMP:XMP-photoshop:Instructions", {"XMP:Instructions", "IPTC:SpecialInstructions"}},
    {"XMP:XMP-photoshop:Source", {"XMP:Source", "IPTC:Source"}},
    {"XMP:XMP-xmpRights:WebStatement", {"XMP:WebStatement", "Photoshop:URL"}},
};

/// A sidecar made anew holds these dates where the image holds a date at all.
const std::set<std::string> kDates = {"XMP:XMP-exif:DateTimeOriginal", "XMP:XMP-exif:DateTimeDigitized",
                                      "XMP:XMP-photoshop:DateCreated", "XMP:XMP-xmp:CreateDate"};

/// The parts of a "LocationShown" and the tags that tell the same on their own.
const std::map<std::string, std::string> kPartsOfPlaceShown = {{"City", "XMP:City"},
                                                               {"CountryCode", "XMP:CountryCode"},
                                                               {"CountryName", "XMP:Country"},
                                                               {"ProvinceState", "XMP:State"},
                                                               {"Sublocation", "XMP:Location"}};

std::string placeShown(const FileTags& sidecar) {
    std::string parts;
    for (const auto& [part, key] : kPartsOfPlaceShown)
        if (const std::string value(KTTrimmed(sidecar.textOf(key))); !value.empty())
            parts += (parts.empty() ? "\"" : ",\"") + part + "\":\"" + value + "\"";
    return parts;
}

/// Lists of one element and single values are the same to the formats.
std::string asOne(std::string text) {
    if (text.starts_with("[\"") && text.find("\",\"") == text.npos)
        text = text.substr(2, text.size() - 4);
    return std::string(KTTrimmed(text));
}

/// Every value that @p place may have, as the image tells it.
std::set<std::string> valuesInImage(const Place& place, const FileTags& image) {
    std::set<std::string> result;
    for (const char* key : place.inImage)
        for (const std::string& value : image.all(key))
            result.insert(asOne(value));
    result.erase("");
    return result;
}

/// "XMP:Title" of "XMP:XMP-dc:Title".
std::string shortKey(const std::string& key) {
    return "XMP" + key.substr(key.rfind(':'));
}

void intend(IntendedTags& intended, const std::string& key, const std::string& value) {
    if (!value.empty())
        intended.try_emplace(key, std::vector{value});
}

void intendPlace(IntendedTags& intended, const Place& place, const FileTags& image, const FileTags& found,
                 std::vector<std::string>& problems) {
    const std::set<std::string> values = valuesInImage(place, image);
    if (values.empty() || intended.contains(place.xmp))
        return;
    const std::string value = found.textOf(shortKey(place.xmp));
    if (!values.contains(asOne(value)))
        problems.push_back(std::string(place.xmp) + ": \"" + value + "\", which the image does not tell");
    intend(intended, place.xmp, value);
}

/// An edited date keeps the zone that the image's XMP tells; another one is never told less exactly than in
/// the copy, unless the image's EXIF block tells another one.
void intendDate(IntendedTags& intended, const std::string& key, const FileTags& image, const FileTags& made,
                const FileTags& found) {
    constexpr std::size_t dateTimeLength = 19;
    const std::string date = found.textOf(shortKey(key)), dateMade = made.textOf(shortKey(key));
    const auto edited = intended.find(key);
    if (edited != intended.end()) {
        const std::string zone = date.substr(std::min(date.size(), dateTimeLength));
        if (image.textOf(shortKey(key)).ends_with(zone))
            edited->second = {edited->second.front().substr(0, dateTimeLength) + zone};
    } else if (date.starts_with(dateMade) || date == image.textOf("EXIF:DateTimeOriginal") ||
               date == image.textOf("EXIF:CreateDate")) {
        intend(intended, key, date);
    }
}

/// Of a place, that which this program writes in its own way.
void intendPosition(IntendedTags& intended, const FileTags& image, const FileTags& made,
                    const FileTags& found) {
    const std::string direction = found.textOf("XMP:GPSImgDirection");
    if (image.textOf("EXIF:GPSImgDirectionRef") == "M" || image.textOf("XMP:GPSImgDirectionRef") == "M") {
        intend(intended, "XMP:XMP-exif:GPSImgDirectionRef", "T"); // a photo shows directions from true north
        intend(intended, "XMP:XMP-exif:GPSImgDirection", direction);
    }
    if (!made.all("XMP:GPSVersionID").empty() && found.textOf("XMP:GPSVersionID") == "2.2.0.0")
        intend(intended, "XMP:XMP-exif:GPSVersionID", "2.2.0.0");
    if (!found.all("XMP:GPSAltitude").empty())
        intend(intended, "XMP:XMP-exif:GPSAltitudeRef", found.textOf("XMP:GPSAltitudeRef"));
}

} // namespace

std::vector<std::string> differencesOfNewSidecar(const FileTags& image, const FileTags& made,
                                                 const FileTags& found, IntendedTags intended) {
    std::vector<std::string> problems;
    for (const Place& place : kPlaces)
        intendPlace(intended, place, image, found, problems);
    for (const std::string& key : kDates)
        intendDate(intended, key, image, made, found);
    const std::string shown = placeShown(found);
    if (!shown.empty() && made.all("XMP:LocationShown").empty())
        intended["XMP:XMP-iptcExt:LocationShown"] = {"[{" + shown + "}]"};
    intendPosition(intended, image, made, found);
    std::ranges::move(differences(made, found, intended), std::back_inserter(problems));
    return problems;
}
