#include "platform/common/KTDateArithmetic.h"

bool KTIsCompleteDate(const KTDateComponents& components) {
    const auto flags = components.unitFlags();
    return std::ranges::all_of(flags, std::identity());
}

std::optional<KTDateComponents> KTDateByAddingSeconds(const KTDateComponents& components, double seconds,
                                                      const KTCalendar& calendar) {
    const auto instant = calendar.dateFromComponents(components);
    if (!instant)
        return std::nullopt;
    const auto distance =
        std::chrono::round<std::chrono::milliseconds>(std::chrono::duration<double>(seconds));
    KTDateComponents moved = calendar.componentsFromDate(*instant + distance);
    using Unit = std::int64_t KTDateComponents::*;
    for (Unit unit : {&KTDateComponents::month, &KTDateComponents::day, &KTDateComponents::hour,
                      &KTDateComponents::minute, &KTDateComponents::second})
        if (components.*unit == KTDateComponents::kUndefined)
            moved.*unit = KTDateComponents::kUndefined;
    return moved;
}
