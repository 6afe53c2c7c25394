#pragma once
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// A decimal number: a mantissa of up to 38 digits times a power of ten, or not-a-number. A value type, safe
/// on every thread; no operation throws. Results that need more than 38 digits are rounded half away from
/// zero; magnitudes beyond 10^400 become not-a-number, below 10^-400 zero. Trailing zeros are not kept, so
/// equal numbers have equal members.
class KTDecimal {
public:
    enum class Rounding {
        Plain, ///< to nearest, halves away from zero
        Down,  ///< towards minus infinity
    };

    constexpr KTDecimal() = default; ///< zero
    static KTDecimal fromInteger(std::int64_t value);
    static KTDecimal fromUnsigned(std::uint64_t value);
    /// The shortest decimal that reads back as the same double; infinities and NaN give not-a-number.
    static KTDecimal fromDouble(double value);
    /// The whole of @p text as a number ("-12.5", "+3", ".5", "1.2e-3"); nothing for any other text.
    static std::optional<KTDecimal> fromText(std::string_view text);
    /// The longest number that @p text begins with ("50 mm" gives 50); nothing when it begins with none.
    static std::optional<KTDecimal> fromPrefix(std::string_view text);
    static constexpr KTDecimal notANumber() {
        KTDecimal result;
        result.isNotANumber = true;
        return result;
    }

    bool isNaN() const { return isNotANumber; }
    bool isZero() const { return !isNotANumber && high == 0 && low == 0; }
    bool isNegative() const { return negative; }

    /// At most @p fractionalDigits digits after the point; negative counts round before the point.
    KTDecimal rounded(int fractionalDigits, Rounding rounding = Rounding::Plain) const;
    KTDecimal operator-() const;
    KTDecimal abs() const;
    friend KTDecimal operator+(const KTDecimal& left, const KTDecimal& right);
    friend KTDecimal operator-(const KTDecimal& left, const KTDecimal& right);
    friend KTDecimal operator*(const KTDecimal& left, const KTDecimal& right);
    /// 38 significant digits; not-a-number when @p right is zero.
    friend KTDecimal operator/(const KTDecimal& left, const KTDecimal& right);

    /// -1, 0 or 1; not-a-number equals itself and is less than every number, so the order is total.
    int compare(const KTDecimal& other) const;
    bool operator==(const KTDecimal& other) const = default;
    bool operator<(const KTDecimal& other) const { return compare(other) < 0; }
    bool operator>(const KTDecimal& other) const { return compare(other) > 0; }
    bool operator<=(const KTDecimal& other) const { return compare(other) <= 0; }
    bool operator>=(const KTDecimal& other) const { return compare(other) >= 0; }

    double toDouble() const; ///< the nearest double
    /// The number cut off at the point; 0 for not-a-number, the nearest limit when it does not fit.
    std::int64_t toInteger() const;
    /// Plain text without exponent or superfluous zeros ("-0.00000001", "1200"); "NaN" for not-a-number.
    std::string toText() const;

private:
    struct Wide; // wide arithmetic, in the source file

    std::uint64_t high = 0; // the mantissa's upper and lower 64 bits, at most 10^38 - 1
    std::uint64_t low = 0;
    std::int16_t exponent = 0;
    bool negative = false;
    bool isNotANumber = false;
};
