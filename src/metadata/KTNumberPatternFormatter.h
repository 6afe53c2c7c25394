#pragma once
#include "metadata/KTFormatter.h"

/// Formats numbers by a pattern: "#" an optional digit, "0" a required one, "," grouping by thousands, "."
/// the decimal point; what stands before and after these is copied ("#0.0 mm"). Digits beyond the pattern's
/// are rounded, halves away from zero. Separators and digits are those of the user's locale.
class KTNumberPatternFormatter : public KTFormatter {
public:
    explicit KTNumberPatternFormatter(std::string_view pattern);
    std::string stringForObjectValue(const KTValue& value) const override;
    std::string stringForNumber(const KTDecimal& number) const;

private:
    std::string prefix, suffix;
    std::size_t requiredWhole = 0, requiredFraction = 0, optionalFraction = 0;
    bool grouped = false;
};
