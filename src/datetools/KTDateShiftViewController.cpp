#include "datetools/KTDateShiftViewController.h"

#include "datetools/KTShiftedDate.h"
#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTTimeZoneManager.h"

#include <algorithm>
#include <cmath>

namespace {

struct UnitRow {
    const char* key;
    std::int64_t seconds;
    std::int64_t limit; ///< where the stepper goes round; 0 for nowhere
};
constexpr UnitRow kUnits[] = {
    {"days", 86400, 0}, {"hours", 3600, 24}, {"minutes", 60, 60}, {"seconds", 1, 60}};

} // namespace

KTDateShiftViewController::KTDateShiftViewController(KTPhotoManager& collection,
                                                     KTMetadataFieldManager& catalogue,
                                                     KTTimeZoneManager& displayZone)
    : KTDateTool(collection), metadataFieldManager(catalogue), timeZoneManager(displayZone) {}

void KTDateShiftViewController::setup() {
    zoneObservation = timeZoneManager.observe([this](const KTChange& change) {
        if (change.key == "timeZone" && !change.isPrior)
            handleNewTimeZone();
    });
    KTDateTool::setup();
    if (currentPhoto())
        setShift(std::llround(currentPhoto()->readingOf(Which::Original).shift));
}

void KTDateShiftViewController::tearDown() {
    zoneObservation.stop();
    KTDateTool::tearDown();
}

void KTDateShiftViewController::setCurrentImageIndex(std::optional<std::size_t> index) {
    for (const char* key : {"currentImageCorrectedDate", "currentImageSavedDate"})
        willChange(key);
    KTDateTool::setCurrentImageIndex(index);
    for (const char* key : {"currentImageSavedDate", "currentImageCorrectedDate"})
        didChange(key);
}

/// The saved dates of the photos are others now.
void KTDateShiftViewController::photosWereSaved() {
    setCurrentImageIndex(currentImageIndex());
}

void KTDateShiftViewController::handleNewTimeZone() {
    willChange("displayTimeZone");
    didChange("displayTimeZone");
    setCurrentImageIndex(currentImageIndex());
}

KTTimeZone KTDateShiftViewController::displayTimeZone() const {
    return timeZoneManager.timeZone();
}

void KTDateShiftViewController::setIsNegative(bool goesBack) {
    willChange("currentImageCorrectedDate");
    set("isNegative", negative, goesBack);
    didChange("currentImageCorrectedDate");
}

void KTDateShiftViewController::setMagnitude(Unit unit, std::optional<std::int64_t> value) {
    willChange("currentImageCorrectedDate");
    set(kUnits[unit].key, magnitudes[unit], value.value_or(0));
    didChange("currentImageCorrectedDate");
}

std::int64_t KTDateShiftViewController::shiftInSeconds() const {
    long double sum = 0; // any numbers may have been typed
    for (std::size_t unit = 0; unit < magnitudes.size(); ++unit)
        sum += static_cast<long double>(magnitudes[unit]) * kUnits[unit].seconds;
    const long double limit = kKTLargestDateShift;
    return std::int64_t(std::clamp(negative ? -sum : sum, -limit, limit));
}

/// All five announced together.
void KTDateShiftViewController::setShift(std::int64_t shift) {
    static constexpr const char* kKeys[] = {"days",    "hours",      "minutes",
                                            "seconds", "isNegative", "currentImageCorrectedDate"};
    for (const char* key : kKeys)
        willChange(key);
    negative = shift < 0;
    std::int64_t rest = negative ? -shift : shift;
    for (std::size_t unit = 0; unit < magnitudes.size(); ++unit) {
        magnitudes[unit] = rest / kUnits[unit].seconds;
        rest %= kUnits[unit].seconds;
    }
    for (const char* key : kKeys)
        didChange(key);
    announcePreviews();
}

void KTDateShiftViewController::setStepperValue(std::int64_t value) {
    if (value == stepper)
        return;
    const bool isUp = value > stepper;
    const Unit unit = editedUnit.value_or(Days);
    const std::int64_t present = magnitudes[unit], limit = kUnits[unit].limit;
    if (limit != 0)
        setMagnitude(unit, isUp ? (present + 1) % limit : present == 0 ? limit - 1 : present - 1);
    else
        setMagnitude(unit, std::max<std::int64_t>(isUp ? present + 1 : present - 1, 0));
    willChange("stepperValue");
    stepper = value;
    didChange("stepperValue");
}

std::optional<KTDateComponents> KTDateShiftViewController::savedDate(const KTPhoto& photo,
                                                                     Which which) const {
    const KTValue saved = photo.savedPropertyWithKey(KTPhotoDateFamily::keysOf(which).components);
    return saved.components() ? std::optional(*saved.components()) : std::nullopt;
}

std::optional<KTInstant> KTDateShiftViewController::currentImageSavedDate() const {
    auto saved = currentPhoto() ? savedDate(*currentPhoto(), Which::Original) : std::nullopt;
    if (!saved)
        return std::nullopt;
    saved->calendar = KTCalendarIdentifier::Gregorian;
    saved->timeZone = metadataFieldManager.assumedTimeZone();
    return KTInstantOfComponents(*saved);
}

std::optional<KTInstant> KTDateShiftViewController::currentImageCorrectedDate() const {
    const auto saved = currentImageSavedDate();
    return saved ? std::optional(*saved + std::chrono::seconds(shiftInSeconds())) : std::nullopt;
}

void KTDateShiftViewController::setCurrentImageCorrectedDate(KTInstant date) {
    if (const auto saved = currentImageSavedDate())
        setShift(std::chrono::duration_cast<std::chrono::seconds>(date - *saved).count());
}

std::vector<KTDateShiftViewController::Which> KTDateShiftViewController::datesToShift() const {
    if (isForDigitized)
        return {Which::Digitized, Which::Original};
    return {Which::Original};
}

/// The zone is that of the photo's present date: a photo whose date was cleared keeps none.
std::optional<KTDateComponents> KTDateShiftViewController::shifted(const KTPhoto& photo, Which which) const {
    const auto saved = savedDate(photo, which);
    const auto present = photo.readingOf(which).components;
    if (!saved || !present || !present->timeZone)
        return std::nullopt;
    return KTShiftedDate(*saved, shiftInSeconds(), *present->timeZone);
}

KTDateTool::Snapshot KTDateShiftViewController::photosConcerned() const {
    return isForAll ? photoManager().arrangedPhotos() : selectedPhotos();
}

std::vector<KTDateChange> KTDateShiftViewController::changesOf(const KTPhoto& photo) const {
    std::vector<KTDateChange> changes;
    for (const Which which : datesToShift())
        if (const auto date = shifted(photo, which))
            changes.insert(changes.begin(), {std::string(KTPhotoDateFamily::keysOf(which).components),
                                             savedDate(photo, which), *date});
    return changes;
}

void KTDateShiftViewController::shiftDateTimeOriginalApply() {
    const auto shift = static_cast<double>(shiftInSeconds());
    editPhotos(KTLocalizedString(KTPhotoDateFamily::keysOf(Which::Original).actionName), [&](KTPhoto& photo) {
        for (const Which which : datesToShift())
            if (shifted(photo, which))
                photo.setDateShift(which, shift);
    });
}

void KTDateShiftViewController::shiftDateTimeOriginalRevert() {
    setShift(0);
    shiftDateTimeOriginalApply();
}
