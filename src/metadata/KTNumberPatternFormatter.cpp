#include "metadata/KTNumberPatternFormatter.h"

#include <QLocale>

KTNumberPatternFormatter::KTNumberPatternFormatter(std::string_view pattern) {
    constexpr std::string_view digits = "#0,.";
    const auto begin = pattern.find_first_of(digits);
    const auto end = pattern.find_first_not_of(digits, begin);
    prefix = pattern.substr(0, begin);
    suffix = end == std::string_view::npos ? "" : pattern.substr(end);
    bool fraction = false;
    for (char c : pattern.substr(begin, end == std::string_view::npos ? end : end - begin)) {
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
    return (rounded.isNegative() ? locale.negativeSign().toStdString() : "") + prefix + whole + suffix;
}
