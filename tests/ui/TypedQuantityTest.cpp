#include "ui/support/TypedQuantity.h"

#include <gtest/gtest.h>

namespace {

using Units = KTUnitConverter::Units;
using namespace TypedQuantity;

TEST(TypedQuantity, ReadsDurationsAsPeopleTypeThem) {
    const struct {
        const char* text;
        double seconds;
    } cases[] = {{"5 min", 300},    {"90 s", 90},          {"5", 300},           {"1.5 min", 90},
                 {"1,5 min", 90},   {"2h", 7200},          {"1 h 30 min", 5400}, {"1:30", 90},
                 {"1:00:05", 3605}, {" 10 Minutes ", 600}, {"1 d", 86400},       {"0 s", 0}};
    for (const auto& each : cases)
        EXPECT_EQ(secondsFrom(each.text), each.seconds) << each.text;
    for (const char* text : {"", " ", "min", "five", "-5 min", "5 m m x", "5 km", "1:75", "5 min later"})
        EXPECT_FALSE(secondsFrom(text)) << text;
}

TEST(TypedQuantity, ReadsDistancesInTheUnitTypedElseInTheUsers) {
    EXPECT_DOUBLE_EQ(*metresFrom("25 m", Units::Imperial), 25);
    EXPECT_DOUBLE_EQ(*metresFrom("80 ft", Units::Metric), 80 * 0.3048);
    EXPECT_DOUBLE_EQ(*metresFrom("1.5km", Units::Metric), 1500);
    EXPECT_DOUBLE_EQ(*metresFrom("2 nm", Units::Metric), 3704);
    EXPECT_DOUBLE_EQ(*metresFrom("100", Units::Metric), 100);
    EXPECT_DOUBLE_EQ(*metresFrom("100", Units::Imperial), 30.48);
    for (const char* text : {"", "m", "-3 m", "3 min", "far"})
        EXPECT_FALSE(metresFrom(text, Units::Metric)) << text;
}

TEST(TypedQuantity, WhatIsShownReadsBackAsTheSame) {
    for (const double seconds : {0.0, 1.0, 59.0, 60.0, 61.0, 90.0, 300.0, 5400.0, 7200.0, 86400.0, 12.5})
        EXPECT_DOUBLE_EQ(*secondsFrom(textOfSeconds(seconds)), seconds)
            << textOfSeconds(seconds).toStdString();
    for (const auto units : {Units::Metric, Units::Imperial, Units::Nautical})
        for (const double metres : {0.0, 25.0, 999.0, 1500.0, 1852.0, 100000.0})
            EXPECT_NEAR(*metresFrom(textOfMetres(metres, units), units), metres, 0.005 * 1852)
                << textOfMetres(metres, units).toStdString();
    EXPECT_EQ(textOfSeconds(300), "5 min");
    EXPECT_EQ(textOfSeconds(90), "90 s");
}

} // namespace
