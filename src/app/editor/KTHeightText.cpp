#include "app/editor/KTHeightText.h"

#include "platform/common/KTText.h"
#include "platform/common/KTUnitConverter.h"

#include <algorithm>

namespace {

const KTDecimal& metresPerFoot() {
    static const KTDecimal factor = *KTDecimal::fromText("0.3048");
    return factor;
}

bool isInFeet() {
    return KTUnitConverter::sharedUnitConverter().distanceUnits() != KTUnitConverter::Units::Metric;
}

bool takeSuffix(std::string_view& text, std::string_view suffix) {
    if (text.size() < suffix.size() || !KTEqualIgnoringCase(text.substr(text.size() - suffix.size()), suffix))
        return false;
    text = KTTrimmed(text.substr(0, text.size() - suffix.size()));
    return true;
}

} // namespace

std::string KTHeightText(const KTDecimal& metres) {
    if (isInFeet())
        return (metres / metresPerFoot()).rounded(3).toText() + " ft";
    return metres.rounded(3).toText() + " m";
}

std::optional<KTDecimal> KTHeightFromText(std::string_view text) {
    text = KTTrimmed(text);
    bool feet = takeSuffix(text, "ft") || takeSuffix(text, "'") || takeSuffix(text, "′");
    if (!feet && !takeSuffix(text, "m"))
        feet = isInFeet();
    std::string number(text);
    if (number.find('.') == std::string::npos && std::ranges::count(number, ',') == 1)
        number[number.find(',')] = '.';
    const auto value = KTDecimal::fromText(number);
    if (!value || value->isNaN())
        return std::nullopt;
    return feet ? *value * metresPerFoot() : *value;
}
