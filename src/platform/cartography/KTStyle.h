#pragma once
#include "platform/cartography/KTRule.h"

/// How a feature is drawn: every rule that applies adds its symbols, later ones on top. A value type, shared
/// as `std::shared_ptr<const KTStyle>` once it is complete.
struct KTStyle {
    std::vector<KTRule> rules;

    void addRule(KTRule rule) { rules.push_back(std::move(rule)); }

    bool operator==(const KTStyle&) const = default;
};
