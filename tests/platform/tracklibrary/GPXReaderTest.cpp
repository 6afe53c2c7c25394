#include "platform/tracklibrary/GPXReader.h"

#include "platform/tracklibrary/GPXTime.h"
#include "tests/platform/tracklibrary/TrackTestSupport.h"

#include <rapidcheck/gtest.h>

namespace {

struct Reading {
    CollectingSink found;
    std::optional<TrackFileProblem> problem;
};

/// Reads @p text in pieces of @p pieceLength bytes.
Reading read(std::string_view text, std::size_t pieceLength = 1 << 18) {
    Reading result;
    GPXReader reader(result.found);
    while (!text.empty() && reader.append(text.substr(0, pieceLength)))
        text.remove_prefix(std::min(pieceLength, text.size()));
    reader.finish();
    result.problem = reader.problem();
    return result;
}

std::string nameReadFrom(std::string_view text, std::size_t pieceLength = 1 << 18) {
    Reading reading = read(text, pieceLength);
    if (reading.problem)
        return "problem: " + reading.problem->text;
    return reading.found.waypoints.empty() ? "nothing" : reading.found.waypoints[0].name;
}

std::string utf16(std::string_view ascii) {
    std::string result = "\xFF\xFE";
    for (char c : ascii)
        result += {c, '\0'};
    return result;
}

} // namespace

TEST(GPXReader, ReadsTracksRoutesAndWaypointsWhateverThePieces) {
    const std::string text =
        gpx(R"(<metadata><name>not a track</name><time>2000-01-01T00:00:00Z</time></metadata>
<wpt lat="1.5" lon="-2.5"><ele>12</ele><time>2014-06-01T10:00:00Z</time><name>Hut &amp; well</name><desc>open</desc></wpt>
<wpt><name>nowhere</name></wpt>
<rte><name>Plan</name><rtept lat="3" lon="4"><time>2014-06-01T10:00:00Z</time></rtept></rte>
<trk><name>Day <![CDATA[<1>]]></name>
<trkseg><trkpt lat="46.10" lon="14.2"><ele>300.50</ele><time>2014-06-01T10:00:00.250Z</time>
<extensions><name>x</name><trkpt lat="99"/></extensions></trkpt><trkpt lat="5" lon="6"/></trkseg>
<trkseg><trkpt lat="" lon="7"><time>2014-06-01T12:00:00Z</time></trkpt></trkseg></trk>
)");
    for (std::size_t pieceLength : {1u, 7u, 100000u}) {
        Reading reading = read(text, pieceLength);
        ASSERT_FALSE(reading.problem) << reading.problem->text;
        const auto& found = reading.found;
        ASSERT_EQ(found.waypoints.size(), 1u);
        EXPECT_EQ(found.waypoints[0].name, "Hut & well");
        EXPECT_EQ(found.waypoints[0].comment, "open");
        EXPECT_EQ(found.waypoints[0].point,
                  (KTGeoPoint{instant(1401616800000), decimal("1.5"), decimal("-2.5"), decimal("12")}));
        ASSERT_EQ(found.tracks.size(), 2u);
        EXPECT_EQ(found.tracks[0].kind, KTTrack::Kind::Route);
        EXPECT_EQ(found.tracks[0].segments[0][0], (KTGeoPoint{{}, decimal("3"), decimal("4"), {}}));
        EXPECT_EQ(found.tracks[1].name, "Day <1>");
        ASSERT_EQ(found.tracks[1].segments.size(), 2u);
        EXPECT_EQ(found.tracks[1].segments[0][0],
                  (KTGeoPoint{instant(1401616800250), decimal("46.1"), decimal("14.2"), decimal("300.5")}));
        EXPECT_EQ(found.tracks[1].segments[0][1], (KTGeoPoint{{}, decimal("5"), decimal("6"), {}}));
        EXPECT_EQ(found.tracks[1].segments[1][0], (KTGeoPoint{instant(1401624000000), {}, {}, {}}));
    }
}

TEST(GPXReader, TakesNamesWithTheRootsPrefixOnly) {
    Reading reading = read(R"(<g:gpx xmlns:g="http://www.topografix.com/GPX/1/0" xmlns:o="urn:other">
<g:wpt lat="1" lon="2"><o:name>other</o:name><g:name>ours</g:name><name>bare</name></g:wpt><o:wpt lat="3" lon="4"/></g:gpx>)");
    ASSERT_FALSE(reading.problem);
    ASSERT_EQ(reading.found.waypoints.size(), 1u);
    EXPECT_EQ(reading.found.waypoints[0].name, "ours");
}

TEST(GPXReader, IsLenientWhereDevicesAreCareless) {
    const std::pair<const char*, std::optional<KTDecimal>> elevations[] = {{"", {}},
                                                                           {" ", {}},
                                                                           {"NaN", {}},
                                                                           {"-1.#IND", {}},
                                                                           {"1e25", {}},
                                                                           {"-99999999", {}},
                                                                           {" 12.0\n", decimal("12")},
                                                                           {"+1.5e2", decimal("150")}};
    for (const auto& [text, expected] : elevations) {
        Reading reading = read(
            gpxTrack("<trkpt lat=\" 1 \" lon=\"+2.\"><ele>" + std::string(text) + "</ele><time/></trkpt>"));
        ASSERT_FALSE(reading.problem) << text;
        EXPECT_EQ(reading.found.tracks[0].segments[0][0],
                  (KTGeoPoint{{}, decimal("1"), decimal("2"), expected}))
            << text;
    }
}

TEST(GPXReader, RefusesBrokenAndHostileFilesNamingTheLine) {
    auto point = [](const char* latitude, const char* longitude, const char* time = "") {
        return gpxTrack(trackPoint("1", "2", "") + trackPoint(latitude, longitude, time)); // on line 5
    };
    std::string deep, whole = gpxTrack(trackPoint("1", "2", ""));
    for (int i = 0; i < 1000000; ++i)
        deep += "<a>";
    const struct {
        std::string text;
        std::int64_t line;
        const char* words;
    } files[] = {
        {"", 1, "not an XML file"},
        {"hello\nthere", 1, "not an XML file"},
        {std::string(3000, '\0'), 1, "not an XML file"},
        {"\n\n<html/>", 3, "begins with <html>"},
        {whole.substr(0, whole.find("</trkseg>")), 5, "ends too early"},
        {whole.substr(0, whole.find("lon=")), 4, "ends too early"},
        {whole.substr(0, 30), 2, "ends too early"},
        {gpx("<trk>\n</wpt>"), 4, "mismatched tag"},
        {point("91", "2"), 5, "“91” is not a latitude"},
        {point("-90.0000001", "2"), 5, "latitude"},
        {point("1", "180.5"), 5, "longitude"},
        {point("NaN", "2"), 5, "latitude"},
        {point("1", "inf"), 5, "longitude"},
        {point("0x10", "2"), 5, "latitude"},
        {point("1,5", "2"), 5, "latitude"},
        {point("1e999999999999", "2"), 5, "latitude"},
        {point("1", "2", "9999-12-31T23:59:59Z"), 5, "1900 and 2199"},
        {point("1", "2", "1899-12-31T23:59:59Z"), 5, "1900 and 2199"},
        {point("1", "2", "2200-01-01T00:00:00Z"), 5, "1900 and 2199"},
        {point("1", "2", "yesterday"), 5, "“yesterday” is not a date"},
        {gpxTrack("<trkpt lat=\"1\" lon=\"2\">\n<ele>high</ele></trkpt>"), 5, "“high” is not a height"},
        {"<?xml version=\"1.0\"?>\n<!DOCTYPE gpx [\n<!ENTITY a \"aaaa\">\n<!ENTITY b "
         "\"&a;&a;\">]><gpx>&b;</gpx>",
         3, "entity declarations"},
        {"<!DOCTYPE gpx [\n<!ENTITY % p SYSTEM \"file:///etc/passwd\">]><gpx/>", 2, "entity declarations"},
        {gpx("<trk><name>&undefined;"), 3, "undefined entity"},
        {gpx("\n" + deep), 4, "nested too deeply"},
        {gpx("<wpt lat=\"1\" lon=\"1\"><name>\n" + std::string(100000, 'x') + "</name></wpt>"), 4,
         "too long"},
        {gpx("<!--" + std::string(3 << 20, 'x') + "-->"), 3, "too long"},
        {gpx("<wpt lat=\"" + std::string(3 << 20, '1') + "\"/>"), 3, "too long"},
        {"<?xml version=\"1.0\" encoding=\"klingon\"?>\n<gpx/>", 1, "unknown text encoding “klingon”"},
        {"<?xml version=\"1.0\" encoding=\"utf8//IGNORE\"?>\n<gpx/>", 1, "unknown text encoding"},
        {"<?xml version=\"1.0\" encoding=\"Shift_JIS\"?>\n<gpx>\n<!-- \x81\xFF --></gpx>", 3,
         "not valid in the file's encoding"},
        {"<gpx>\n\xFF</gpx>", 2, "invalid token"},
    };
    for (const auto& file : files) {
        Reading reading = read(file.text);
        ASSERT_TRUE(reading.problem) << file.words;
        EXPECT_EQ(reading.problem->line, file.line) << reading.problem->text;
        EXPECT_NE(reading.problem->text.find(file.words), std::string::npos) << reading.problem->text;
        EXPECT_LT(reading.problem->text.size(), 300u);
    }
}

TEST(GPXReader, PassesOverTextsOfAnyLengthThatItDoesNotKeep) {
    Reading reading = read(gpx("<metadata><desc>" + std::string(5 << 20, 'x') +
                               "</desc></metadata>"
                               "<wpt lat=\"1\" lon=\"2\"/>"));
    EXPECT_FALSE(reading.problem);
    EXPECT_EQ(reading.found.waypoints.size(), 1u);
}

TEST(GPXReader, ReadsEveryDeclaredEncoding) {
    auto file = [](const std::string& encoding, const std::string& name) {
        return "<?xml version=\"1.0\" encoding='" + encoding + "'?>\n<gpx><wpt lat=\"1\" lon=\"2\"><name>" +
               name + "</name></wpt></gpx>";
    };
    const struct {
        const char *encoding, *name, *expected;
    } texts[] = {
        {"UTF-8", "\xC4\x8C", "Č"},  {"utf8", "\xC4\x8C", "Č"},       {"ISO-8859-1", "\xE9", "é"},
        {"iso-8859-2", "\xC8", "Č"}, {"windows-1252", "\x80", "€"},   {"Windows-1251", "\xC6", "Ж"},
        {"KOI8-R", "\xF6", "Ж"},     {"Shift_JIS", "\x8E\x52", "山"}, {"GB18030", "\xC9\xBD", "山"},
        {"UTF-16", "\xC4\x8C", "Č"}, // as some programs declare what they then write in UTF-8
    };
    for (const auto& text : texts) {
        EXPECT_EQ(nameReadFrom(file(text.encoding, text.name)), text.expected) << text.encoding;
        EXPECT_EQ(nameReadFrom(file(text.encoding, text.name), 1), text.expected) << text.encoding;
    }
    EXPECT_EQ(nameReadFrom(utf16(file("UTF-16", "wide"))), "wide");
    EXPECT_EQ(nameReadFrom("\xEF\xBB\xBF" + file("UTF-8", "mark")), "mark");
    EXPECT_EQ(nameReadFrom("\r\n \n" + file("UTF-8", "late")), "late");
    EXPECT_EQ(read("\n\n" + file("UTF-8", "late") + "\n<").problem->line, 5);
}

TEST(GPXTime, ReadsISO8601AndNothingElse) {
    const std::pair<const char*, std::int64_t> times[] = {
        {"2014-06-01T10:00:00Z", 1401616800000},
        {" 2014-06-01t10:00:00z\n", 1401616800000},
        {"2014-06-01 10:00:00", 1401616800000},
        {"2014-06-01T12:00:00+02:00", 1401616800000},
        {"2014-06-01T12:00:00+0200", 1401616800000},
        {"2014-06-01T12:00:00+02", 1401616800000},
        {"2014-06-01T04:15:00-05:45", 1401616800000},
        {"2014-06-01T10:00Z", 1401616800000},
        {"2014-06-01T10:00:00.1Z", 1401616800100},
        {"2014-06-01T10:00:00,0129999Z", 1401616800012},
        {"2014-06-01T10:00:00.000001", 1401616800000},
        {"1969-12-31T23:59:59.999Z", -1},
        {"2014-06-01", 1401580800000},
        {"2016-12-31T23:59:60Z", 1483228800000},
        {"2014-05-31T24:00:00Z", 1401580800000},
        {"2016-02-29T00:00:00Z", 1456704000000},
    };
    for (const auto& [text, milliseconds] : times)
        EXPECT_EQ(GPXInstantFromText(text), instant(milliseconds)) << text;
    for (const char* text :
         {"", "2014", "2014-06", "2014-6-1T10:00:00Z", "2015-02-29T00:00:00Z", "2014-13-01T00:00:00Z",
          "2014-06-00T00:00:00Z", "2014-06-01T24:00:01Z", "2014-06-01T10:60:00Z", "2014-06-01T10:00:61Z",
          "2014-06-01T10:00:00.Z", "2014-06-01T10:00:00ZZ", "2014-06-01T10:00:00+2",
          "2014-06-01T10:00:00+19:00", "2014-06-01T10", "-014-06-01T10:00:00Z", "2014-06-01T10:00:00Z x",
          "12014-06-01T10:00:00Z"})
        EXPECT_FALSE(GPXInstantFromText(text)) << text;
}

RC_GTEST_PROP(TrackNumber, KeepsEveryDigit, ()) {
    auto digits = *rc::gen::container<std::string>(rc::gen::inRange('0', static_cast<char>('9' + 1)));
    digits = digits.substr(0, 30) + "7";
    auto point = *rc::gen::inRange<std::size_t>(0, digits.size());
    std::string text =
        (*rc::gen::arbitrary<bool>() ? "-" : "") + digits.substr(0, point) + "." + digits.substr(point);
    auto number = TrackNumber::fromText(text);
    RC_ASSERT(number && number->toDecimal() == KTDecimal::fromText(text));
    RC_ASSERT((number->longDigits() == nullptr) == (digits.find_first_not_of('0') + 15 >= digits.size()));
}
