#include "platform/common/KTCalendar.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace {

std::string parsed(std::string_view text) {
    auto components = KTDateComponents::dateComponentsWithString(text);
    return components ? components->exifString().value_or("no year") : "none";
}

KTInstant instantOf(std::string_view text, const KTTimeZone& zone) {
    return KTCalendar(zone).dateFromComponents(*KTDateComponents::dateComponentsWithString(text)).value();
}

} // namespace

TEST(DateComponents, ParsesWholeAndPartialDates) {
    struct Case {
        const char* text;
        const char* exif;
    };
    for (auto [text, exif] : {Case{"2014:06:01 12:34:56", "2014:06:01 12:34:56"},
                              {"2014:06:01 12:34:56.789+02:00", "2014:06:01 12:34:56"},
                              {"2014-06-01T12:34:56Z", "2014:06:01 12:34:56"},
                              {"2014:06:01 12:34", "2014:06:01 12:34:  "},
                              {"2014:06:01 12", "2014:06:01 12:  :  "},
                              {"2014:06:01", "2014:06:01   :  :  "},
                              {"2014:06", "2014:06:     :  :  "},
                              {"2014", "2014:  :     :  :  "},
                              {"2014:00:00", "2014:  :     :  :  "},
                              {"2014:  :   12:30:  ", "2014:  :   12:30:  "},
                              {" 2016:02:29 00:00:60 ", "2016:02:29 00:00:60"}})
        EXPECT_EQ(parsed(text), exif) << text;
    for (const char* text :
         {"", "    :  :     :  :  ", "0000:00:00 00:00:00", "abc", "2014:13:01", "2014:02:30", "2015:02:29",
          "2014:06:01 24:00:00", "2014:06:01 12:60:00", "20140601", "201", "12:34:56", "2014:06:01 x"})
        EXPECT_EQ(parsed(text), "none") << text;
    auto components = KTDateComponents::dateComponentsWithString("2014:06:01");
    EXPECT_EQ(components->hour, KTDateComponents::kUndefined);
    EXPECT_EQ(components->calendar, KTCalendarIdentifier::Gregorian);
    EXPECT_FALSE(components->timeZone);
}

TEST(DateComponents, WritesTheTextFormsOfMetadata) {
    KTDateComponents date;
    EXPECT_FALSE(date.xmpString());
    EXPECT_FALSE(date.exifString());
    EXPECT_FALSE(date.iptcDateString());
    EXPECT_EQ(date.iptcTimeString(), "00:00:00");
    date.year = 987;
    EXPECT_EQ(date.xmpString(), "0987");
    EXPECT_EQ(date.iptcDateString(), "0987:00:00");
    date.month = 6;
    date.day = 1;
    date.hour = 9;
    EXPECT_EQ(date.xmpString(), "0987:06:01 09:00");
    EXPECT_EQ(date.exifString(), "0987:06:01 09:  :  ");
    EXPECT_EQ(date.iptcTimeString(), "09:00:00");
}

TEST(TimeZone, ReadsWhatUsersTypeAndWhatFilesHold) {
    struct Case {
        const char* text;
        int seconds;
    };
    for (auto [text, seconds] : {Case{"Z", 0},
                                 {"UTC", 0},
                                 {"+02:00", 7200},
                                 {"-0330", -12600},
                                 {"+2", 7200},
                                 {"+05:30", 19800},
                                 {"-00:00:30", -30}})
        EXPECT_EQ(KTTimeZone::fromText(text)->secondsFromGMT({}), seconds) << text;
    for (const char* text :
         {"", "x", "+", "+24:00", "+02:60", "02:00", "+1:2:3:4", "Nowhere/City", "../etc/passwd"})
        EXPECT_FALSE(KTTimeZone::fromText(text)) << text;

    EXPECT_EQ(KTTimeZone::timeZoneWithString("2012:07:04 10:00:00+02:00")->secondsFromGMT({}), 7200);
    EXPECT_EQ(KTTimeZone::timeZoneWithString("2012-07-04T10:00:00.25-08:00")->secondsFromGMT({}), -28800);
    EXPECT_EQ(KTTimeZone::timeZoneWithString("2012:07:04 10:00:00Z")->secondsFromGMT({}), 0);
    for (const char* text : {"2012:07:04 10:00:00", "2012-07-04", "2012-07", ""})
        EXPECT_FALSE(KTTimeZone::timeZoneWithString(text)) << text;
}

TEST(TimeZone, FollowsARegionsRules) {
    auto berlin = KTTimeZone::named("Europe/Berlin");
    ASSERT_TRUE(berlin);
    EXPECT_EQ(KTISO8601Text(instantOf("2014:07:01 12:00:00", *berlin)), "2014-07-01T10:00:00Z");
    EXPECT_EQ(KTISO8601Text(instantOf("2014:01:01 12:00:00", *berlin)), "2014-01-01T11:00:00Z");
    EXPECT_EQ(berlin->offsetText(instantOf("2014:07:01 12:00:00", *berlin)), "+02:00");
    EXPECT_EQ(KTTimeZone::fixed(-12600).name(), "-03:30");
    EXPECT_FALSE(*berlin == KTTimeZone::fixed(3600));
}

TEST(Calendar, TurnsComponentsIntoInstantsInTheirZone) {
    EXPECT_EQ(KTISO8601Text(instantOf("2014:06:01 12:00:00", KTTimeZone::fixed(7200))),
              "2014-06-01T10:00:00Z");
    EXPECT_EQ(KTISO8601Text(instantOf("2014", KTTimeZone::utc())), "2014-01-01T00:00:00Z");
    EXPECT_EQ(KTISO8601Text(instantOf("2016:12:31 23:59:60", KTTimeZone::utc())), "2017-01-01T00:00:00Z");
    KTDateComponents components = *KTDateComponents::dateComponentsWithString("2014:06:01 12:00:00");
    EXPECT_FALSE(KTInstantOfComponents(components)) << "no zone";
    components.timeZone = KTTimeZone::utc();
    EXPECT_TRUE(KTInstantOfComponents(components));
    components.calendar.reset();
    EXPECT_FALSE(KTInstantOfComponents(components)) << "no calendar";
    EXPECT_EQ(KTISO8601Text(KTInstantFromMilliseconds(-250)), "1969-12-31T23:59:59.750Z");
}

RC_GTEST_PROP(Calendar, ComponentsAndInstantsRoundTrip, ()) {
    auto seconds = *rc::gen::inRange<std::int64_t>(-5000000000, 9000000000);
    KTCalendar calendar(KTTimeZone::fixed(*rc::gen::inRange(-50400, 50400)));
    KTInstant instant = KTInstantFromMilliseconds(seconds * 1000);
    RC_ASSERT(calendar.dateFromComponents(calendar.componentsFromDate(instant)) == instant);
}
