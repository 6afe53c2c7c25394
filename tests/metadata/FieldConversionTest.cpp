#include "tests/metadata/FieldTestSupport.h"

namespace {

class FieldConversionTest : public FieldTest {};

KTValue coerce(const KTValue& value, KTValueType type) {
    return KTMetadataField::coerceExifToolValue(value, type);
}

TEST_F(FieldConversionTest, TagDictionaryKeepsOneEntryAKeyInOrder) {
    Tags tags(std::vector<Tags::Entry>{{KTTagKey("XMP:B"), 1},
                                       {KTTagKey("EXIF:A"), 2},
                                       {KTTagKey("XMP:B"), 3},
                                       {KTTagKey("IPTC:C"), {}},
                                       {KTTagKey("EXIF:A"), 4}});
    EXPECT_EQ(tags, (Tags{{"EXIF:A", 4}, {"XMP:B", 3}}));
    tags.set("EXIF:Z", kDelete);
    tags.set("XMP:B", {});
    EXPECT_EQ(tags, (Tags{{"EXIF:A", 4}, {"EXIF:Z", kDelete}}));
    EXPECT_TRUE(tags.find("EXIF:Z"));
    EXPECT_FALSE(tags.hasValue("EXIF:Z"));
    EXPECT_TRUE(tags.valueForKey("EXIF:").isAbsent());
    EXPECT_EQ(&tags.begin()->key.text(), &KTTagKey("EXIF:A").text());
}

TEST_F(FieldConversionTest, CoercesTagValues) {
    struct Case {
        KTValue value;
        KTValueType type;
        KTValue expected;
    };
    KTInstant tenUTC = std::chrono::sys_days(std::chrono::year(2012) / 7 / 4) + std::chrono::hours(10);
    const Case cases[] = {
        {" \n ", Text, {}},
        {" a ", Text, " a "},
        {number("0.00000001"), Text, "0.00000001"},
        {KTValue::List{"a", " ", 5, "b"}, Text, "a | 5 | b"},
        {KTValue::List{}, Text, {}},
        {kDelete, Text, {}},
        {"TRUE", Decimal, 1},
        {"False", Decimal, 0},
        {"inf", Decimal, {}},
        {"undef", Decimal, {}},
        {" 50.5 mm", Decimal, number("50.5")},
        {"\n", Decimal, {}},
        {KTValue::List{1}, Decimal, {}},
        {"a | b\t| c", List, texts({"a", "b", "c"})},
        {"a||", List, texts({"a", "", ""})},
        {KTValue::List{"a", 12, number("1.50")}, List, texts({"a", "12", "1.5"})},
        {7, List, texts({"7"})},
        {{}, List, KTValue::List{}},
        {"2012:07:04 10:00:00Z", Date, tenUTC},
        {"2012:07:04 13:00:00+03:00", Date, tenUTC},
        {"2012:07:04 12:00:00.75", Date, tenUTC}, // in the assumed zone
        {"0000:00:00 00:00:00", Date, {}},
        {20120704, Date, {}},
        {"2012:07", DateComponents, components("2012:07")},
        {"yesterday", DateComponents, {}},
        {"a", None, {}},
    };
    for (const Case& each : cases)
        EXPECT_EQ(coerce(each.value, each.type), each.expected)
            << describe(each.value) << " to " << int(each.type);
}

TEST_F(FieldConversionTest, RecordsOnlyWhatDiffers) {
    auto add = [](const KTValue& value, KTValueType type, const Tags& existing,
                  Tags changes = {{"X", "old"}}) {
        KTMetadataField::addValue(value, type, "X", changes, existing);
        return changes;
    };
    auto replace = [](const KTValue& value, KTValueType type, const Tags& existing) {
        Tags changes{{"X", "old"}};
        KTMetadataField::replaceValue(value, type, "X", changes, existing);
        return changes;
    };
    const Tags withdrawn, untouched{{"X", "old"}}, deleted{{"X", kDelete}};
    EXPECT_EQ(add("a", Text, {}), (Tags{{"X", "a"}}));
    EXPECT_EQ(add("a", Text, {{"X", "a"}}), withdrawn);
    EXPECT_EQ(add(5, Text, {{"X", "5"}}), withdrawn);
    EXPECT_EQ(add({}, Text, {{"X", "a"}}), deleted);
    EXPECT_EQ(add({}, Text, {{"X", " "}}), withdrawn) << "a tag of blanks reads as none";
    EXPECT_EQ(add(KTValue::List{}, List, {{"X", "a"}}), deleted);
    EXPECT_EQ(add({}, List, {}), withdrawn);
    EXPECT_EQ(add(number("51.500000009"), Decimal, {{"X", number("51.5")}}), withdrawn);
    EXPECT_EQ(add(number("51.5"), Decimal, {{"X", "51.50000001"}}), (Tags{{"X", number("51.5")}}));
    EXPECT_EQ(replace("a", Text, {}), untouched);
    EXPECT_EQ(replace("a", Text, {{"X", " "}}), untouched);
    EXPECT_EQ(replace("a", Text, {{"X", "b"}}), (Tags{{"X", "a"}}));
    EXPECT_EQ(replace("b", Text, {{"X", "b"}}), withdrawn);
    EXPECT_EQ(replace({}, Text, {{"X", "b"}}), deleted);
    EXPECT_EQ(replace(texts({"a"}), List, {{"X", kDelete}}), untouched);
}

TEST_F(FieldConversionTest, DigestDecidesBetweenBlocks) {
    const Properties matching{true, true, true, true, true}, mismatching{true, true, true, true, false};
    struct Case {
        Properties properties;
        KTValue iptc, xmp;
        const char* expectedOfTwo;
        const char* expectedOfThree; // with "exif" in EXIF
    };
    const Case cases[] = {
        {matching, "iptc", "xmp", "xmp", "exif"},
        {mismatching, "iptc", "xmp", "iptc", "iptc"},
        {kAllBlocks, "iptc", "xmp", "xmp", "exif"},
        {kAllBlocks, "iptc", {}, "iptc", "exif"},
        {{.hasEXIFBlock = true, .hasXMPBlock = true}, "iptc", "xmp", "xmp", "exif"},
        {{.hasEXIFBlock = true, .hasIPTCBlock = true}, "iptc", "xmp", "iptc", "exif"},
        {{.hasXMPBlock = true}, "iptc", "xmp", "xmp", "xmp"},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(KTMetadataField::valueFromIPTCValue(each.iptc, each.xmp, each.properties),
                  each.expectedOfTwo);
        EXPECT_EQ(KTMetadataField::valueFromEXIFValue("exif", each.iptc, each.xmp, each.properties),
                  each.expectedOfThree);
    }
    const Tags keywords{{"IPTC:Keywords", texts({"a", "b"})}, {"XMP:Subject", "c"}};
    EXPECT_EQ(read("keywords", keywords, matching), texts({"c"}));
    EXPECT_EQ(read("keywords", keywords, mismatching), texts({"a", "b"}));
    EXPECT_EQ(read("keywords", keywords, kAllBlocks), texts({"c"}));
    EXPECT_EQ(read("keywords", {{"IPTC:Keywords", "a"}}, matching), texts({"a"}));
}

TEST_F(FieldConversionTest, SimpleFieldsTouchTheBlocksThatTheFileHas) {
    const Tags both{{"IPTC:Headline", "a"}, {"XMP:Headline", "a"}};
    EXPECT_EQ(write("headline", "b", both, kAllBlocks),
              (Tags{{"IPTC:Headline", "b"}, {"XMP:Headline", "b"}}));
    EXPECT_EQ(write("headline", "b", {}, kEXIF), (Tags{{"XMP:Headline", "b"}}));
    EXPECT_EQ(write("gpsMapDatum", "WGS-84", {}, kEXIF), (Tags{{"EXIF:GPSMapDatum", "WGS-84"}}));
    EXPECT_EQ(write("gpsMapDatum", "WGS-84", {{"XMP:GPSMapDatum", "x"}}, kAllBlocks),
              (Tags{{"EXIF:GPSMapDatum", "WGS-84"}, {"XMP:GPSMapDatum", "WGS-84"}}));
    EXPECT_EQ(write("gpsMapDatum", "WGS-84", {}, kXMPOnly), (Tags{{"XMP:GPSMapDatum", "WGS-84"}}));
    EXPECT_EQ(write("label", {}, {{"XMP:Label", "Red"}}, kXMPOnly), (Tags{{"XMP:Label", kDelete}}));
    EXPECT_EQ(write("keywords", KTValue::List{"a", 5}, {}, kXMPOnly),
              (Tags{{"XMP:Subject", texts({"a", "5"})}}));
    EXPECT_EQ(write("worldRegionShown", "Europe | Asia", {}, kXMPOnly),
              (Tags{{"XMP:LocationShownWorldRegion", texts({"Europe", "Asia"})}}));
    EXPECT_EQ(write("worldRegionShown", " ", {}, kXMPOnly), Tags());
    EXPECT_EQ(
        read("worldRegionShown", {{"XMP:LocationShownWorldRegion", texts({"Europe", "Asia"})}}, kXMPOnly),
        "Europe | Asia");
    EXPECT_EQ(write("lens", "50mm", {}, kEXIF), Tags()) << "composite values are only read";
}

} // namespace
