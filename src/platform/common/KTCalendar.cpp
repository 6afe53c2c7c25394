#include "platform/common/KTCalendar.h"

#include "platform/common/KTDateArithmetic.h"

std::optional<KTInstant> KTCalendar::dateFromComponents(const KTDateComponents& components) const {
    using namespace std::chrono;
    constexpr auto unset = KTDateComponents::kUndefined;
    if (components.year == unset || components.year < -9999 || components.year > 9999)
        return std::nullopt;
    auto orElse = [](std::int64_t part, std::int64_t value) { return part == unset ? value : part; };
    auto date = year(int(components.year)) / month(1) / day(1);
    date += months(orElse(components.month, 1) - 1);
    local_time<milliseconds> reading = local_days(date) + days(orElse(components.day, 1) - 1);
    reading += hours(orElse(components.hour, 0)) + minutes(orElse(components.minute, 0)) +
               seconds(orElse(components.second, 0));
    return timeZone.instantOfLocalTime(reading);
}

KTDateComponents KTCalendar::componentsFromDate(KTInstant instant) const {
    using namespace std::chrono;
    auto reading = instant + seconds(timeZone.secondsFromGMT(instant));
    auto midnight = floor<days>(reading);
    year_month_day date(midnight);
    hh_mm_ss time(floor<seconds>(reading) - midnight);
    KTDateComponents result;
    result.year = int(date.year());
    result.month = unsigned(date.month());
    result.day = unsigned(date.day());
    result.hour = time.hours().count();
    result.minute = time.minutes().count();
    result.second = time.seconds().count();
    result.calendar = identifier;
    result.timeZone = timeZone;
    return result;
}

/// A date that leaves a part open, be it the seconds, names no instant, and none is made up for it.
std::optional<KTInstant> KTInstantOfComponents(const KTDateComponents& components) {
    if (!KTIsCompleteDate(components) || !components.calendar || !components.timeZone)
        return std::nullopt;
    return KTCalendar(*components.timeZone, *components.calendar).dateFromComponents(components);
}
