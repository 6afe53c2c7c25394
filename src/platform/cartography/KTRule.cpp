#include "platform/cartography/KTRule.h"

bool KTRule::appliesTo(bool isSelected, double scaleDenominator,
                       const std::function<bool(const std::string&)>& hasValueForKey) const {
    if (onlySelected && !isSelected)
        return false;
    if (maximumScaleDenominator && !(scaleDenominator <= *maximumScaleDenominator))
        return false;
    return presentKey.empty() || hasValueForKey(presentKey);
}
