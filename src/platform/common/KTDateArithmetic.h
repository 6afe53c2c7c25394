#pragma once
#include "platform/common/KTCalendar.h"

/// Whether every part from year to second is set.
bool KTIsCompleteDate(const KTDateComponents& components);
/// @p components moved by @p seconds on the clock of @p calendar, in the units that they have, counted from
/// the beginning of what they name; with the calendar and its zone set. Nothing without a year.
std::optional<KTDateComponents> KTDateByAddingSeconds(const KTDateComponents& components, double seconds,
                                                      const KTCalendar& calendar);
