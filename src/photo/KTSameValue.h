#pragma once
#include "platform/common/KTValue.h"

/// Whether two values of one property say the same: nothing, the null marker and an empty list are one;
/// decimals less than 0.00000001 apart, instants of one second, and dates of one reading count as equal, as
/// files keep no more of them.
bool KTIsSameValue(const KTValue& left, const KTValue& right);
