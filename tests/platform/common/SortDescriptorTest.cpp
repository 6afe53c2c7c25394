#include "platform/common/KTSortDescriptor.h"

#include <QLocale>
#include <gtest/gtest.h>
#include <thread>

namespace {

KTValue components(const char* text) {
    return KTDateComponents::dateComponentsWithString(text).value();
}

/// Expects each value to come before all that follow it, and with itself.
void expectAscending(const std::vector<KTValue>& values) {
    for (std::size_t i = 0; i < values.size(); ++i)
        for (std::size_t j = 0; j < values.size(); ++j) {
            const int order = KTCompareForSorting(values[i], values[j]);
            EXPECT_EQ(order < 0, i < j) << values[i].description() << " and " << values[j].description();
            EXPECT_EQ(order > 0, i > j) << values[i].description() << " and " << values[j].description();
        }
}

TEST(SortDescriptor, OrdersValuesAsPeopleLookForThem) {
    expectAscending({
        {},
        false,
        true,
        KTDecimal::notANumber(),
        -3,
        KTDecimal::fromText("2.5").value(),
        10,
        KTInstantFromMilliseconds(-1),
        KTInstantFromMilliseconds(0),
        components("2014"),
        components("2014:05"),
        components("2014:05:01 10:00:00"),
        components("2014:05:01 10:00:01"),
        components("2014:10:01 00:00:00"),
        "",
        "DSC_2.jpg",
        "dsc_10.jpg",
        "IMG_2.jpg",
        "img_0010.jpg",
        "Zebra",
        KTValue::List(),
        KTValue::listOfTexts({"bird"}),
        KTValue::listOfTexts({"Bird", "2"}),
        KTValue::listOfTexts({"bird", "10"}),
        KTTimeZone::fixed(3600),
    });
    EXPECT_EQ(KTCompareForSorting("café.JPG", "CAFÉ.jpg"), 0);
    EXPECT_EQ(KTCompareForSorting("IMG_007", "img_7"), 0);
    EXPECT_EQ(KTCompareForSorting(KTValue::null(), {}), 0);
    EXPECT_EQ(KTCompareForSorting(2, KTDecimal::fromText("2.0").value()), 0);
    KTDateComponents there = *components("2014:05").components();
    there.timeZone = KTTimeZone::fixed(7200);
    EXPECT_EQ(KTCompareForSorting(there, components("2014:05")), 0);
    EXPECT_LT(KTCompareForSorting("\xff", "\xff\xff"), 0); // paths need not be UTF-8
}

TEST(SortDescriptor, SortsTextsAsTheUsersLanguageDoesOnEveryThread) {
    const std::vector<KTValue> english{"ångström", "Ärger", "Zürich"}, swedish{"Zürich", "ångström", "Ärger"};
    std::jthread([&] { expectAscending(english); }).join();
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::Swedish));
    {
        std::jthread first([&] { expectAscending(swedish); }), second([&] { expectAscending(swedish); });
    }
    QLocale::setDefault(before);
}

} // namespace
