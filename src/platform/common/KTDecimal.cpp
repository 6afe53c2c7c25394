#include "platform/common/KTDecimal.h"

#include <boost/multiprecision/cpp_int.hpp>
#include <charconv>
#include <cmath>

namespace {

namespace mp = boost::multiprecision;
using Integer = mp::number<mp::cpp_int_backend<1024, 1024, mp::unsigned_magnitude, mp::unchecked, void>>;

constexpr int kDigits = 38;
constexpr int kLargestMagnitude = 400;

Integer powerOfTen(int exponent) {
    return mp::pow(Integer(10), static_cast<unsigned>(exponent));
}

int digitCount(const Integer& value) {
    if (value.is_zero())
        return 1;
    // Bits give the count to within one; a comparison settles it.
    int estimate = static_cast<int>(static_cast<double>(mp::msb(value)) * 0.30102999566398120) + 1;
    return value >= powerOfTen(estimate) ? estimate + 1 : estimate;
}

/// @p value divided by 10^@p places under @p rounding; @p negative is the sign of the whole number.
Integer withoutLastDigits(const Integer& value, int places, bool negative, KTDecimal::Rounding rounding) {
    Integer divisor = powerOfTen(places), remainder, quotient;
    mp::divide_qr(value, divisor, quotient, remainder);
    bool up =
        rounding == KTDecimal::Rounding::Plain ? remainder * 2 >= divisor : negative && !remainder.is_zero();
    return up ? Integer(quotient + 1) : quotient;
}

} // namespace

/// Sign, integer and exponent in which the arithmetic is done before the result is brought back to 38 digits.
struct KTDecimal::Wide {
    Integer mantissa;
    int exponent = 0;
    bool negative = false;

    explicit Wide(const KTDecimal& value)
        : mantissa((Integer(value.high) << 64) | Integer(value.low)), exponent(value.exponent),
          negative(value.negative) {}
    Wide(Integer wideMantissa, int tens, bool isNegative)
        : mantissa(std::move(wideMantissa)), exponent(tens), negative(isNegative) {}

    KTDecimal narrowed() const {
        Integer value = mantissa;
        int tens = exponent;
        if (int excess = digitCount(value) - kDigits; excess > 0) {
            value = withoutLastDigits(value, excess, negative, Rounding::Plain);
            tens += excess;
        }
        if (value.is_zero())
            return {};
        while (value % 1000000 == 0) {
            value /= 1000000;
            tens += 6;
        }
        while (value % 10 == 0) {
            value /= 10;
            ++tens;
        }
        int magnitude = digitCount(value) + tens;
        if (magnitude > kLargestMagnitude)
            return notANumber();
        if (magnitude < -kLargestMagnitude)
            return {};
        KTDecimal result;
        result.high = static_cast<std::uint64_t>(Integer(value >> 64));
        result.low = static_cast<std::uint64_t>(Integer(value & Integer(~std::uint64_t{0})));
        result.exponent = static_cast<std::int16_t>(tens);
        result.negative = negative;
        return result;
    }

    void bringToExponent(int tens) {
        mantissa *= powerOfTen(exponent - tens);
        exponent = tens;
    }
};

KTDecimal KTDecimal::fromInteger(std::int64_t value) {
    std::uint64_t magnitude =
        value < 0 ? ~static_cast<std::uint64_t>(value) + 1 : static_cast<std::uint64_t>(value);
    KTDecimal result = fromUnsigned(magnitude);
    result.negative = value < 0;
    return result;
}

KTDecimal KTDecimal::fromUnsigned(std::uint64_t value) {
    KTDecimal result;
    while (value != 0 && value % 10 == 0) {
        value /= 10;
        ++result.exponent;
    }
    result.low = value;
    return result;
}

KTDecimal KTDecimal::fromDouble(double value) {
    if (!std::isfinite(value))
        return notANumber();
    char buffer[40];
    auto end = std::to_chars(std::begin(buffer), std::end(buffer), value).ptr;
    return fromText({buffer, static_cast<std::size_t>(end - buffer)}).value_or(notANumber());
}

std::optional<KTDecimal> KTDecimal::fromText(std::string_view text) {
    auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    std::size_t at = 0;
    bool negative = false;
    if (at < text.size() && (text[at] == '-' || text[at] == '+'))
        negative = text[at++] == '-';

    // Up to 19 digits fit a machine word, which is every number of an ordinary file.
    std::uint64_t small = 0;
    Integer large;
    int digits = 0, dropped = 0, fraction = 0;
    bool any = false, point = false;
    for (; at < text.size() && (isDigit(text[at]) || (text[at] == '.' && !point)); ++at) {
        if (text[at] == '.') {
            point = true;
            continue;
        }
        any = true;
        if (digits >= 2 * kDigits) { // beyond any rounding's notice
            dropped += point ? 0 : 1;
            continue;
        }
        auto digit = static_cast<unsigned>(text[at] - '0');
        if (digits < 19)
            small = small * 10 + digit;
        else
            large = (digits == 19 ? Integer(small) : large) * 10 + digit;
        digits += digits == 0 && digit == 0 ? 0 : 1;
        fraction += point ? 1 : 0;
    }
    if (!any)
        return std::nullopt;

    int exponent = 0;
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        const char* begin = text.data() + at + 1;
        const char* end = text.data() + text.size();
        if (begin != end && *begin == '+')
            ++begin;
        auto [rest, error] = std::from_chars(begin, end, exponent);
        if (error == std::errc::result_out_of_range)
            return *begin == '-' ? KTDecimal() : notANumber();
        if (error != std::errc())
            return std::nullopt;
        at = static_cast<std::size_t>(rest - text.data());
    }
    if (at != text.size())
        return std::nullopt;
    exponent = std::clamp(exponent, -100000, 100000) + std::min(dropped, 100000) - fraction;
    if (digits <= 18 && exponent <= 0 && exponent >= -100) {
        KTDecimal result = fromUnsigned(small);
        result.exponent = static_cast<std::int16_t>(result.exponent + (small == 0 ? 0 : exponent));
        result.negative = negative && small != 0;
        return result;
    }
    return Wide(digits <= 19 ? Integer(small) : large, exponent, negative).narrowed();
}

std::optional<KTDecimal> KTDecimal::fromPrefix(std::string_view text) {
    std::size_t length = 0;
    auto digitsFrom = [&](std::size_t at) {
        while (at < text.size() && text[at] >= '0' && text[at] <= '9')
            ++at;
        return at;
    };
    std::size_t at = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
    std::size_t whole = digitsFrom(at);
    std::size_t fraction = whole < text.size() && text[whole] == '.' ? digitsFrom(whole + 1) : whole;
    if (whole == at && fraction <= whole + 1)
        return std::nullopt;
    length = fraction;
    if (length < text.size() && (text[length] == 'e' || text[length] == 'E')) {
        std::size_t sign = length + 1;
        if (sign < text.size() && (text[sign] == '-' || text[sign] == '+'))
            ++sign;
        if (std::size_t end = digitsFrom(sign); end > sign)
            length = end;
    }
    return fromText(text.substr(0, length));
}

KTDecimal KTDecimal::rounded(int fractionalDigits, Rounding rounding) const {
    int excess = -exponent - fractionalDigits;
    if (isNotANumber || excess <= 0)
        return *this;
    if (excess > kDigits + 1)
        return rounding == Rounding::Down && negative ? Wide(Integer(1), -fractionalDigits, true).narrowed()
                                                      : KTDecimal();
    Wide wide(*this);
    return Wide(withoutLastDigits(wide.mantissa, excess, negative, rounding), -fractionalDigits, negative)
        .narrowed();
}

KTDecimal KTDecimal::operator-() const {
    KTDecimal result = *this;
    result.negative = !negative && !isZero() && !isNotANumber;
    return result;
}

KTDecimal KTDecimal::abs() const {
    return negative ? -*this : *this;
}

KTDecimal operator+(const KTDecimal& left, const KTDecimal& right) {
    if (left.isNaN() || right.isNaN())
        return KTDecimal::notANumber();
    if (left.isZero() || right.isZero())
        return left.isZero() ? right : left;
    KTDecimal::Wide a(left), b(right);
    if (std::abs(a.exponent - b.exponent) > 2 * kDigits + 2) // the smaller one is beyond the last digit
        return a.exponent > b.exponent ? left : right;
    int tens = std::min(a.exponent, b.exponent);
    a.bringToExponent(tens);
    b.bringToExponent(tens);
    if (a.negative == b.negative)
        return KTDecimal::Wide(a.mantissa + b.mantissa, tens, a.negative).narrowed();
    if (a.mantissa >= b.mantissa)
        return KTDecimal::Wide(a.mantissa - b.mantissa, tens, a.negative).narrowed();
    return KTDecimal::Wide(b.mantissa - a.mantissa, tens, b.negative).narrowed();
}

KTDecimal operator-(const KTDecimal& left, const KTDecimal& right) {
    return left + -right;
}

KTDecimal operator*(const KTDecimal& left, const KTDecimal& right) {
    if (left.isNaN() || right.isNaN())
        return KTDecimal::notANumber();
    KTDecimal::Wide a(left), b(right);
    return KTDecimal::Wide(a.mantissa * b.mantissa, a.exponent + b.exponent, a.negative != b.negative)
        .narrowed();
}

KTDecimal operator/(const KTDecimal& left, const KTDecimal& right) {
    if (left.isNaN() || right.isNaN() || right.isZero())
        return KTDecimal::notANumber();
    KTDecimal::Wide a(left), b(right);
    constexpr int extra = 2 * kDigits + 2;
    a.bringToExponent(a.exponent - extra);
    return KTDecimal::Wide(a.mantissa / b.mantissa, a.exponent - b.exponent, a.negative != b.negative)
        .narrowed();
}

int KTDecimal::compare(const KTDecimal& other) const {
    if (*this == other)
        return 0;
    if (isNotANumber || other.isNotANumber)
        return isNotANumber ? -1 : 1;
    KTDecimal difference = *this - other;
    return difference.negative ? -1 : 1;
}

double KTDecimal::toDouble() const {
    if (isNotANumber)
        return std::nan("");
    std::string text = std::to_string(low);
    if (high != 0)
        text = Wide(*this).mantissa.str();
    text += 'e' + std::to_string(exponent);
    double result = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), result).ec == std::errc::result_out_of_range)
        result = exponent > 0 ? HUGE_VAL : 0;
    return negative ? -result : result;
}

std::int64_t KTDecimal::toInteger() const {
    if (isNotANumber)
        return 0;
    Wide wide(*this);
    if (wide.exponent < -kDigits)
        return 0;
    if (wide.exponent < 0)
        wide.mantissa /= powerOfTen(-wide.exponent);
    else if (wide.exponent > 20)
        return negative ? INT64_MIN : INT64_MAX;
    else
        wide.mantissa *= powerOfTen(wide.exponent);
    if (wide.mantissa > Integer(INT64_MAX))
        return negative ? INT64_MIN : INT64_MAX;
    auto value = static_cast<std::int64_t>(wide.mantissa);
    return negative ? -value : value;
}

std::string KTDecimal::toText() const {
    if (isNotANumber)
        return "NaN";
    std::string digits = high == 0 ? std::to_string(low) : Wide(*this).mantissa.str();
    if (exponent >= 0) {
        digits.append(static_cast<std::size_t>(exponent), '0');
    } else {
        auto fraction = static_cast<std::size_t>(-exponent);
        if (digits.size() <= fraction)
            digits.insert(0, fraction + 1 - digits.size(), '0');
        digits.insert(digits.size() - fraction, 1, '.');
    }
    return negative ? "-" + digits : digits;
}
