#include "photo/KTPhotoDateFamily.h"

#include "platform/common/KTDateArithmetic.h"

namespace {

constexpr KTPhotoDateFamily::Keys kKeys[] = {
    {"dateTimeOriginalComponents", "dateTimeOriginalTimeZone", "dateTimeOriginalShift", "dateTimeOriginal",
     "Original Date Change", "com.Brightfold.DateTimeOriginalSynchronizationQueue"},
    {"dateTimeDigitizedComponents", "dateTimeDigitizedTimeZone", "dateTimeDigitizedShift",
     "dateTimeDigitized", "Digitized Date Change", "com.Brightfold.DateTimeDigitizedSynchronizationQueue"},
};

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
            current = {KTDateByAddingSeconds(saved, seconds, calendar), seconds};
        }
        return before;
    });
}
