#include "tests/corpus/IntendedTags.h"

#include "platform/common/KTText.h"

#include <regex>

namespace {

// No photo of a corpus was taken in these very seconds, so that both dates are always changed.
constexpr const char* kOriginalDate = "2013:05:06";
constexpr const char* kOriginalTime = "07:08:09";
constexpr const char* kDigitizedDate = "2014:07:08";
constexpr const char* kDigitizedTime = "09:10:11";
constexpr const char* kCaption = "Round trip at the café";
constexpr const char *kLatitude = "33.856784", *kLongitude = "151.215297"; // south, east
constexpr const char *kDirection = "123.5", *kRating = "4";
const std::vector<std::string> kKeywords = {"alpha", "beta gamma"};
const std::vector<std::string> kPeople = {"Ada Example", "Ben Example"};

constexpr const char* kZoneOfThisProcess = "+00:00";

/// The tags that hold one of the two dates.
struct DateTags {
    const char *exif, *xmp, *xmpDate, *iptcDate, *iptcTime;
};

constexpr DateTags kOriginal = {"EXIF:ExifIFD:DateTimeOriginal", "XMP:XMP-exif:DateTimeOriginal",
                                "XMP:XMP-photoshop:DateCreated", "IPTC:DateCreated", "IPTC:TimeCreated"};
constexpr DateTags kDigitized = {"EXIF:ExifIFD:CreateDate", "XMP:XMP-exif:DateTimeDigitized",
                                 "XMP:XMP-xmp:CreateDate", "IPTC:DigitalCreationDate",
                                 "IPTC:DigitalCreationTime"};

/// Collects what one file must hold.
class Intention {
public:
    Intention(const FileTags& tagsBefore, bool isImage)
        : before(tagsBefore), hasEXIF(isImage), hasIPTC(tagsBefore.hasGroup("IPTC")) {}

    IntendedTags tags;

    void caption() {
        if (hasEXIF)
            replace("EXIF:IFD0:ImageDescription", kCaption);
        if (hasIPTC)
            add("IPTC:Caption-Abstract", kCaption);
        replace("XMP:XMP-tiff:ImageDescription", kCaption);
        add("XMP:XMP-dc:Description", kCaption);
    }

    void lists() {
        if (hasIPTC) {
            add("IPTC:Keywords", listText(kKeywords));
            replace("IPTC:Contact", listText(kPeople));
        }
        add("XMP:XMP-dc:Subject", listText(kKeywords));
        if (valueOf("XMP:PersonInImage").empty())
            replace("XMP:XMP-mediapro:People", listText(kPeople));
        add("XMP:XMP-iptcExt:PersonInImage", listText(kPeople));
    }

    void rating() { add("XMP:XMP-xmp:Rating", kRating); }

    void place() {
        gps("GPSLatitude", kLatitude, "S", "-" + std::string(kLatitude));
        gps("GPSLongitude", kLongitude, "E", kLongitude);
        gps("GPSImgDirection", kDirection, "T", kDirection);
        if (hasEXIF)
            replace("XMP:XMP-exif:GPSImgDirectionRef", "T");
        else
            add("XMP:XMP-exif:GPSImgDirectionRef", "T");
    }

    void date(const DateTags& keys, const std::string& date, const std::string& time) {
        const std::string text = date + " " + time;
        if (hasEXIF)
            add(keys.exif, text);
        if (!hasEXIF || !valueOf(keys.xmp).empty())
            add(keys.xmp, text);
        add(keys.xmpDate, text + zoneOf(valueOf(keys.xmpDate)));
        replace(keys.iptcDate, date);
        const std::string zone = zoneOf(valueOf(keys.iptcTime));
        replace(keys.iptcTime, time + (zone.empty() ? kZoneOfThisProcess : zone)); // it must have one
    }

private:
    /// The text of a tag, whichever directory of its group it is in; empty for none and for blanks.
    std::string valueOf(const std::string& key) const {
        const std::string value = before.textOf(key.substr(0, key.find(':')) + key.substr(key.rfind(':')));
        return KTTrimmed(value).empty() ? std::string() : value;
    }
    void add(const std::string& key, const std::string& value) {
        if (!key.starts_with("IPTC:"))
            tags[key] = {value};
        else
            for (const std::string& block : iptcBlocks()) // a file may have several; they are kept alike
                tags[block + key.substr(key.find(':'))] = {value};
    }
    void replace(const std::string& key, const std::string& value) {
        if (!valueOf(key).empty())
            add(key, value);
    }
    std::set<std::string> iptcBlocks() const {
        std::set<std::string> blocks = {"IPTC"};
        for (const FileTags::Tag& tag : before.tags)
            if (tag.key.starts_with("IPTC:"))
                blocks.insert(tag.key.substr(0, tag.key.rfind(':')));
        return blocks;
    }
    /// The fraction of a second and the zone at the end of a date or time.
    static std::string zoneOf(const std::string& text) {
        std::smatch match;
        static const std::regex zone(":[0-9]{2}((\\.[0-9]+)?(Z|[+-][0-9]{2}:[0-9]{2})?)$");
        return std::regex_search(text, match, zone) ? match.str(1) : std::string();
    }
    void gps(const std::string& name, const std::string& magnitude, const char* reference,
             const std::string& inXMP) {
        if (!hasEXIF)
            return add("XMP:XMP-exif:" + name, inXMP);
        add("EXIF:GPS:" + name, magnitude);
        add("EXIF:GPS:" + name + "Ref", reference);
        replace("XMP:XMP-exif:" + name, inXMP);
    }

    const FileTags& before;
    const bool hasEXIF, hasIPTC;
};

KTDateComponents components(const std::string& date, const std::string& time) {
    return *KTDateComponents::dateComponentsWithString(date + " " + time);
}

IntendedTags intended(Edit edit, const FileTags& before, bool isImage) {
    Intention intention(before, isImage);
    intention.rating();
    if (edit == Edit::RatingAlone)
        return intention.tags;
    intention.caption();
    intention.lists();
    intention.place();
    intention.date(kOriginal, kOriginalDate, kOriginalTime);
    intention.date(kDigitized, kDigitizedDate, kDigitizedTime);
    return intention.tags;
}

} // namespace

std::map<std::string, KTValue> editedValues(Edit edit) {
    const KTValue rating = KTDecimal::fromText(kRating);
    if (edit == Edit::RatingAlone)
        return {{"rating", rating}};
    return {{"caption", kCaption},
            {"keywords", KTValue::listOfTexts(kKeywords)},
            {"people", KTValue::listOfTexts(kPeople)},
            {"rating", rating},
            {"latitude", KTDecimal::fromText("-" + std::string(kLatitude))},
            {"longitude", KTDecimal::fromText(kLongitude)},
            {"imageDirection", KTDecimal::fromText(kDirection)},
            {"dateTimeOriginalComponents", components(kOriginalDate, kOriginalTime)},
            {"dateTimeDigitizedComponents", components(kDigitizedDate, kDigitizedTime)}};
}

IntendedTags intendedInImage(Edit edit, const FileTags& before) {
    return intended(edit, before, true);
}

IntendedTags intendedInSidecar(Edit edit, const FileTags& before) {
    return intended(edit, before, false);
}
