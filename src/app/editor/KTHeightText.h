#pragma once
#include "platform/common/KTDecimal.h"

#include <optional>

/// A height above sea level for editing, in the user's unit: "434.5 m", "1425.525 ft"; to the millimetre.
std::string KTHeightText(const KTDecimal& metres);
/// The metres that a text like "434.5 m", "434,5", "1426 ft" or "1426'" says; without unit it is the user's.
/// Nothing for any other text.
std::optional<KTDecimal> KTHeightFromText(std::string_view text);
