#include "platform/tracklibrary/TrackNumber.h"

#include "platform/common/KTText.h"

#include <array>

namespace {

constexpr int kDoubleDigits = std::numeric_limits<double>::digits10;
// Powers of ten that a double holds exactly: an integer below 2^53 divided by one of them is rounded once
// only.
constexpr std::array<double, 23> kPowersOfTen = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                 1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

/// A plain number ("-12.345") of few enough digits for a double to hold them; nothing for all others.
std::optional<double> shortNumber(std::string_view text) {
    std::size_t at = 0;
    bool negative = false;
    if (at < text.size() && (text[at] == '-' || text[at] == '+'))
        negative = text[at++] == '-';
    std::uint64_t mantissa = 0;
    int digits = 0;
    std::size_t fraction = 0;
    bool any = false, point = false;
    for (; at < text.size(); ++at) {
        if (text[at] == '.' && !point) {
            point = true;
            continue;
        }
        auto digit = static_cast<unsigned>(text[at] - '0');
        if (digit > 9 || digits == kDoubleDigits)
            return std::nullopt;
        any = true;
        mantissa = mantissa * 10 + digit;
        digits += mantissa != 0;
        fraction += point;
    }
    if (!any || fraction >= kPowersOfTen.size())
        return std::nullopt;
    double magnitude = static_cast<double>(mantissa) / kPowersOfTen[fraction];
    return negative && mantissa != 0 ? -magnitude : magnitude;
}

} // namespace

std::optional<TrackNumber> TrackNumber::fromText(std::string_view text) {
    text = KTTrimmed(text);
    TrackNumber result;
    if (auto number = shortNumber(text)) {
        result.value = *number;
        return result;
    }
    auto decimal = KTDecimal::fromText(text);
    if (!decimal || decimal->isNaN())
        return std::nullopt;
    std::string plain = decimal->toText();
    if (auto number = shortNumber(plain)) {
        result.value = *number;
        return result;
    }
    result.value = decimal->toDouble();
    result.digits = std::make_unique<const std::string>(std::move(plain));
    return result;
}

std::optional<KTDecimal> TrackNumber::toDecimal() const {
    if (digits)
        return KTDecimal::fromText(*digits);
    return isAbsent() ? std::nullopt : std::optional(KTDecimal::fromDouble(value));
}
