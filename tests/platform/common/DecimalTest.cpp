#include "platform/common/KTDecimal.h"

#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace {

KTDecimal decimal(std::string_view text) {
    auto value = KTDecimal::fromText(text);
    EXPECT_TRUE(value) << text;
    return value.value_or(KTDecimal::notANumber());
}

} // namespace

TEST(Decimal, ReadsAndShowsPlainText) {
    struct Case {
        const char* text;
        const char* plain;
    };
    for (auto [text, plain] :
         {Case{"0", "0"},
          {"-0", "0"},
          {"+3", "3"},
          {".5", "0.5"},
          {"5.", "5"},
          {"007.10", "7.1"},
          {"1200", "1200"},
          {"1e-8", "0.00000001"},
          {"-1.5E2", "-150"},
          {"47.964862823", "47.964862823"},
          {"9223372036854775807", "9223372036854775807"},
          {"18446744073709551616", "18446744073709551616"},
          {"99999999999999999999999999999999999999", "99999999999999999999999999999999999999"},
          {"0.00000000000000000000000000000000000001", "0.00000000000000000000000000000000000001"},
          {"123456789012345678901234567890123456785", "123456789012345678901234567890123456790"}})
        EXPECT_EQ(decimal(text).toText(), plain) << text;
    for (const char* text : {"", "-", ".", "1.2.3", "1e", "0x10", " 1", "1 ", "NaN", "inf", "--1", "1e1e1"})
        EXPECT_FALSE(KTDecimal::fromText(text)) << text;
    EXPECT_TRUE(decimal("1e999999999999").isNaN());
    EXPECT_TRUE(decimal("1e-999999999999").isZero());
    EXPECT_TRUE(decimal("1e401").isNaN());
}

TEST(Decimal, ReadsTheNumberThatATextBeginsWith) {
    struct Case {
        const char* text;
        const char* plain;
    };
    for (auto [text, plain] : {Case{"50 mm", "50"},
                               {"1/250", "1"},
                               {"2.8e", "2.8"},
                               {"-3.5x", "-3.5"},
                               {"1.", "1"},
                               {"4e2m", "400"}})
        EXPECT_EQ(KTDecimal::fromPrefix(text).value_or(KTDecimal::notANumber()).toText(), plain) << text;
    for (const char* text : {"", "mm", "-", ".", "e5"})
        EXPECT_FALSE(KTDecimal::fromPrefix(text)) << text;
}

TEST(Decimal, RoundsHalvesAwayFromZeroOrDown) {
    using Rounding = KTDecimal::Rounding;
    EXPECT_EQ(decimal("0.123456785").rounded(8).toText(), "0.12345679");
    EXPECT_EQ(decimal("-0.123456785").rounded(8).toText(), "-0.12345679");
    EXPECT_EQ(decimal("0.123456789").rounded(8, Rounding::Down).toText(), "0.12345678");
    EXPECT_EQ(decimal("-0.123456781").rounded(8, Rounding::Down).toText(), "-0.12345679");
    EXPECT_EQ(decimal("-1e-300").rounded(8, Rounding::Down).toText(), "-0.00000001");
    EXPECT_EQ(decimal("1e-300").rounded(8).toText(), "0");
    EXPECT_EQ(decimal("9.9999").rounded(2).toText(), "10");
    EXPECT_EQ(decimal("1251").rounded(-2).toText(), "1300");
    EXPECT_EQ(decimal("12.5").rounded(3).toText(), "12.5");
}

TEST(Decimal, ConvertsDoubles) {
    EXPECT_EQ(KTDecimal::fromDouble(0.1).toText(), "0.1");
    EXPECT_EQ(KTDecimal::fromDouble(1.0 / 3).rounded(12).toText(), "0.333333333333");
    EXPECT_EQ(KTDecimal::fromDouble(-0.0).toText(), "0");
    EXPECT_TRUE(KTDecimal::fromDouble(std::nan("")).isNaN());
    EXPECT_TRUE(KTDecimal::fromDouble(HUGE_VAL).isNaN());
    EXPECT_TRUE(std::isnan(KTDecimal::notANumber().toDouble()));
    EXPECT_EQ(decimal("-2.9").toInteger(), -2);
    EXPECT_EQ(decimal("1e30").toInteger(), INT64_MAX);
    EXPECT_EQ(decimal("-1e30").toInteger(), INT64_MIN);
    EXPECT_EQ(decimal("1e-300").toInteger(), 0);
}

TEST(Decimal, NotANumberSpreads) {
    KTDecimal nan = KTDecimal::notANumber(), one = KTDecimal::fromInteger(1);
    EXPECT_TRUE((nan + one).isNaN() && (one - nan).isNaN() && (nan * one).isNaN() && (one / nan).isNaN());
    EXPECT_TRUE((one / KTDecimal()).isNaN());
    EXPECT_TRUE(nan == nan && nan < one);
}

RC_GTEST_PROP(Decimal, AgreesWithIntegerArithmetic, (std::int32_t a, std::int32_t b)) {
    KTDecimal x = KTDecimal::fromInteger(a), y = KTDecimal::fromInteger(b);
    RC_ASSERT((x + y).toInteger() == std::int64_t(a) + b);
    RC_ASSERT((x - y).toInteger() == std::int64_t(a) - b);
    RC_ASSERT((x * y).toInteger() == std::int64_t(a) * b);
    RC_ASSERT(x.compare(y) == (a < b ? -1 : a > b ? 1 : 0));
    if (b != 0)
        RC_ASSERT(std::abs(((x / y) * y - x).toDouble()) < 1e-20);
}

RC_GTEST_PROP(Decimal, TextAndDoubleRoundTrip, (double value)) {
    KTDecimal decimal = KTDecimal::fromDouble(value);
    RC_PRE(!decimal.isNaN());
    RC_ASSERT(decimal.toDouble() == value);
    RC_ASSERT(*KTDecimal::fromText(decimal.toText()) == decimal);
}
