#include "photo/KTPhoto.h"

#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTCallContext.h"
#include "platform/common/KTDateArithmetic.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTLog.h"
#include "platform/common/KTText.h"
#include "platform/common/KTTimeZoneManager.h"
#include "platform/undo/KTUndoManager.h"

#include <cmath>

namespace {

/// Beyond this many seconds no date with a year of four digits is left.
constexpr double kLargestShift = 4e11;

/// Whether the date becomes another one. A date that tells no more than the day does not move by an hour, and
/// a step of undo for that would seem to do nothing.
bool doesMove(const std::optional<KTDateComponents>& present, const KTDateComponents& saved, double seconds) {
    if (!present || !present->timeZone || !present->calendar)
        return false;
    const auto shifted =
        KTDateByAddingSeconds(saved, seconds, KTCalendar(*present->timeZone, *present->calendar));
    return !shifted || !shifted->hasSameReading(*present);
}

} // namespace

KTCalendar& KTPhoto::sharedCalendarWithIdentifier(KTCalendarIdentifier identifier) {
    static std::atomic<std::uint64_t> made = 0;
    static thread_local std::map<KTCalendarIdentifier, KTCalendar> calendars;
    auto entry = calendars.find(identifier);
    if (entry == calendars.end()) {
        entry = calendars.emplace(identifier, KTCalendar(KTTimeZone::utc(), identifier)).first;
        KTLog(KTStringWithFormat("Number of shared calendars created: %lu", {std::to_string(++made)}));
    }
    return entry->second;
}

std::optional<KTInstant> KTPhoto::instantOf(KTPhotoDateFamily::Which which) const {
    const auto instant = dates[which].instant();
    if (!instant && which == KTPhotoDateFamily::Digitized) {
        const auto date = dates[which].reading().components;
        if (date && (!date->calendar || !date->timeZone))
            KTLog("KTPhoto error! DateTimeDigitized calendar and/or time zone not set!");
    }
    return instant;
}

/// Announces @p keys, which begin with the components', around @p store. The guard keeps the observer's undo
/// of single properties away: a date comes with its shift, which only the registration here brings back.
void KTPhoto::changeDates(KTPhotoDateFamily::Which which, std::initializer_list<std::string_view> keys,
                          const std::function<KTPhotoDateFamily::Reading(KTPhotoDateFamily&)>& store) {
    const KTCallMark untracked(this);
    const EditUnderWay edit(*this, *keys.begin());
    for (std::string_view key : keys)
        willChange(key);
    const KTValue oldComponents = store(dates[which]).components;
    for (auto key = std::rbegin(keys); key != std::rend(keys); ++key)
        didChange(*key, KTChange::Kind::Setting, {}, *key == *keys.begin() ? oldComponents : KTValue());
}

void KTPhoto::registerDatesForUndo(KTPhotoDateFamily::Which which) {
    const auto undo = undoManager();
    if (!undo || doNotTrackChangesStack() > 0)
        return;
    invalidateLastRecordedUndoKey();
    undo->registerUndoWithTarget(this, KTLocalizedString(KTPhotoDateFamily::keysOf(which).actionName),
                                 [weak = weak_from_this(), which, before = readingOf(which)] {
                                     if (auto photo = weak.lock())
                                         photo->setDateComponents(which, before.components, before.shift);
                                 });
}

void KTPhoto::setDateComponents(KTPhotoDateFamily::Which which, std::optional<KTDateComponents> components,
                                double shift) {
    if (components && !components->timeZone && !readingOf(which).components)
        components->timeZone = KTMetadataFieldManager::sharedMetadataFieldManager().assumedTimeZone();
    registerDatesForUndo(which);
    const KTPhotoDateFamily::Keys& keys = KTPhotoDateFamily::keysOf(which);
    changeDates(which, {keys.components, keys.timeZone, keys.shift, keys.instant}, [&](auto& family) {
        return family.store({std::move(components), shift});
    });
}

void KTPhoto::setDate(KTPhotoDateFamily::Which which, const std::optional<KTInstant>& instant) {
    if (!instant)
        return setDateComponents(which, std::nullopt);
    KTCalendar& calendar = sharedCalendarWithIdentifier(KTCalendarIdentifier::Gregorian);
    calendar.setTimeZone(KTTimeZoneManager::sharedTimeZoneManager().timeZone());
    setDateComponents(which, calendar.componentsFromDate(*instant));
}

void KTPhoto::setDateShift(KTPhotoDateFamily::Which which, std::optional<double> seconds) {
    const KTPhotoDateFamily::Keys& keys = KTPhotoDateFamily::keysOf(which);
    const KTValue savedValue = savedPropertyWithKey(keys.components);
    const KTDateComponents* saved = savedValue.components();
    if (!seconds || !(std::abs(*seconds) < kLargestShift) || saved == nullptr)
        return;
    if (doesMove(readingOf(which).components, *saved, *seconds))
        registerDatesForUndo(which);
    changeDates(which, {keys.components, keys.shift, keys.instant},
                [&](auto& family) { return family.storeShifted(*saved, *seconds); });
}

void KTPhoto::setDateTimeZone(KTPhotoDateFamily::Which which, const KTTimeZone& zone) {
    const KTPhotoDateFamily::Keys& keys = KTPhotoDateFamily::keysOf(which);
    if (readingOf(which).components)
        changeDates(which, {keys.components, keys.timeZone, keys.instant},
                    [&](auto& family) { return family.storeTimeZone(zone); });
}
