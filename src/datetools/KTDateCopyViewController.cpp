#include "datetools/KTDateCopyViewController.h"

#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTCalendar.h"
#include "platform/common/KTLocalizedString.h"

namespace {

struct DateRow {
    const char *key, *instantKey; ///< of the photo
    const char* flag;             ///< the controller's property
    const char* actionName;       ///< of a copy from it, English
};
constexpr DateRow kDates[] = {
    {"dateTimeOriginalComponents", "dateTimeOriginal", "shouldCopyToOriginalDate", "Copy Date Time Original"},
    {"dateTimeDigitizedComponents", "dateTimeDigitized", "shouldCopyToDigitizationDate",
     "Copy Date Time Digitized"},
    {"creationDate", "creationDate", "shouldCopyToCreationDate", "Copy Date Time Created"},
};

} // namespace

KTDateCopyViewController::KTDateCopyViewController(KTPhotoManager& collection,
                                                   KTMetadataFieldManager& catalogue)
    : KTDateTool(collection), metadataFieldManager(catalogue) {}

void KTDateCopyViewController::setSelectedCopyFromDate(unsigned date) {
    if (date <= Creation)
        set("selectedCopyFromDate", source, date);
}

void KTDateCopyViewController::setShouldCopyTo(Date date, bool isTarget) {
    set(kDates[date].flag, targets[date], isTarget);
}

/// The creation date of a file is an instant; a camera's clock has shown it in the assumed zone.
KTValue KTDateCopyViewController::sourceValue(const KTPhoto& photo, Date forTarget) const {
    if (forTarget == Creation)
        return photo.valueForKey(kDates[source].instantKey);
    const KTValue value = photo.valueForKey(kDates[source].key);
    if (!value.date())
        return value;
    return KTCalendar(metadataFieldManager.assumedTimeZone()).componentsFromDate(*value.date());
}

std::vector<KTDateChange> KTDateCopyViewController::changesOf(const KTPhoto& photo) const {
    std::vector<KTDateChange> changes;
    for (const Date target : {Original, Digitized, Creation}) {
        if (!targets[target] || target == source)
            continue;
        KTValue value = sourceValue(photo, target);
        const char* key = kDates[target].key;
        if (value.isSomething())
            changes.push_back({key, photo.valueForKey(key), std::move(value)});
    }
    return changes;
}

void KTDateCopyViewController::copyDateTimeApply() {
    editPhotos(KTLocalizedString(kDates[source].actionName), [this](KTPhoto& photo) {
        for (const KTDateChange& change : changesOf(photo))
            photo.setValueForKey(change.key, change.newDate);
    });
}
