#pragma once
#include "platform/common/KTDecimal.h"

#include <cmath>
#include <limits>
#include <memory>

/// A decimal number on its way from a track file into the store, or none. Numbers of up to 15 digits are held
/// as the nearest double, which gives exactly those digits back; longer ones keep their digits as text beside
/// it.
class TrackNumber {
public:
    TrackNumber() = default; ///< none
    /// The whole of @p text as a number, white space around it allowed; nothing for any other text,
    /// infinities and "NaN" among it.
    static std::optional<TrackNumber> fromText(std::string_view text);

    bool isAbsent() const { return std::isnan(value); }
    /// The nearest double; NaN when absent.
    double toDouble() const { return value; }
    /// All digits, where the double does not hold them; else nullptr.
    const std::string* longDigits() const { return digits.get(); }
    std::optional<KTDecimal> toDecimal() const;

private:
    double value = std::numeric_limits<double>::quiet_NaN();
    std::unique_ptr<const std::string> digits;
};
