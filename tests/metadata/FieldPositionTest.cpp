#include "tests/metadata/FieldTestSupport.h"

#include "metadata/KTMetadataPositionFields.h"
#include "platform/common/KTCalendar.h"
#include "platform/geodesy/KTGeodesy.h"

namespace {

class FieldPositionTest : public FieldTest {};

TEST_F(FieldPositionTest, CoordinatesAreMagnitudeAndLetterInEXIF) {
    EXPECT_EQ(write("latitude", number("-33.8"), {}, kEXIF),
              (Tags{{"EXIF:GPSLatitude", number("33.8")}, {"EXIF:GPSLatitudeRef", "S"}}));
    EXPECT_EQ(write("latitude", 0, {}, kEXIF), (Tags{{"EXIF:GPSLatitude", 0}, {"EXIF:GPSLatitudeRef", "S"}}));
    EXPECT_EQ(write("longitudeShown", number("123.123456789"), {{"XMP:GPSDestLongitude", 5}}, kEXIF),
              (Tags{{"EXIF:GPSDestLongitude", number("123.12345679")},
                    {"EXIF:GPSDestLongitudeRef", "E"},
                    {"XMP:GPSDestLongitude", number("123.123456789")}}));
    EXPECT_EQ(write("longitude", number("-0.5"), {}, kXMPOnly), (Tags{{"XMP:GPSLongitude", number("-0.5")}}));
    const Tags here{{"EXIF:GPSLatitude", number("51.5")},
                    {"EXIF:GPSLatitudeRef", "N"},
                    {"XMP:GPSLatitude", number("51.5")}};
    EXPECT_EQ(write("latitude", number("51.50000000001"), here, kEXIF), Tags());
    EXPECT_EQ(write("latitude", {}, here, kEXIF), (Tags{{"EXIF:GPSLatitude", kDelete},
                                                        {"EXIF:GPSLatitudeRef", kDelete},
                                                        {"XMP:GPSLatitude", kDelete}}));
}

TEST_F(FieldPositionTest, CoordinatesReadSigned) {
    const Tags south{
        {"EXIF:GPSLatitude", "33.8000000049"}, {"EXIF:GPSLatitudeRef", "S"}, {"XMP:GPSLatitude", 1}};
    EXPECT_EQ(read("latitude", south, kXMPOnly), number("-33.8"));
    EXPECT_EQ(read("longitude", {{"EXIF:GPSLongitude", 5}, {"EXIF:GPSLongitudeRef", "S"}}, kEXIF), 5);
    EXPECT_EQ(read("latitudeShown", {{"XMP:GPSDestLatitude", "-12.25"}}, kEXIF), number("-12.25"));
    EXPECT_TRUE(read("latitude", {{"EXIF:GPSLatitudeRef", "S"}}, kEXIF).isAbsent());
}

TEST_F(FieldPositionTest, AltitudeHasItsSignInTheReference) {
    EXPECT_EQ(write("altitude", number("-12.5"), {}, kEXIF),
              (Tags{{"EXIF:GPSAltitude", number("12.5")}, {"EXIF:GPSAltitudeRef", 1}}));
    EXPECT_EQ(write("altitude", 0, {}, kXMPOnly), (Tags{{"XMP:GPSAltitude", 0}, {"XMP:GPSAltitudeRef", 0}}));
    const Tags below{{"EXIF:GPSAltitude", "12.5"},
                     {"EXIF:GPSAltitudeRef", 1},
                     {"XMP:GPSAltitude", "12.5"},
                     {"XMP:GPSAltitudeRef", "1"}};
    EXPECT_EQ(read("altitude", below, kEXIF), number("-12.5"));
    EXPECT_EQ(write("altitude", number("12.5"), below, kEXIF),
              (Tags{{"EXIF:GPSAltitudeRef", 0}, {"XMP:GPSAltitudeRef", 0}}));
    EXPECT_EQ(write("altitude", {}, below, kEXIF).size(), 4u);
}

TEST_F(FieldPositionTest, DirectionsAreTurnedToTrueNorth) {
    auto turned = [](int direction, int declination) {
        return KTMetadataImageDirectionField::directionWithDeclination(KTDecimal::fromInteger(direction),
                                                                       KTDecimal::fromInteger(declination));
    };
    EXPECT_EQ(turned(350, 15), KTDecimal::fromInteger(5));
    EXPECT_EQ(turned(5, -15), KTDecimal::fromInteger(350));
    EXPECT_EQ(turned(345, 15), KTDecimal());

    Tags tags{{"EXIF:GPSImgDirection", 90},
              {"EXIF:GPSImgDirectionRef", "M"},
              {"EXIF:DateTimeOriginal", "2012:07:04 10:00:00"}};
    EXPECT_TRUE(read("imageDirection", tags, kEXIF).isAbsent()) << "magnetic, without a position";
    tags.set("XMP:GPSLatitude", number("48.2"));
    tags.set("XMP:GPSLongitude", number("-120.5"));
    KTInstant eight = KTInstantFromMilliseconds(1341388800000); // 10:00 in the assumed zone
    auto declination = KTDeclinationForLatitudeLongitude(48.2, -120.5, eight);
    ASSERT_TRUE(declination);
    EXPECT_NEAR(read("imageDirection", tags, kEXIF).number()->toDouble(), 90 + *declination, 1e-9);
    tags.set("EXIF:GPSImgDirectionRef", "T");
    EXPECT_EQ(read("imageDirection", tags, kEXIF), 90);
    EXPECT_EQ(read("imageDirection", {{"XMP:GPSImgDirection", 7}, {"EXIF:GPSImgDirectionRef", "M"}}, kEXIF),
              7);
}

TEST_F(FieldPositionTest, ClearingADirectionClearsItsReferences) {
    const Tags tags{{"EXIF:GPSImgDirection", 90},
                    {"EXIF:GPSImgDirectionRef", "M"},
                    {"XMP:GPSImgDirection", 90},
                    {"XMP:GPSImgDirectionRef", "M"}};
    EXPECT_EQ(write("imageDirection", {}, tags, kEXIF), (Tags{{"EXIF:GPSImgDirection", kDelete},
                                                              {"EXIF:GPSImgDirectionRef", kDelete},
                                                              {"XMP:GPSImgDirection", kDelete},
                                                              {"XMP:GPSImgDirectionRef", kDelete}}));
    EXPECT_EQ(write("imageDirection", 90, tags, kEXIF),
              (Tags{{"EXIF:GPSImgDirectionRef", "T"}, {"XMP:GPSImgDirectionRef", "T"}}));
    EXPECT_EQ(write("imageDirection", 1, {}, kXMPOnly),
              (Tags{{"XMP:GPSImgDirection", 1}, {"XMP:GPSImgDirectionRef", "T"}}));
}

TEST_F(FieldPositionTest, GPSVersionReadsWithDotsAndIsWrittenWithBlanks) {
    for (const char* text : {"2.3.0.0", "2 3 0 0"}) {
        EXPECT_EQ(read("gpsVersionID", {{"EXIF:GPSVersionID", text}}, kEXIF), "2.3.0.0");
        EXPECT_EQ(write("gpsVersionID", "2.3.0.0", {{"EXIF:GPSVersionID", text}}, kEXIF), Tags());
    }
    EXPECT_EQ(write("gpsVersionID", "2.3.0.0", {{"XMP:GPSVersionID", "2.0.0.0"}}, kEXIF),
              (Tags{{"EXIF:GPSVersionID", "2 3 0 0"}, {"XMP:GPSVersionID", "2.2.0.0"}}));
    EXPECT_EQ(write("gpsVersionID", {}, {{"XMP:GPSVersionID", "2.0.0.0"}}, kXMPOnly),
              (Tags{{"XMP:GPSVersionID", kDelete}}));
}

TEST_F(FieldPositionTest, SpeedIsInMetresPerSecond) {
    auto speed = [](const char* unit) {
        return read("gpsSpeed", {{"EXIF:GPSSpeed", 36}, {"XMP:GPSSpeedRef", unit}}, kEXIF);
    };
    EXPECT_EQ(speed("K"), 10);
    EXPECT_EQ(speed("M"), number("16.09344"));
    EXPECT_EQ(speed("N"), number("18.519999999984"));
    EXPECT_EQ(speed("?"), 36);
    EXPECT_TRUE(read("gpsSpeed", {{"EXIF:GPSSpeed", 36}}, kEXIF).isAbsent());
}

} // namespace
