#include "datetools/KTDateSetViewController.h"

#include "platform/common/KTCalendar.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTTimeZoneManager.h"

#include <algorithm>

namespace {

constexpr const char* kKey = "dateTimeOriginalComponents";

struct PrecisionRow {
    std::size_t taken; ///< parts of the date, from the year on
    std::size_t shown; ///< by the picker
};
constexpr PrecisionRow kPrecisions[] = {{6, 6}, {5, 5}, {3, 3}, {2, 2}, {1, 1}, {4, 4}};
constexpr PrecisionRow kOtherPrecision = {6, 1};

PrecisionRow rowOf(unsigned precision) {
    return precision < std::size(kPrecisions) ? kPrecisions[precision] : kOtherPrecision;
}

} // namespace

KTDateSetViewController::KTDateSetViewController(KTPhotoManager& collection, KTTimeZoneManager& displayZone)
    : KTDateTool(collection), timeZoneManager(displayZone) {}

void KTDateSetViewController::setup() {
    setSelectedPrecision(Second);
    zoneObservation = timeZoneManager.observe([this](const KTChange& change) {
        if (change.key != "timeZone" || change.isPrior)
            return;
        willChange("pickerTimeZone");
        didChange("pickerTimeZone");
        announcePreviews();
    });
    KTDateTool::setup();
}

void KTDateSetViewController::tearDown() {
    zoneObservation.stop();
    KTDateTool::tearDown();
}

KTTimeZone KTDateSetViewController::pickerTimeZone() const {
    return timeZoneManager.timeZone();
}

std::array<bool, 6> KTDateSetViewController::visibleElements() const {
    std::array<bool, 6> elements = {};
    std::fill_n(elements.begin(), rowOf(precision).shown, true);
    return elements;
}

void KTDateSetViewController::selectionDidChange() {
    const Snapshot selected = selectedPhotos();
    const bool isNowThere = std::ranges::any_of(*selected, [](const Photo& photo) {
        return photo->readingOf(KTPhotoDateFamily::Original).components.has_value();
    });
    if (isNowThere != isDateThere)
        set("hasDateTimeOriginalTag", isDateThere, isNowThere);
}

KTDateComponents KTDateSetViewController::chosenComponents() const {
    KTDateComponents components = KTCalendar(pickerTimeZone()).componentsFromDate(date);
    using Part = std::int64_t KTDateComponents::*;
    static constexpr Part kParts[] = {&KTDateComponents::year,   &KTDateComponents::month,
                                      &KTDateComponents::day,    &KTDateComponents::hour,
                                      &KTDateComponents::minute, &KTDateComponents::second};
    for (std::size_t part = rowOf(precision).taken; part < std::size(kParts); ++part)
        components.*kParts[part] = KTDateComponents::kUndefined;
    return components;
}

KTDateComponents KTDateSetViewController::componentsFor(const KTPhoto& photo) const {
    KTDateComponents components = chosenComponents();
    const auto present = photo.readingOf(KTPhotoDateFamily::Original).components;
    components.timeZone = present ? present->timeZone : std::nullopt;
    return components;
}

std::vector<KTDateChange> KTDateSetViewController::changesOf(const KTPhoto& photo) const {
    return {{kKey, photo.valueForKey(kKey), componentsFor(photo)}};
}

void KTDateSetViewController::setDateTimeOriginalApply() {
    editPhotos(KTLocalizedString(KTPhotoDateFamily::keysOf(KTPhotoDateFamily::Original).actionName),
               [this](KTPhoto& photo) { photo.setDateTimeOriginalComponents(componentsFor(photo)); });
    selectionDidChange();
}
