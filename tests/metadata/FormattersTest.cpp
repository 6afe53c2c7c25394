#include "metadata/KTDateFormatters.h"
#include "metadata/KTValueFormatters.h"
#include "platform/common/KTCalendar.h"
#include "platform/common/KTTimeZoneManager.h"

#include <QLocale>
#include <gtest/gtest.h>

namespace {

/// The default locale while it lives.
struct UserLocale {
    explicit UserLocale(const char* name) { QLocale::setDefault(QLocale(name)); }
    ~UserLocale() { QLocale::setDefault(QLocale::c()); }
};

std::string reading(const char* text) {
    return KTDateComponentsFormatter().stringForObjectValue(
        *KTDateComponents::dateComponentsWithString(text));
}

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
    auto height = std::make_shared<KTDefaultHeightFormatter>();
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
                           {differential, "True", "Differential correction"},
                           {differential, " 0", "No correction"},
                           {differential, KTValue::null(), ""},
                           {mode, "3", "3 dimensional"},
                           {mode, 2, "2 dimensional"},
                           {mode, 9, "Undefined"},
                           {mode, "", "Undefined"},
                           {mode, KTValue(), ""},
                           {status, "A", "Measurement active"},
                           {status, "V", "Measurement void"},
                           {status, "X", "Undefined"},
                           {status, KTValue::null(), ""},
                           {status, 1, ""},
                           {focal, "50", ""},
                           {focal, KTDecimal::notANumber(), ""},
                           {height, decimal("123.44"), "123.4 m"},
                           {height, decimal("-12.5"), "-12.5 m"},
                           {height, "12", ""},
                           {std::make_shared<KTRawKeyFormatter>(), KTValue(KTValue::List{"a", 2}), "a, 2"}})
        EXPECT_EQ(c.formatter->stringForObjectValue(c.value), c.text);
}

TEST(Formatters, ShowDatesInTheApplicationsZoneAndReadingsAsTheyStand) {
    KTTimeZoneManager::sharedTimeZoneManager().setTimeZone(KTTimeZone::fixed(7200));
    const std::string instant =
        KTDateTimeFormatter().stringForObjectValue(KTInstantFromMilliseconds(1401616800000));
    EXPECT_NE(instant.find("12:00:00"), std::string::npos) << instant;
    KTTimeZoneManager::sharedTimeZoneManager().setTimeZone(KTTimeZone::utc());
    EXPECT_NE(reading("2014:06:01 12:34:56").find("12:34:56"), std::string::npos);
    EXPECT_EQ(reading("2014:06:01").find(':'), std::string::npos) << "no time where none is set";
    EXPECT_EQ(reading("2014"), "2014");
    EXPECT_EQ(KTDateTimeFormatter().stringForObjectValue("2014"), "");
}

TEST(Formatters, KeepReadingsThatNoCalendarHas) {
    const KTDateComponentsFormatter formatter;
    KTDateComponents components;
    EXPECT_EQ(formatter.stringForObjectValue(components), "");
    components.year = 2014, components.month = 2, components.day = 30;
    EXPECT_EQ(formatter.stringForObjectValue(components), "2014:02:30");
    components.day = 28, components.hour = 24, components.minute = 0, components.second = 0;
    EXPECT_EQ(formatter.stringForObjectValue(components), "2014:02:28 24:00:00");
    components.year = components.month = INT64_MAX - 1;
    EXPECT_NE(formatter.stringForObjectValue(components), "");
}

TEST(Formatters, FollowTheUsersLocale) {
    struct Case {
        const char* locale;
        const char* date;
        const char* minutesOnly;
        const char* month;
        const char* bytes;
        const char* millimetres;
    };
    KTDateComponents minutesOnly = *KTDateComponents::dateComponentsWithString("2014:07:04 09:05:07");
    minutesOnly.second = KTDateComponents::kUndefined;
    for (const Case& c :
         {Case{"en_US", "7/4/14 9:05:07 AM", "7/4/14 9:05 AM", "Jul 2014", "1,000.0 KB", "-1234.5 mm"},
          {"de_DE", "04.07.14 09:05:07", "04.07.14 09:05", "Juli 2014", "1.000,0 KB", "-1234,5 mm"},
          {"fi_FI", "4.7.2014 9.05.07", "4.7.2014 9.05", "heinäk. 2014", "1\u00a0000,0 KB",
           "\u22121234,5 mm"},
          {"bn_BD", "৪/৭/১৪ ৯:০৫:০৭ AM", "৪/৭/১৪ ৯:০৫ AM", "জুলাই ২০১৪", "১,০০০.০ KB", "-১২৩৪.৫ mm"}}) {
        SCOPED_TRACE(c.locale);
        const UserLocale locale(c.locale);
        EXPECT_EQ(reading("2014:07:04 09:05:07"), c.date);
        EXPECT_EQ(KTDateComponentsFormatter().stringForObjectValue(minutesOnly), c.minutesOnly);
        EXPECT_EQ(reading("2014:07"), c.month);
        EXPECT_EQ(KTBytesFormatter().stringForObjectValue(999999), c.bytes);
        EXPECT_EQ(KTFocalLengthFormatter().stringForObjectValue(decimal("-1234.5")), c.millimetres);
    }
}

TEST(Formatters, ReadPatterns) {
    struct Case {
        const char* pattern;
        const char* number;
        const char* text;
    };
    for (const Case& c : {Case{"#.##", "0.5", ".5"},
                          {"#0.##", "-0.004", "0"},
                          {"000.0", "7.25", "007.3"},
                          {"###,##0", "1234567", "1,234,567"},
                          {"about #0 m", "-12.5", "-about 13 m"},
                          {"##0.0######### °", "-33.85678901234", "-33.8567890123 °"},
                          {"no digits", "1", "no digits1"},
                          {"", "1", "1"}})
        EXPECT_EQ(KTNumberPatternFormatter(c.pattern).stringForObjectValue(decimal(c.number)), c.text)
            << c.pattern;
}
