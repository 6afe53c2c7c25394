#include "metadata/KTNumberPatternFormatter.h"

#include <QLocale>
#include <algorithm>

namespace {

/// @p text with its digits in the script of @p locale.
std::string withDigitsOf(const QLocale& locale, const std::string& text) {
    const char32_t zero = locale.zeroDigit().toUcs4().value(0, U'0');
    if (zero == U'0')
        return text;
    std::u32string result = QString::fromStdString(text).toStdU32String();
    for (char32_t& c : result)
        if (c >= U'0' && c <= U'9')
            c += zero - U'0';
    return QString::fromStdU32String(result).toStdString();
}

} // namespace

KTNumberPatternFormatter::KTNumberPatternFormatter(std::string_view pattern) {
    constexpr std::string_view digits = "#0,.";
    const auto begin = std::min(pattern.find_first_of(digits), pattern.size());
    const auto end = std::min(pattern.find_first_not_of(digits, begin), pattern.size());
    prefix = pattern.substr(0, begin);
    suffix = pattern.substr(end);
    bool fraction = false;
    for (char c : pattern.substr(begin, end - begin)) {
        if (c == '.')
            fraction = true;
        else if (c == ',')
            grouped = true;
        else if (fraction)
            ++(c == '0' ? requiredFraction : optionalFraction);
        else if (c == '0')
            ++requiredWhole;
    }
}

std::string KTNumberPatternFormatter::stringForObjectValue(const KTValue& value) const {
    auto number = value.number();
    return number && !number->isNaN() ? stringForNumber(*number) : "";
}

std::string KTNumberPatternFormatter::stringForNumber(const KTDecimal& number) const {
    const KTDecimal rounded = number.rounded(static_cast<int>(requiredFraction + optionalFraction));
    std::string whole = rounded.abs().toText(), fraction;
    if (auto point = whole.find('.'); point != std::string::npos) {
        fraction = whole.substr(point + 1);
        whole.resize(point);
    }
    if (whole == "0" && requiredWhole == 0)
        whole.clear();
    if (whole.size() < requiredWhole)
        whole.insert(0, requiredWhole - whole.size(), '0');
    if (fraction.size() < requiredFraction)
        fraction.append(requiredFraction - fraction.size(), '0');

    const QLocale locale;
    if (grouped)
        for (std::size_t at = whole.size(); at > 3; at -= 3)
            whole.insert(at - 3, locale.groupSeparator().toStdString());
    if (!fraction.empty())
        whole += locale.decimalPoint().toStdString() + fraction;
    return (rounded.isNegative() ? locale.negativeSign().toStdString() : "") + prefix +
           withDigitsOf(locale, whole) + suffix;
}
