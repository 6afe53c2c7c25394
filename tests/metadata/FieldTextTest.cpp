#include "tests/metadata/FieldTestSupport.h"

namespace {

class FieldTextTest : public FieldTest {};

TEST_F(FieldTextTest, CaptionCopyrightAndCreatorFollowTheirBlocks) {
    const Tags caption{
        {"EXIF:ImageDescription", "a"}, {"XMP:ImageDescription", "b"}, {"XMP:UserComment", "c"}};
    EXPECT_EQ(write("caption", "new", caption, kAllBlocks), (Tags{{"EXIF:ImageDescription", "new"},
                                                                  {"IPTC:Caption-Abstract", "new"},
                                                                  {"XMP:Description", "new"},
                                                                  {"XMP:ImageDescription", "new"}}));
    EXPECT_EQ(write("caption", "new", caption, kXMPOnly),
              (Tags{{"XMP:Description", "new"}, {"XMP:ImageDescription", "new"}}));
    EXPECT_EQ(read("caption", caption, kEXIF), "a");
    EXPECT_EQ(write("copyrightNotice", "new", {}, kAllBlocks),
              (Tags{{"IPTC:CopyrightNotice", "new"}, {"XMP:Rights", "new"}}));

    const Tags creators{{"IPTC:By-line", texts({"A", "B"})}, {"XMP:Creator", texts({"A", "B"})}};
    EXPECT_EQ(read("creator", creators, kAllBlocks), "A; B");
    EXPECT_EQ(write("creator", "A; B", creators, kAllBlocks), Tags())
        << "a list that reads the same stays a list";
    EXPECT_EQ(write("creator", "C", creators, kAllBlocks),
              (Tags{{"IPTC:By-line", "C"}, {"XMP:Creator", "C"}}));
    EXPECT_EQ(write("creator", "C", {{"EXIF:Artist", "A"}}, kAllBlocks),
              (Tags{{"EXIF:Artist", "C"}, {"XMP:Creator", "C"}}));
}

TEST_F(FieldTextTest, PeopleStandInTheNewerTag) {
    const Tags older{{"XMP:People", "A"}};
    const Tags both{{"XMP:People", texts({"A"})}, {"XMP:PersonInImage", texts({"B"})}};
    EXPECT_EQ(read("people", older), texts({"A"}));
    EXPECT_EQ(read("people", both), texts({"B"}));
    EXPECT_EQ(read("people", {{"IPTC:Contact", "I"}}), texts({"I"}));
    EXPECT_EQ(read("people", {}), KTValue::List());
    EXPECT_EQ(write("people", texts({"N"}), older, kXMPOnly),
              (Tags{{"XMP:People", texts({"N"})}, {"XMP:PersonInImage", texts({"N"})}}));
    EXPECT_EQ(write("people", texts({"N"}), both, kXMPOnly), (Tags{{"XMP:PersonInImage", texts({"N"})}}));
    const Tags cleared{{"XMP:People", kDelete}, {"XMP:PersonInImage", kDelete}};
    EXPECT_EQ(write("people", {}, both, kXMPOnly), cleared) << "the older tag must not reappear";
    EXPECT_EQ(write("people", texts({"B"}), both, kXMPOnly, cleared), Tags());
}

TEST_F(FieldTextTest, EventURLAndStatus) {
    EXPECT_EQ(read("event", {{"IPTC:FixtureIdentifier", "I"}, {"XMP:Event", " "}}), "I");
    EXPECT_EQ(write("event", "E", {{"IPTC:FixtureIdentifier", "I"}}, kAllBlocks),
              (Tags{{"IPTC:FixtureIdentifier", "E"}, {"XMP:Event", "E"}}));
    EXPECT_EQ(read("copyrightURL", {{"Photoshop:URL", "p"}, {"XMP:WebStatement", "x"}}), "x");
    EXPECT_EQ(write("copyrightURL", {}, {{"Photoshop:URL", "p"}}, kXMPOnly),
              (Tags{{"Photoshop:URL", kDelete}}));
    EXPECT_EQ(read("marked", {}), " ");
    EXPECT_EQ(read("marked", {{"XMP:Marked", "True"}}), "Copyrighted");
    EXPECT_EQ(read("marked", {{"XMP:Marked", "False"}}), "Public Domain");
    EXPECT_EQ(write("marked", "Public Domain", {}, kXMPOnly), (Tags{{"XMP:Marked", "False"}}));
    EXPECT_EQ(write("marked", " ", {{"XMP:Marked", "False"}}, kXMPOnly), (Tags{{"XMP:Marked", kDelete}}));
    EXPECT_EQ(write("marked", " ", {}, kXMPOnly), Tags());
}

TEST_F(FieldTextTest, LocationShownIsWrittenThreeTimesOrNotAtAll) {
    const Tags divergent{{"IPTC:City", "I"}, {"XMP:City", "X"}, {"XMP:LocationShownCity", texts({"A", "B"})}};
    const Tags pending{{"IPTC:City", "p"}, {"XMP:City", "p"}, {"XMP:LocationShownCity", "p"}};
    EXPECT_EQ(read("cityShown", divergent, kAllBlocks), "X");
    EXPECT_EQ(write("cityShown", "X", divergent, kAllBlocks, pending), Tags());
    EXPECT_EQ(write("cityShown", "I", divergent, kAllBlocks),
              (Tags{{"XMP:City", "I"}, {"XMP:LocationShownCity", texts({"I"})}}));
    EXPECT_EQ(read("stateShown", {{"XMP:LocationShownProvinceState", texts({"A", "B"})}}, kXMPOnly), "A | B");
    EXPECT_EQ(write("stateShown", "A|C", {}, kXMPOnly),
              (Tags{{"XMP:LocationShownProvinceState", texts({"A", "C"})}, {"XMP:State", "A|C"}}));
    EXPECT_EQ(write("countryCodeShown", {}, {{"IPTC:Country-PrimaryLocationCode", "AUT"}}, kAllBlocks),
              (Tags{{"IPTC:Country-PrimaryLocationCode", kDelete}}));
}

TEST_F(FieldTextTest, CameraFields) {
    EXPECT_EQ(read("flash", {{"EXIF:Flash", 25}}), "Flash fired, auto mode.");
    EXPECT_EQ(read("flash", {{"XMP:FlashFired", "True"},
                             {"XMP:FlashMode", 3},
                             {"XMP:FlashReturn", 3},
                             {"XMP:FlashRedEyeMode", "True"}}),
              "Flash fired, auto mode, return light detected, red-eye reduction mode.");
    EXPECT_TRUE(read("flash", {{"XMP:FlashFired", 1}, {"XMP:FlashMode", 2}}).isAbsent());
    EXPECT_TRUE(read("flash", {{"XMP:FlashFunction", "True"}}).isAbsent());
    EXPECT_EQ(read("exposureProgram", {{"EXIF:ExposureProgram", 3}}, kEXIF), "Aperture priority");
    EXPECT_EQ(read("meteringMode", {{"XMP:MeteringMode", 77}}, kEXIF), 77);
    EXPECT_EQ(write("meteringMode", 5, {}, kEXIF), Tags());
    EXPECT_EQ(read("iso", {{"Composite:ISO", 200}, {"EXIF:ISO", "undef"}}, kEXIF), 200);
    EXPECT_EQ(read("serialNumber", {{"MakerNotes:SerialNumber", 4711}}, kEXIF), "4711");
    EXPECT_EQ(read("imageSize", {{"EXIF:ExifImageHeight", 4000}, {"File:ImageWidth", 6000}}), "6000 x 4000");
    EXPECT_TRUE(read("imageSize", {{"File:ImageWidth", 6000}}).isAbsent());
}

TEST_F(FieldTextTest, SensorSizeFollowsTheUnit) {
    auto width = [](int unit, const KTValue& resolution) {
        return read("focalPlaneXSize", {{"EXIF:FocalPlaneXResolution", resolution},
                                        {"EXIF:FocalPlaneResolutionUnit", unit},
                                        {"File:ImageWidth", 6000}});
    };
    EXPECT_TRUE(width(1, 4000).isAbsent());
    EXPECT_EQ(width(2, 4000), number("38.1"));
    EXPECT_EQ(width(3, 4000), 15);
    EXPECT_EQ(width(4, 4000), number("1.5"));
    EXPECT_EQ(width(5, 4000), number("0.0015"));
    EXPECT_TRUE(width(2, 0).isAbsent());
    EXPECT_EQ(read("focalPlaneYSize", {{"MakerNotes:FocalPlaneYSize", "15.6 mm"}}), number("15.6"));
}

TEST_F(FieldTextTest, LibraryRecords) {
    auto fromLibrary = [](std::string_view key, const Tags& record) {
        return field(key).valueFromiPhotoDictionary(record);
    };
    auto toLibrary = [](std::string_view key, const KTValue& value, const Tags& record) {
        Tags changes;
        field(key).modifyiPhotoChangesDictionary(changes, value, record);
        return changes;
    };
    EXPECT_EQ(fromLibrary("caption", {{"xml:caption", kDelete}, {"sql:caption", "c"}, {"sb:caption", "d"}}),
              "c");
    EXPECT_TRUE(
        fromLibrary("title", {{"xml:title", "img_1"}, {"xml:originalPath", "/a/IMG_1.JPG"}}).isAbsent());
    EXPECT_EQ(fromLibrary("title", {{"xml:title", "b"}, {"xml:imagePath", "/a/c.jpg"}}), "b");
    EXPECT_EQ(fromLibrary("keywords", {}), KTValue::List());
    EXPECT_EQ(fromLibrary("event", {{"xml:event", "x"}, {"sql:event", "s"}}), "s");
    EXPECT_TRUE(fromLibrary("headline", {{"xml:headline", "h"}}).isAbsent());

    const Tags record{{"xml:dateInterval", 86401}, {"xml:rating", 3}, {"sql:latitude", number("47.5")}};
    EXPECT_TRUE(fromLibrary("dateTimeOriginalComponents", record)
                    .components()
                    ->hasSameReading(components("2001:01:02 00:00:01")));
    EXPECT_TRUE(fromLibrary("dateTimeOriginalComponents", {{"xml:dateInterval", number("1e30")}}).isAbsent());
    EXPECT_EQ(toLibrary("dateTimeOriginalComponents", components("2001:01:02 00:00:01"), record), Tags());
    EXPECT_EQ(toLibrary("dateTimeOriginalComponents", components("2001:01:02 00:00:02"), record),
              (Tags{{"date", "2001:01:02 00:00:02"}}));
    EXPECT_EQ(toLibrary("rating", 3, record), Tags());
    EXPECT_EQ(toLibrary("latitude", {}, record), (Tags{{"latitude", kDelete}}));
    EXPECT_EQ(toLibrary("people", texts({"A"}), {}), Tags());
    for (const auto& each : KTMetadataFieldManager::sharedMetadataFieldManager().metadataFields()) {
        const std::vector<std::string> synced = {"title",    "caption",   "dateTimeOriginalComponents",
                                                 "latitude", "longitude", "rating"};
        EXPECT_EQ(each->iPhotoSupported(), std::ranges::count(synced, each->key()) == 1) << each->key();
    }
}

} // namespace
