#include "photo/KTPhotoDateFamily.h"

namespace {

constexpr KTPhotoDateFamily::Keys kKeys[] = {
    {"dateTimeOriginalComponents", "dateTimeOriginalTimeZone", "dateTimeOriginalShift", "dateTimeOriginal",
     "Original Date Change", "com.Brightfold.DateTimeOriginalSynchronizationQueue"},
    {"dateTimeDigitizedComponents", "dateTimeDigitizedTimeZone", "dateTimeDigitizedShift",
     "dateTimeDigitized", "Digitized Date Change", "com.Brightfold.DateTimeDigitizedSynchronizationQueue"},
};

/// @p complete with only those units that @p pattern has.
void keepUnits(KTDateComponents& complete, const KTDateComponents& pattern) {
    using Unit = std::int64_t KTDateComponents::*;
    for (Unit unit : {&KTDateComponents::year, &KTDateComponents::month, &KTDateComponents::day,
                      &KTDateComponents::hour, &KTDateComponents::minute, &KTDateComponents::second})
        if (pattern.*unit == KTDateComponents::kUndefined)
            complete.*unit = KTDateComponents::kUndefined;
}

} // namespace

const KTPhotoDateFamily::Keys& KTPhotoDateFamily::keysOf(Which which) {
    return kKeys[which];
}

KTPhotoDateFamily::Reading KTPhotoDateFamily::reading() const {
    return queue.sync([this] { return current; });
}

std::optional<KTInstant> KTPhotoDateFamily::instant() const {
    return queue.sync(
        [this] { return current.components ? KTInstantOfComponents(*current.components) : std::nullopt; });
}

KTPhotoDateFamily::Reading KTPhotoDateFamily::store(Reading reading) {
    return queue.sync([&] { return std::exchange(current, std::move(reading)); });
}

KTPhotoDateFamily::Reading KTPhotoDateFamily::storeShift(double seconds) {
    return queue.sync([&] {
        Reading before = current;
        current.shift = seconds;
        return before;
    });
}

void KTPhotoDateFamily::restoreShift(const Reading& before) {
    queue.sync([&] {
        if (current.components == before.components)
            current.shift = before.shift;
    });
}

KTPhotoDateFamily::Reading KTPhotoDateFamily::storeTimeZone(const KTTimeZone& zone) {
    return queue.sync([&] {
        Reading before = current;
        if (current.components)
            current.components->timeZone = zone;
        return before;
    });
}

KTPhotoDateFamily::Reading KTPhotoDateFamily::storeShifted(const KTDateComponents& saved, double seconds) {
    return queue.sync([&] {
        const Reading before = current;
        const auto& present = before.components;
        if (!present) {
            current.shift = seconds;
        } else if (present->timeZone && present->calendar) {
            const KTCalendar calendar(*present->timeZone, *present->calendar);
            current = {std::nullopt, seconds};
            if (auto instant = calendar.dateFromComponents(saved)) {
                const auto shift =
                    std::chrono::round<std::chrono::milliseconds>(std::chrono::duration<double>(seconds));
                current.components = calendar.componentsFromDate(*instant + shift);
                keepUnits(*current.components, saved);
            }
        }
        return before;
    });
}
