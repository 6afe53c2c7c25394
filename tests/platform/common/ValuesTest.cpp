#include "platform/common/KTText.h"
#include "platform/common/KTValue.h"

#include <gtest/gtest.h>

TEST(Value, ComparesNumbersByValueAndOtherKindsByContent) {
    EXPECT_TRUE(KTValue(3) == KTValue(KTDecimal::fromInteger(3)));
    EXPECT_FALSE(KTValue(3) == KTValue("3"));
    EXPECT_FALSE(KTValue() == KTValue::null());
    EXPECT_TRUE(KTValue(KTValue::List{"a", 1}) == KTValue(KTValue::List{"a", *KTDecimal::fromText("1.0")}));
    EXPECT_FALSE(KTValue(KTValue::List{"a"}) == KTValue(KTValue::List{"a", "b"}));
    EXPECT_TRUE(KTValue(KTValue::Dictionary{{"k", 1}}) == KTValue(KTValue::Dictionary{{"k", 1}}));
    EXPECT_TRUE(KTValue(std::optional<KTDecimal>()).isAbsent());
    EXPECT_EQ(KTValue(KTValue::List{"a", 2}).description(), "a, 2");
}

TEST(Text, AcceptsOnlyWellFormedUTF8) {
    for (const char* text : {"", "ascii", "Zürich", "写真", "🙂", "\xEF\xBF\xBD"})
        EXPECT_TRUE(KTIsUTF8(text)) << text;
    for (const char* bytes :
         {"\xe9", "\xc0\xaf", "\xe0\x80\x80", "\xed\xa0\x80", "\xf4\x90\x80\x80", "\xf0\x9f\x99", "a\x80"})
        EXPECT_FALSE(KTIsUTF8(bytes));
    EXPECT_EQ(KTValidUTF8("a\xe9z"), "a\xEF\xBF\xBDz");
}

TEST(Text, FillsFormats) {
    EXPECT_EQ(KTStringWithFormat("%@ of %d", {"a", "2"}), "a of 2");
    EXPECT_EQ(KTStringWithFormat("%2$@ and %1$@", {"a", "b"}), "b and a");
    EXPECT_EQ(KTStringWithFormat("Loading image %lu of %lu", {"1", "2"}), "Loading image 1 of 2");
    EXPECT_EQ(KTStringWithFormat("100%% of %@", {"50% %@"}), "100% of 50% %@") << "arguments are not formats";
    EXPECT_EQ(KTStringWithFormat("%@ %@", {"a"}), "a ");
    EXPECT_EQ(KTStringWithFormat("5 % x %", {}), "5 % x %");
}

TEST(Text, SplitsTrimsAndCompares) {
    EXPECT_EQ(KTSplit("a||b", '|'), (std::vector<std::string>{"a", "", "b"}));
    EXPECT_EQ(KTSplit("", '|'), std::vector<std::string>{""});
    EXPECT_EQ(KTTrimmed(" \t a b \r\n"), "a b");
    EXPECT_EQ(KTTrimmed(" \n "), "");
    EXPECT_TRUE(KTEqualIgnoringCase("JPG", "jpg"));
    EXPECT_FALSE(KTEqualIgnoringCase("jpg", "jpeg"));
}
