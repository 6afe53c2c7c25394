#include "platform/cartography/KTStyle.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

bool nothingHasAValue(const std::string&) {
    return false;
}

TEST(Rule, AppliesWhereAllItsConditionsHold) {
    const KTRule rule{.presentKey = "imageDirection", .onlySelected = true, .maximumScaleDenominator = 1e6};
    const auto hasDirection = [](const std::string& key) { return key == "imageDirection"; };
    EXPECT_TRUE(rule.appliesTo(true, 5000, hasDirection));
    EXPECT_TRUE(rule.appliesTo(true, 1e6, hasDirection));
    EXPECT_FALSE(rule.appliesTo(true, 1e6 + 1, hasDirection));
    EXPECT_FALSE(rule.appliesTo(true, NAN, hasDirection));
    EXPECT_FALSE(rule.appliesTo(false, 5000, hasDirection));
    EXPECT_FALSE(rule.appliesTo(true, 5000, nothingHasAValue));
}

TEST(Rule, WithoutConditionsAlwaysApplies) {
    EXPECT_TRUE(KTRule().appliesTo(false, NAN, nothingHasAValue));
    EXPECT_TRUE(KTRule{.onlySelected = true}.appliesTo(true, 1e9, nothingHasAValue));
}

} // namespace
