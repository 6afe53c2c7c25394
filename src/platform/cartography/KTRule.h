#pragma once
#include "platform/cartography/KTSymbolizer.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

/// When a feature is drawn in which ways. A value type.
struct KTRule {
    std::string presentKey = {}; ///< the property that must have a value; empty for no such condition
    bool onlySelected = false;   ///< leaves features alone that are not selected
    /// 1,000,000 stands for maps of 1 : 1,000,000 and larger scales; nothing for every scale.
    std::optional<double> maximumScaleDenominator = {};
    std::vector<KTSymbolizer> symbolizers = {}; ///< drawn in this order

    void addSymbolizer(KTSymbolizer symbolizer) { symbolizers.push_back(symbolizer); }

    /// Whether a feature that is selected or not is drawn by this rule on a map of the scale
    /// 1 : @p scaleDenominator (one that is not a number is beyond every maximum). @p hasValueForKey tells
    /// whether a property of the feature has a value; asked only where the rest of the rule holds.
    bool appliesTo(bool isSelected, double scaleDenominator,
                   const std::function<bool(const std::string& key)>& hasValueForKey) const;

    bool operator==(const KTRule&) const = default;
};
