#include "datetools/KTShiftedDate.h"

#include "platform/common/KTDateArithmetic.h"

namespace {

/// The seconds of the finest part that is set; 0 where these differ.
std::int64_t finestUnit(const KTDateComponents& date) {
    const auto [year, month, day, hour, minute, second] = date.unitFlags();
    if (!year || !month || !day)
        return 0;
    if (!hour)
        return 86400;
    return !minute ? 3600 : !second ? 60 : 1;
}

} // namespace

std::optional<KTDateComponents> KTShiftedDate(const KTDateComponents& saved, std::int64_t seconds,
                                              const KTTimeZone& zone) {
    const std::int64_t unit = finestUnit(saved);
    const bool isWhole = seconds == 0 || (unit != 0 && seconds % unit == 0);
    if (!isWhole || seconds >= kKTLargestDateShift || seconds <= -kKTLargestDateShift)
        return std::nullopt;
    auto moved = KTDateByAddingSeconds(saved, static_cast<double>(seconds), KTCalendar(zone));
    if (moved && (moved->year < 1 || moved->year > 9999))
        return std::nullopt;
    return moved;
}
