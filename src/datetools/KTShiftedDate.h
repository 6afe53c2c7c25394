#pragma once
#include "platform/common/KTCalendar.h"

/// A shift of this many seconds takes any date out of the years that a date can tell.
inline constexpr std::int64_t kKTLargestDateShift = 400'000'000'000;

/// The @p saved date moved by @p seconds in @p zone, in the units that it has; nothing where it cannot be
/// moved.
///
/// A date that leaves parts open can be moved only by whole units of its finest part: a date alone by days,
/// one to the minute by minutes. By anything else it would have to be taken for the instant at its beginning,
/// which nobody has said; and months and years are not all equally long, so that a date of these alone cannot
/// be moved. Every date can be moved by 0. The result has a year from 1 to 9999.
std::optional<KTDateComponents> KTShiftedDate(const KTDateComponents& saved, std::int64_t seconds,
                                              const KTTimeZone& zone);
