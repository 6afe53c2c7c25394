#include "platform/geodesy/KTCoordinates.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace {

KTDecimal decimal(std::string_view text) {
    return KTDecimal::fromText(text).value();
}

struct Reading {
    const char* text;
    const char* latitude;
    const char* longitude;
};

TEST(CoordinatesTest, ReadsOnePositionInEveryNotation) {
    const Reading readings[] = {
        {"46.05108, 14.50513", "46.05108", "14.50513"},
        {" -33.9\t18.4 \n", "-33.9", "18.4"},
        {"46.05108;14.50513", "46.05108", "14.50513"},
        {"46.05108\n14.50513", "46.05108", "14.50513"},
        {"46, 14", "46", "14"},
        {"46,14", "46", "14"},
        {"+46 -14", "46", "-14"},
        {"−33.9, 18.4", "-33.9", "18.4"}, // a typographic minus
        {".5, -.25", "0.5", "-0.25"},
        {"90, -180", "90", "-180"},
        {"46,05108 14,50513", "46.05108", "14.50513"},
        {"-33,9; 18,4", "-33.9", "18.4"},
        {"46,05, 14,5", "46.05", "14.5"},
        {"46,5° N 14,5° E", "46.5", "14.5"},
        {"46.05 N, 14.5 E", "46.05", "14.5"},
        {"N46.05 W14.5", "46.05", "-14.5"},
        {"46.05S 14.5W", "-46.05", "-14.5"},
        {"14.5 E 46.05 N", "46.05", "14.5"},
        {"14.5 east, 46.05 north", "46.05", "14.5"},
        {"46°30'N 14°15'E", "46.5", "14.25"},
        {"46° 30′ 36″ N, 14° 15′ 0.9″ W", "46.51", "-14.25025"},
        {"46°30'36\"S 14°15'0.9\"E", "-46.51", "14.25025"},
        {"46º30’36’’S 14º15’E", "-46.51", "14.25"},
        {"46 deg 30' 36.00\" N, 14 deg 15' 0.00\" E", "46.51", "14.25"},
        {"46 30 36 14 15 0", "46.51", "14.25"},
        {"46 30 14 15", "46.5", "14.25"},
        {"-0° 30', 0° 15'", "-0.5", "0.25"},
        {"0 30 36 S, 0 15 0 W", "-0.51", "-0.25"},
        {"lat: 46.05 lon: 14.5", "46.05", "14.5"},
        {"Longitude=14.5, Latitude=46.05", "46.05", "14.5"},
        {"{\"lat\": -46.05, \"lng\": 14.5}", "-46.05", "14.5"},
        {"(46.05, 14.5)", "46.05", "14.5"},
        {"46.05\u00A0N 14.5\u202FE", "46.05", "14.5"},
        {"geo:46.05108,-14.50513", "46.05108", "-14.50513"},
        {"GEO:46.05,14.5,298;crs=wgs84;u=35", "46.05", "14.5"},
        {"geo:46.05,14.5?z=11", "46.05", "14.5"},
        {"https://maps.example.org/?mlat=46.05&mlon=14.5#map=12/1.0/2.0", "46.05", "14.5"},
        {"https://maps.example.org/#map=12/46.05/-14.5&layers=C", "46.05", "-14.5"},
        {"https://maps.example.org/place/Castle/@46.05,14.5,17z/data=1", "46.05", "14.5"},
        {"https://maps.example.org/?q=46.05%2C14.5", "46.05", "14.5"},
    };
    for (const Reading& each : readings) {
        const auto found = KTCoordinates::fromText(each.text);
        ASSERT_TRUE(found) << each.text;
        EXPECT_EQ(found->latitude, decimal(each.latitude)) << each.text << ": " << found->latitude.toText();
        EXPECT_EQ(found->longitude, decimal(each.longitude))
            << each.text << ": " << found->longitude.toText();
    }
}

TEST(CoordinatesTest, ReadsNothingWhereThereIsDoubt) {
    const std::string endless(5000, '1'), marks(1900, '\''), broken = "46.05\xC2, 14.5\xFF";
    const char* texts[] = {"",
                           " ",
                           ",",
                           "46",
                           "46.05",
                           "Ljubljana",
                           "46.05, ",
                           "46.05, 14.5, 3",
                           "46.05 14.5 3",
                           "90.0001, 14",
                           "46, 180.0001",
                           "14.5 146.05 E",
                           "146.05, 14.5", // no latitude
                           "12,5 13",      // 12.5 and 13, or 12 and 5° 13′
                           "46.05.3, 14.5",
                           "46..05, 14.5",
                           "46.05-14.5",
                           "4-6, 14",
                           "--46, 14",
                           "+-46, 14",
                           "46.5° 30', 14°",
                           "46° 60' N, 14° E",
                           "46° 30' 60\" N, 14° E",
                           "46° -30', 14°",
                           "46' 14'",
                           "46\" 30° N, 14° E",
                           "46 30 36 12 N, 14 E",
                           "46° 30° N, 14 E",
                           "-46 S, 14 E",
                           "46 N, 14 N",
                           "14 E, 46 E",
                           "46 N S, 14 E",
                           "46 N 14 E 3",
                           "lat 46 E, lon 14",
                           "46 O, 14",
                           "46.05 X, 14.5 Y",
                           "1e2, 3",
                           "NaN, NaN",
                           "0x10, 5",
                           "46.05, 14.5 hello",
                           "geo:",
                           "geo:46.05",
                           "geo:46.05,14.5,1,2",
                           "geo:95,14",
                           "geo:46.05,14.5;crs=moon",
                           "geo:a,b",
                           "https://maps.example.org/",
                           "https://maps.example.org/@46.05",
                           "https://x.org/?mlat=95&mlon=14",
                           "https://x.org/#map=12/46.05",
                           "mail@46.05,14.5",
                           endless.c_str(),
                           marks.c_str(),
                           broken.c_str()};
    for (const char* text : texts) {
        const auto found = KTCoordinates::fromText(text);
        EXPECT_FALSE(found) << text << " as " << found->text();
    }
    EXPECT_FALSE(KTCoordinates::fromText(std::string_view("46.05\0, 14.5", 12)));
}

TEST(CoordinatesTest, ReadsOneNumberForItsAxis) {
    EXPECT_EQ(KTCoordinates::latitudeFromText("46° 30' S"), decimal("-46.5"));
    EXPECT_EQ(KTCoordinates::latitudeFromText(" 46,5 "), decimal("46.5"));
    EXPECT_EQ(KTCoordinates::longitudeFromText("146.05 W"), decimal("-146.05"));
    EXPECT_FALSE(KTCoordinates::latitudeFromText("146.05"));
    EXPECT_FALSE(KTCoordinates::latitudeFromText("46 E"));
    EXPECT_FALSE(KTCoordinates::longitudeFromText("46 N"));
    EXPECT_FALSE(KTCoordinates::longitudeFromText("46, 14"));
}

TEST(CoordinatesTest, WritesWithoutMinutesOfSixty) {
    const KTCoordinates position{decimal("-46.99999999999"), decimal("14.5051312345")};
    using enum KTCoordinates::Notation;
    EXPECT_EQ(position.text(), "-47, 14.5051312");
    EXPECT_EQ(position.text(GeoLink), "geo:-47,14.5051312");
    EXPECT_EQ(position.text(DegreesMinutes), "47° 0′ S, 14° 30.30787′ E");
    EXPECT_EQ(position.text(DegreesMinutesSeconds), "47° 0′ 0″ S, 14° 30′ 18.472″ E");
}

RC_GTEST_PROP(CoordinatesTest, ReadsBackWhatItWrites, ()) {
    const auto latitude = *rc::gen::inRange<std::int64_t>(-900'000'000, 900'000'001);
    const auto longitude = *rc::gen::inRange<std::int64_t>(-1'800'000'000, 1'800'000'001);
    const KTDecimal unit = decimal("1e-7");
    const KTCoordinates written{KTDecimal::fromInteger(latitude) * unit,
                                KTDecimal::fromInteger(longitude) * unit};
    using enum KTCoordinates::Notation;
    const std::pair<KTCoordinates::Notation, const char*> notations[] = {
        {Decimal, "0"}, {GeoLink, "0"}, {DegreesMinutes, "1e-7"}, {DegreesMinutesSeconds, "2e-7"}};
    for (const auto& [notation, tolerance] : notations) {
        const auto read = KTCoordinates::fromText(written.text(notation));
        RC_ASSERT(read.has_value());
        RC_ASSERT((read->latitude - written.latitude).abs() <= decimal(tolerance));
        RC_ASSERT((read->longitude - written.longitude).abs() <= decimal(tolerance));
    }
}

RC_GTEST_PROP(CoordinatesTest, NeverFailsOnAnyText, ()) {
    const auto pieces = *rc::gen::container<std::vector<std::string>>(
        rc::gen::element<std::string>("4", "90", ".", ",", "-", "°", "'", "\"", "N", "E", " ", ";", "lat",
                                      "geo:", "\xC2", "://", "@", "/"));
    std::string text;
    for (const std::string& piece : pieces)
        text += piece;
    if (const auto found = KTCoordinates::fromText(text)) {
        RC_ASSERT(KTCoordinates::isLatitude(found->latitude));
        RC_ASSERT(KTCoordinates::isLongitude(found->longitude));
    }
}

} // namespace
