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

void KTPhotoDateFamily::store(Reading reading) {
    queue.sync([&] { current = std::move(reading); });
}

void KTPhotoDateFamily::storeShift(double seconds) {
    queue.sync([&] { current.shift = seconds; });
}

void KTPhotoDateFamily::storeTimeZone(const KTTimeZone& zone) {
    queue.sync([&] {
        if (current.components)
            current.components->timeZone = zone;
    });
}

void KTPhotoDateFamily::storeShifted(const KTDateComponents& saved, double seconds) {
    queue.sync([&] {
        const auto& present = current.components;
        Reading shifted{std::nullopt, seconds};
        if (present && present->timeZone && present->calendar) {
            const KTCalendar calendar(*present->timeZone, *present->calendar);
            if (auto instant = calendar.dateFromComponents(saved)) {
                const auto shift =
                    std::chrono::round<std::chrono::milliseconds>(std::chrono::duration<double>(seconds));
                shifted.components = calendar.componentsFromDate(*instant + shift);
                keepUnits(*shifted.components, saved);
            }
        }
        current = std::move(shifted);
    });
}
