#include "metadata/KTValueFormatters.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/common/KTUnitConverter.h"

namespace {

std::optional<KTDecimal> numberOf(const KTValue& value) {
    auto number = value.number();
    return number && !number->isNaN() ? number : std::nullopt;
}

std::string oneDecimal(const KTDecimal& number) {
    return KTNumberPatternFormatter("0.0").stringForNumber(number);
}

/// The number that a value is or that its text begins with, 0 for other texts; nothing for other kinds.
std::optional<KTDecimal> numberOrTextNumber(const KTValue& value) {
    if (value.text())
        return KTDecimal::fromPrefix(KTTrimmed(*value.text())).value_or(KTDecimal());
    return numberOf(value);
}

/// Whether a text means yes by its first letter ("true", "Yes").
bool saysYes(const KTValue& value) {
    const std::string_view text = value.text() ? KTTrimmed(*value.text()) : std::string_view();
    return !text.empty() && std::string_view("tTyY").find(text.front()) != std::string_view::npos;
}

} // namespace

std::string KTApertureFormatter::stringForObjectValue(const KTValue& value) const {
    auto number = numberOf(value);
    if (!number)
        return "";
    const KTDecimal rounded = number->rounded(1);
    return "ƒ/" + (rounded == rounded.rounded(0) ? rounded.toText() : oneDecimal(rounded));
}

std::string KTShutterSpeedFormatter::stringForObjectValue(const KTValue& value) const {
    auto seconds = numberOf(value);
    if (!seconds)
        return "";
    const KTDecimal one = KTDecimal::fromInteger(1);
    if (*seconds >= one)
        return KTStringWithFormat(KTLocalizedString("%@ seconds"), {oneDecimal(*seconds)});
    const KTDecimal divisor = (one / *seconds).rounded(0);
    if (divisor.isNaN() || *seconds <= KTDecimal()) // no exposure takes no time or less
        return "";
    return KTStringWithFormat(KTLocalizedString("1/%ld of a second"), {divisor.toText()});
}

std::string KTISOFormatter::stringForObjectValue(const KTValue& value) const {
    auto number = numberOf(value);
    return number ? number->rounded(0).toText() : "";
}

std::string KTBytesFormatter::stringForObjectValue(const KTValue& value) const {
    auto bytes = numberOf(value);
    if (!bytes)
        return "";
    const KTDecimal thousand = KTDecimal::fromInteger(1000);
    KTDecimal quotient = bytes->rounded(0, KTDecimal::Rounding::Down);
    if (quotient < thousand)
        return KTStringWithFormat(KTLocalizedString("%llu bytes"), {quotient.toText()});
    constexpr const char* units[] = {"%@ KB", "%@ MB", "%@ GB", "%@ TB", "%@ PB"};
    std::size_t unit = 0;
    quotient = quotient / thousand;
    for (; quotient >= thousand && unit + 1 < std::size(units); ++unit)
        quotient = quotient / thousand;
    return KTStringWithFormat(KTLocalizedString(units[unit]), {stringForNumber(quotient)});
}

std::string KTGPSDifferentialFormatter::stringForObjectValue(const KTValue& value) const {
    auto number = numberOrTextNumber(value);
    if (!number)
        return "";
    return number->isZero() && !saysYes(value) ? KTLocalizedString("No correction")
                                               : KTLocalizedString("Differential correction");
}

std::string KTGPSMeasurementModeFormatter::stringForObjectValue(const KTValue& value) const {
    auto number = numberOrTextNumber(value);
    if (!number)
        return "";
    switch (number->toInteger()) {
    case 2:
        return KTLocalizedString("2 dimensional");
    case 3:
        return KTLocalizedString("3 dimensional");
    default:
        return KTLocalizedString("Undefined");
    }
}

std::string KTGPSStatusFormatter::stringForObjectValue(const KTValue& value) const {
    if (!value.text())
        return "";
    if (*value.text() == "A")
        return KTLocalizedString("Measurement active");
    return *value.text() == "V" ? KTLocalizedString("Measurement void") : KTLocalizedString("Undefined");
}

std::string KTDefaultHeightFormatter::stringForObjectValue(const KTValue& value) const {
    auto metres = numberOf(value);
    return metres ? KTUnitConverter::sharedUnitConverter().heightDescriptionFromMeters(*metres) : "";
}
