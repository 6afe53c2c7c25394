#include "platform/common/KTUnitConverter.h"

#include <cmath>
#include <gtest/gtest.h>

TEST(UnitConverter, SaysDurationsAsAPersonWould) {
    struct Case {
        std::int64_t seconds;
        const char* exact;
        const char* rounded;
    };
    const KTUnitConverter converter;
    for (auto [seconds, exact, rounded] :
         {Case{0, "0 seconds", "0 seconds"},
          {1, "1 second", "1 second"},
          {90, "1 minute 30 seconds", "1 minute 30 seconds"},
          {300, "5 minutes", "5 minutes"},
          {-300, "5 minutes", "5 minutes"},
          {3600, "1 hour", "1 hour"},
          {3661, "1 hour 1 minute 1 second", "1 hour 1 minute"},
          {3599, "59 minutes 59 seconds", "59 minutes 59 seconds"},
          {86399, "23 hours 59 minutes 59 seconds", "1 day"},
          {190000, "2 days 4 hours 46 minutes 40 seconds", "2 days 5 hours"}}) {
        EXPECT_EQ(converter.descriptionFromSeconds(seconds), exact);
        EXPECT_EQ(converter.roundedDescriptionFromSeconds(seconds), rounded);
    }
    EXPECT_FALSE(converter.descriptionFromSeconds(INT64_MIN).empty());
    EXPECT_FALSE(converter.roundedDescriptionFromSeconds(INT64_MAX).empty());
}

TEST(UnitConverter, SaysDistancesAndHeightsInTheUsersUnits) {
    using Units = KTUnitConverter::Units;
    struct Case {
        Units units;
        double metres;
        const char* distance;
        const char* height;
    };
    KTUnitConverter converter;
    int announced = 0;
    auto observation =
        converter.observe([&](const KTChange& change) { announced += change.isPrior ? 0 : 1; });
    for (auto [units, metres, distance, height] : {Case{Units::Metric, 25, "25 m", "25 m"},
                                                   {Units::Metric, 1.25, "1.3 m", "1.3 m"},
                                                   {Units::Metric, 999.7, "1 km", "999.7 m"},
                                                   {Units::Metric, 1234, "1.2 km", "1,234 m"},
                                                   {Units::Metric, 123456, "123 km", "123,456 m"},
                                                   {Units::Imperial, 25, "82 ft", "82 ft"},
                                                   {Units::Metric, 12.04, "12 m", "12 m"},
                                                   {Units::Metric, 0.04, "0 m", "0 m"},
                                                   {Units::Metric, 9960, "10 km", "9,960 m"},
                                                   {Units::Imperial, 1300, "0.8 mi", "4,265 ft"},
                                                   {Units::Imperial, 1609.344, "1 mi", "5,280 ft"},
                                                   {Units::Nautical, 1111, "0.6 NM", "3,645 ft"},
                                                   {Units::Nautical, 25, "25 m", "82 ft"},
                                                   {Units::Nautical, 1852 * 2.5, "2.5 NM", "15,190 ft"}}) {
        converter.setDistanceUnits(units);
        EXPECT_EQ(converter.roundedDefaultDistanceDescriptionFromMeters(metres), distance) << metres;
        EXPECT_EQ(converter.heightDescriptionFromMeters(KTDecimal::fromDouble(metres)), height) << metres;
    }
    EXPECT_EQ(announced, 14);
    EXPECT_EQ(converter.heightDescriptionFromMeters(KTDecimal::fromDouble(-0.1)), "0 ft") << "no minus zero";
    EXPECT_EQ(converter.heightDescriptionFromMeters(KTDecimal::fromDouble(-430.5)), "-1,412 ft");
    EXPECT_EQ(converter.heightDescriptionFromMeters(KTDecimal::notANumber()), "?");
    EXPECT_EQ(converter.roundedDefaultDistanceDescriptionFromMeters(std::nan("")), "?");
}
