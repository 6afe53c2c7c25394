#include "metadata/KTDateFormatters.h"
#include "metadata/KTValueFormatters.h"
#include "platform/common/KTCalendar.h"
#include "platform/common/KTTimeZoneManager.h"

#include <gtest/gtest.h>

namespace {

KTValue decimal(const char* text) {
    return KTDecimal::fromText(text).value();
}

} // namespace

TEST(Formatters, ShowValuesByTheirRules) {
    struct Case {
        std::shared_ptr<const KTFormatter> formatter;
        KTValue value;
        const char* text;
    };
    auto aperture = std::make_shared<KTApertureFormatter>();
    auto shutter = std::make_shared<KTShutterSpeedFormatter>();
    auto bytes = std::make_shared<KTBytesFormatter>();
    auto differential = std::make_shared<KTGPSDifferentialFormatter>();
    auto mode = std::make_shared<KTGPSMeasurementModeFormatter>();
    auto status = std::make_shared<KTGPSStatusFormatter>();
    auto position = std::make_shared<KTLatLonFormatter>();
    auto focal = std::make_shared<KTFocalLengthFormatter>();
    for (const Case& c :
         std::vector<Case>{{aperture, decimal("2.8"), "ƒ/2.8"},
                           {aperture, decimal("5.64"), "ƒ/5.6"},
                           {aperture, decimal("5.65"), "ƒ/5.7"},
                           {aperture, decimal("7.96"), "ƒ/8"},
                           {aperture, 11, "ƒ/11"},
                           {aperture, "2.8", ""},
                           {shutter, decimal("0.004"), "1/250 of a second"},
                           {shutter, decimal("0.0125"), "1/80 of a second"},
                           {shutter, 1, "1.0 seconds"},
                           {shutter, decimal("2.55"), "2.6 seconds"},
                           {shutter, 0, ""},
                           {shutter, "1", ""},
                           {std::make_shared<KTISOFormatter>(), decimal("399.9999"), "400"},
                           {bytes, 999, "999 bytes"},
                           {bytes, 1000, "1.0 KB"},
                           {bytes, 1234, "1.2 KB"},
                           {bytes, 999999, "1,000.0 KB"},
                           {bytes, 5300000, "5.3 MB"},
                           {bytes, decimal("5e18"), "5,000.0 PB"},
                           {bytes, "12", ""},
                           {focal, 50, "50.0 mm"},
                           {focal, decimal("-0.04"), "0.0 mm"},
                           {std::make_shared<KTExposureBiasFormatter>(), decimal("-0.667"), "-0.7 EV"},
                           {std::make_shared<KTSensorSizeFormatter>(), decimal("23.5"), "23.5 mm"},
                           {std::make_shared<KTSensorSizeFormatter>(), decimal("22.6666"), "22.667 mm"},
                           {std::make_shared<KTAngleFormatter>(), decimal("63.5"), "64 °"},
                           {position, decimal("-122.4194155"), "-122.4194155 °"},
                           {position, 7, "7.0 °"},
                           {differential, "1", "Differential correction"},
                           {differential, 0, "No correction"},
                           {mode, "3", "3 dimensional"},
                           {mode, 2, "2 dimensional"},
                           {mode, 9, "Undefined"},
                           {status, "V", "Measurement void"},
                           {status, "X", "Undefined"},
                           {status, KTValue::null(), ""},
                           {std::make_shared<KTRawKeyFormatter>(), KTValue(KTValue::List{"a", 2}), "a, 2"}})
        EXPECT_EQ(c.formatter->stringForObjectValue(c.value), c.text);
}

TEST(Formatters, ShowDatesInTheApplicationsZoneAndReadingsAsTheyStand) {
    KTTimeZoneManager::sharedTimeZoneManager().setTimeZone(KTTimeZone::fixed(7200));
    const std::string instant =
        KTDateTimeFormatter().stringForObjectValue(KTInstantFromMilliseconds(1401616800000));
    EXPECT_NE(instant.find("12:00:00"), std::string::npos) << instant;
    KTTimeZoneManager::sharedTimeZoneManager().setTimeZone(KTTimeZone::utc());
    auto shown = [](const char* text) {
        return KTDateComponentsFormatter().stringForObjectValue(
            *KTDateComponents::dateComponentsWithString(text));
    };
    EXPECT_NE(shown("2014:06:01 12:34:56").find("12:34:56"), std::string::npos);
    EXPECT_EQ(shown("2014:06:01").find(':'), std::string::npos) << "no time where none is set";
    EXPECT_EQ(shown("2014"), "2014");
    EXPECT_EQ(KTDateTimeFormatter().stringForObjectValue("2014"), "");
}
