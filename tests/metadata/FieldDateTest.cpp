#include "tests/metadata/FieldTestSupport.h"

#include "platform/common/KTCalendar.h"

namespace {

class FieldDateTest : public FieldTest {};

const std::string kOriginal = "dateTimeOriginalComponents";
const std::string kDigitized = "dateTimeDigitizedComponents";

KTInstant utc(std::string_view text) {
    return KTCalendar(KTTimeZone::utc()).dateFromComponents(components(text)).value();
}

KTValue labelled(std::string_view text) {
    KTDateComponents date = components(text);
    date.timeZone = KTTimeZone::fixed(7200);
    return date;
}

TEST_F(FieldDateTest, ReadsTheWinningBlockInTheAssumedZone) {
    const Tags tags{{"EXIF:DateTimeOriginal", "2012:07:04 10:00:00"},
                    {"XMP:DateTimeOriginal", "2012:07:04 11:00:00+05:00"}};
    EXPECT_EQ(read(kOriginal, tags, kEXIF), labelled("2012:07:04 10:00:00"));
    EXPECT_EQ(read(kOriginal, tags, kXMPOnly), labelled("2012:07:04 11:00:00"));
    const Tags iptc{{"EXIF:DateTimeOriginal", "2012:07:04 10:00:00"},
                    {"Composite:DateTimeCreated", "2012:07:04 12:00:00+02:00"}};
    EXPECT_EQ(read(kOriginal, iptc, {true, true, true, true, false}), labelled("2012:07:04 12:00:00"));
    EXPECT_EQ(read(kOriginal, iptc, kAllBlocks), labelled("2012:07:04 10:00:00"));
    const Tags digitized{{"EXIF:CreateDate", "2013:01:01 00:00:00"}};
    EXPECT_EQ(read(kOriginal, digitized, kEXIF), labelled("2013:01:01 00:00:00"));
    EXPECT_TRUE(read(kDigitized, {{"EXIF:DateTimeOriginal", "2013:01:01 00:00:00"}}, kEXIF).isAbsent());
}

TEST_F(FieldDateTest, AnUnchangedDateKeepsWhatStandsInTheFile) {
    const Tags tags{{"EXIF:DateTimeOriginal", "2012:07:04 10:00:00"},
                    {"XMP:DateTimeOriginal", "2012:07:04 10:00:00.25+02:00"},
                    {"XMP:DateCreated", "2012:07:04 09:00:00"},
                    {"IPTC:DateCreated", "2012:07:04"},
                    {"IPTC:TimeCreated", "10:00:00+02:00"}};
    const Tags earlier{
        {"EXIF:DateTimeOriginal", "2000"}, {"XMP:DateTimeOriginal", "2000"}, {"XMP:DateCreated", "2000"}};
    EXPECT_EQ(write(kOriginal, read(kOriginal, tags, kAllBlocks), tags, kAllBlocks, earlier), Tags());
}

TEST_F(FieldDateTest, AChangedDateKeepsZonesInXMPDateAndIPTC) {
    const Tags tags{{"EXIF:DateTimeOriginal", "2012:07:04 10:00:00"},
                    {"XMP:DateTimeOriginal", "2012:07:04 10:00:00+02:00"},
                    {"XMP:DateCreated", "2012:07:04 10:00:00.5+02:00"},
                    {"IPTC:DateCreated", "2012:07:04"},
                    {"IPTC:TimeCreated", "10:00:00+02:00"}};
    EXPECT_EQ(write(kOriginal, components("2012:07:05 11:30:00"), tags, kAllBlocks),
              (Tags{{"EXIF:DateTimeOriginal", "2012:07:05 11:30:00"},
                    {"XMP:DateTimeOriginal", "2012:07:05 11:30:00"},
                    {"XMP:DateCreated", "2012:07:05 11:30:00.5+02:00"},
                    {"IPTC:DateCreated", "2012:07:05"},
                    {"IPTC:TimeCreated", "11:30:00+02:00"}}));
    for (auto [existing, written] : {std::pair{"2012:07:04 10:00+02:00", "2012:07:05 11:30:00+02:00"},
                                     {"2012:07:04 10:00:00, 2012:07:04", "2012:07:05 11:30:00"},
                                     {"2012:07:04", "2012:07:05 11:30:00"}})
        EXPECT_EQ(write(kOriginal, components("2012:07:05 11:30:00"), {{"XMP:DateCreated", existing}}, kEXIF)
                      .valueForKey("XMP:DateCreated"),
                  KTValue(written))
            << existing;
    EXPECT_EQ(
        write(kDigitized, components("2012:07:05 11:30:00"), {}, kXMPOnly),
        (Tags{{"XMP:DateTimeDigitized", "2012:07:05 11:30:00"}, {"XMP:CreateDate", "2012:07:05 11:30:00"}}));
    EXPECT_EQ(write(kDigitized, components("2012:07:05 11:30:00"), {}, kEXIF),
              (Tags{{"EXIF:CreateDate", "2012:07:05 11:30:00"}, {"XMP:CreateDate", "2012:07:05 11:30:00"}}));
}

TEST_F(FieldDateTest, AnAbsentDateIsAbsentEverywhereAndAPartialOneHasNoZone) {
    const Tags tags{{"EXIF:DateTimeOriginal", "2012:07:04 10:00:00"},
                    {"XMP:DateTimeOriginal", "2012:07:04 10:00:00+02:00"},
                    {"XMP:DateCreated", "2012:07:04 10:00:00+02:00"},
                    {"IPTC:DateCreated", "2012:07:04"},
                    {"IPTC:TimeCreated", "10:00:00+02:00"}};
    const Tags deleted{{"EXIF:DateTimeOriginal", kDelete},
                       {"XMP:DateTimeOriginal", kDelete},
                       {"XMP:DateCreated", kDelete},
                       {"IPTC:DateCreated", kDelete},
                       {"IPTC:TimeCreated", kDelete}};
    KTDateComponents withoutYear;
    withoutYear.hour = 12;
    for (const KTValue& absent : {KTValue(), kDelete, KTValue(withoutYear)})
        EXPECT_EQ(write(kOriginal, absent, tags, kAllBlocks), deleted);
    EXPECT_EQ(write(kOriginal, {}, {}, kAllBlocks), Tags());
    EXPECT_EQ(
        write(kOriginal, components("2012:07:04"), tags, kAllBlocks).valueForKey("XMP:DateTimeOriginal"),
        "2012:07:04")
        << "not what only begins like it";
    EXPECT_EQ(write(kOriginal, components("2014:05"), tags, kAllBlocks),
              (Tags{{"EXIF:DateTimeOriginal", "2014:05:     :  :  "},
                    {"XMP:DateTimeOriginal", "2014:05"},
                    {"XMP:DateCreated", "2014:05"},
                    {"IPTC:DateCreated", "2014:05:00"},
                    {"IPTC:TimeCreated", "00:00:00"}}));
}

TEST_F(FieldDateTest, ModifyAndMetadataDatesCarryTheComputersZone) {
    const KTInstant noon = utc("2014:06:01 12:00:00");
    const KTTimeZone zone = KTTimeZone::system();
    std::string offset = zone.offsetText(noon);
    std::string text =
        *KTCalendar(zone).componentsFromDate(noon).xmpString() + (offset == "Z" ? "+00:00" : offset);
    EXPECT_EQ(write("modifyDate", noon, {{"XMP:DateTime", "x"}}, kEXIF),
              (Tags{{"EXIF:ModifyDate", text}, {"XMP:DateTime", text}, {"XMP:ModifyDate", text}}));
    EXPECT_EQ(write("metadataDate", noon, {}, kEXIF), (Tags{{"XMP:MetadataDate", text}}));
    EXPECT_EQ(write("metadataDate", {}, {{"XMP:MetadataDate", text}}, kEXIF),
              (Tags{{"XMP:MetadataDate", kDelete}}));
    const Tags tags{{"EXIF:ModifyDate", "2014:06:01 14:00:00"}, {"XMP:ModifyDate", "2014:06:01 11:00:00Z"}};
    EXPECT_EQ(read("modifyDate", tags, kEXIF), noon) << "the later one, 14:00 at UTC+2";
    EXPECT_EQ(read("modifyDate", {{"XMP:ModifyDate", "2014:06:01 12:00:00Z"}}, kEXIF), noon);
}

TEST_F(FieldDateTest, GPSDatesAreUTC) {
    const KTInstant noon = utc("2014:06:01 12:00:00");
    const Tags tags{{"EXIF:GPSDateStamp", "2014:06:01"},
                    {"EXIF:GPSTimeStamp", "12:00:00.5"},
                    {"XMP:GPSDateTime", "2014:06:01 11:00:00Z"}};
    EXPECT_EQ(read("gpsDateTime", tags, kEXIF), noon);
    EXPECT_EQ(
        read("gpsDateTime", {{"EXIF:GPSTimeStamp", "10:00:00"}, {"XMP:GPSDateTime", "2014:06:01 12:00:00Z"}}),
        noon);
    EXPECT_EQ(write("gpsDateTime", noon, tags, kEXIF), (Tags{{"XMP:GPSDateTime", "2014:06:01 12:00:00Z"}}))
        << "sub-seconds stay";
    EXPECT_EQ(write("gpsDateTime", utc("2014:06:02 12:00:00"), tags, kEXIF),
              (Tags{{"EXIF:GPSDateStamp", "2014:06:02"},
                    {"EXIF:GPSTimeStamp", "12:00:00"},
                    {"XMP:GPSDateTime", "2014:06:02 12:00:00Z"}}));
    EXPECT_EQ(
        write("gpsDateTime", {}, tags, kEXIF),
        (Tags{{"EXIF:GPSDateStamp", kDelete}, {"EXIF:GPSTimeStamp", kDelete}, {"XMP:GPSDateTime", kDelete}}));
    EXPECT_EQ(write("gpsDateTime", noon, {}, kXMPOnly), (Tags{{"XMP:GPSDateTime", "2014:06:01 12:00:00Z"}}));
}

} // namespace
