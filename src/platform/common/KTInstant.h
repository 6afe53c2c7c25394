#pragma once
#include <chrono>
#include <optional>
#include <string>

/// A moment in time, in whole milliseconds since 1970-01-01T00:00:00Z, leap seconds not counted.
using KTInstant = std::chrono::sys_time<std::chrono::milliseconds>;

/// @p milliseconds since 1970-01-01T00:00:00Z.
constexpr KTInstant KTInstantFromMilliseconds(std::int64_t milliseconds) {
    return KTInstant(std::chrono::milliseconds(milliseconds));
}

/// The current time, cut to the millisecond.
KTInstant KTInstantNow();

/// |@p left - @p right| in seconds.
double KTSecondsBetween(KTInstant left, KTInstant right);

/// ISO 8601 in UTC: "2014-06-01T10:00:00Z", with ".250" before the Z when the milliseconds are not 0.
std::string KTISO8601Text(KTInstant instant);
