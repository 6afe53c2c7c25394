#pragma once
#include "platform/common/KTInstant.h"

#include <string_view>

/// The instant that an ISO 8601 text names: date, T (or a blank), hours, minutes and seconds
/// ("2014-06-01T12:00:00"), optional fractional seconds, cut after the millisecond, and a zone ("Z",
/// "+02:00", "+0200", "+02"); without a zone the text is in UTC. A date alone is its midnight. Second 60 and
/// the hour 24:00:00 count on into the next minute and day. White space around it is allowed; nothing for any
/// other text.
std::optional<KTInstant> GPXInstantFromText(std::string_view text);
