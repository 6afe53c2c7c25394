#include "photo/KTPhoto.h"

#include "metadata/KTMetadataFieldManager.h"
#include "photo/KTNewSidecar.h"
#include "photo/KTPhotoPropertyTable.h"
#include "photo/KTSameValue.h"
#include "platform/cartography/KTGeometry.h"
#include "platform/common/KTCallContext.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/undo/KTUndoManager.h"

namespace {

/// The file's own dates, which a save sets.
bool isFileDate(std::string_view key) {
    return key == "creationDate" || key == "metadataDate" || key == "modifyDate";
}

bool isSameReading(const KTValue& left, const KTValue& right) {
    return left.components() && right.components() && left.components()->hasSameReading(*right.components());
}

} // namespace

KTValue KTPhoto::savedPropertyWithKey(std::string_view key) const {
    const KTMetadataField* field =
        KTMetadataFieldManager::sharedMetadataFieldManager().metadataFieldForKey(key);
    if (field == nullptr)
        return {};
    const KTSaveTargets where = targets();
    std::lock_guard guard(mutex);
    return valueAsRead(*field, sources, where);
}

KTValue::Dictionary KTPhoto::modifiedKeyValues() const {
    KTValue::Dictionary result;
    for (const auto& field : KTMetadataFieldManager::sharedMetadataFieldManager().metadataFields()) {
        if (field->readonly() || isFileDate(field->key()))
            continue;
        const KTValue value = valueForKey(field->key());
        if (!KTIsSameValue(value, savedPropertyWithKey(field->key())))
            result.emplace(field->key(), value.isSomething() ? value : KTValue::null());
    }
    return result;
}

void KTPhoto::recordEdit(std::string_view key, const KTValue& oldValue) {
    const KTPhotoProperty* property = KTPhotoPropertyTable::propertyForKey(key);
    if (property == nullptr || property->field == nullptr || property->field->readonly())
        return;
    const KTMetadataField& field = *property->field;
    if (KTCallMark::count(&sources) > 0 && key == followedKey) { // the photo follows its file
        if (property->isCoordinate)
            KTPerformOnMainThreadAndWait([this] { updateGeotagState(); });
        return;
    }
    if (isSameReading(oldValue, valueForKey(key))) // a change of zone alone touches no tag
        return;
    KTPerformOnMainThreadAndWait([&] {
        if (KTCallMark::count(&values) == 0)
            sidecarOfGroup = hasXMPSidecar();
        const KTCallMark isSidecarKnown(&sidecarOfGroup); // asked for once an edit
        // The value of now, not that of the announcement: of two edits at once the later record must win.
        changeRecords([&] { recordField(field, valueForKey(key), false); });
        checkForUnsavedChanges();
        if (property->isCoordinate)
            updateGeotagState();
    });
    if (doNotTrackChangesStack() == 0)
        registerEditForUndo(field, oldValue);
}

/// Announces the three dictionaries of changes around @p change. On the main thread.
void KTPhoto::changeRecords(const std::function<void()>& change) {
    for (const KTMetadataSource& source : sources)
        willChange(source.changesKey());
    change();
    for (auto source = sources.rbegin(); source != sources.rend(); ++source)
        didChange(source->changesKey());
}

/// Enters a value into the three dictionaries of changes. One that is back to what the sources hold withdraws
/// what the field has entered, unless @p evenAsSaved asks for every difference between the sources.
void KTPhoto::recordField(const KTMetadataField& field, const KTValue& value, bool evenAsSaved) {
    const KTSaveTargets where = targets();
    {
        std::lock_guard guard(mutex);
        const auto entry = recordedEdits.find(&field);
        if (entry != recordedEdits.end() && !isPendingInTargets(field, where))
            entry->second.revisions = revisions(); // what else is pending is of former edits
    }
    const bool withdraws = !evenAsSaved && isAsSaved(field, value, where);
    std::lock_guard guard(mutex);
    for (KTMetadataSource& source : sources) {
        recordInto(source, field, value);
        if (withdraws)
            for (const KTTagKey& key : recordedEdits[&field].keys)
                source.changes.remove(key);
    }
}

/// Enters a value into the changes of @p source and remembers which keys are the field's; the mutex must be
/// held.
void KTPhoto::recordInto(KTMetadataSource& source, const KTMetadataField& field, const KTValue& value) {
    const KTTagDictionary before = source.changes;
    source.record(field, value, source.changes);
    if (source.kind == KTMetadataSource::Sidecar && !source.stamp && KTIsSameValue(value, {}))
        recordClearedInNewSidecar(field, sources[KTMetadataSource::Image], source);
    auto [entry, isFirst] = recordedEdits.try_emplace(&field);
    if (isFirst)
        entry->second.revisions = revisions();
    std::vector<KTTagKey>& keys = entry->second.keys;
    for (const auto& [key, change] : source.changes)
        if (!before.find(key) && std::ranges::find(keys, key) == keys.end())
            keys.push_back(key);
}

KTPhoto::Revisions KTPhoto::revisions() const {
    Revisions result;
    for (const KTMetadataSource& source : sources)
        result[source.kind] = source.revision;
    return result;
}

/// Whether @p value is the one that was read, and every source that a save would write to holds it: where an
/// image and its sidecar differ, the value of one of them is an edit for the other. Undoing an edit since
/// which no file was read or written goes back to where the photo was, and asks for the first alone.
bool KTPhoto::isAsSaved(const KTMetadataField& field, const KTValue& value,
                        const KTSaveTargets& where) const {
    const auto undo = undoManager();
    std::lock_guard guard(mutex);
    if (!KTIsSameValue(value, valueAsRead(field, sources, where)))
        return false;
    const auto edits = recordedEdits.find(&field);
    const bool isSinceLastWrite = edits != recordedEdits.end() && edits->second.revisions == revisions();
    if (undo && undo->isUndoingOrRedoing() && isSinceLastWrite)
        return true;
    auto holds = [&](KTMetadataSource::Kind kind) {
        return KTIsSameValue(sources[kind].valueForField(field), value);
    };
    if (shouldUseIPhotoProperties() && field.iPhotoSupported() && !holds(KTMetadataSource::Library))
        return false;
    if (where.xmpSidecar && where.hasSidecar && !holds(KTMetadataSource::Sidecar))
        return false;
    const bool imageCounts = where.imageFile || !where.hasSidecar;
    return !imageCounts || holds(KTMetadataSource::Image);
}

/// Whether something of @p field is to be written where a save writes to; the mutex must be held.
bool KTPhoto::isPendingInTargets(const KTMetadataField& field, const KTSaveTargets& where) const {
    const bool counts[] = {where.imageFile, where.xmpSidecar, shouldUseIPhotoProperties()};
    return std::ranges::any_of(sources, [&](const KTMetadataSource& source) {
        return counts[source.kind] && hasPendingKeys(field, source.changes);
    });
}

bool KTPhoto::hasPendingKeys(const KTMetadataField& field, const KTTagDictionary& changes) const {
    const auto entry = recordedEdits.find(&field);
    return entry != recordedEdits.end() && std::ranges::any_of(entry->second.keys, [&](const KTTagKey& key) {
               return changes.find(key) != nullptr;
           });
}

/// What follows from an edit of a coordinate. On the main thread.
void KTPhoto::updateGeotagState() {
    setGeodesicToLocationShown(nullptr);
    for (const char* key : {"isGeotagged", "hasLatitudeLongitudeCreated", "hasLatitudeLongitudeShown"}) {
        willChange(key);
        didChange(key);
    }
    setGeometry(nullptr); // made anew when next asked for
}

void KTPhoto::synchronizeMetadataSources() {
    auto synchronize = [this] {
        const auto undo = undoManager();
        if (undo)
            undo->beginUndoGrouping(KTLocalizedString("Synchronize Metadata"));
        for (const auto& field : KTMetadataFieldManager::sharedMetadataFieldManager().metadataFields()) {
            if (field->readonly() || isFileDate(field->key()))
                continue;
            KTPerformOnMainThreadAndWait(
                [&] { changeRecords([&] { recordField(*field, valueForKey(field->key()), true); }); });
        }
        if (undo)
            undo->endUndoGrouping();
    };
    if (const auto serial = undoQueue())
        serial->sync(synchronize);
    else
        synchronize();
    checkForUnsavedChanges();
}

bool KTPhoto::isUnsaved(KTMetadataSource::Kind kind, const KTSaveTargets& where) const {
    const bool hasChanges = !sources[kind].changes.empty();
    switch (kind) {
    case KTMetadataSource::Image: {
        const KTInstant* date = values[KTPhotoPropertyTable::propertyForKey("creationDate")->place].date();
        const bool isOtherDate = date != nullptr && !KTIsSameValue(*date, knownCreationDate);
        return where.imageFile && (hasChanges || isOtherDate);
    }
    case KTMetadataSource::Sidecar:
        return where.xmpSidecar && hasChanges;
    default:
        return shouldUseIPhotoProperties() && hasChanges;
    }
}

bool KTPhoto::unsavedFile() const {
    const KTSaveTargets where = targets();
    std::lock_guard guard(mutex);
    return isUnsaved(KTMetadataSource::Image, where);
}

bool KTPhoto::unsavedSidecar() const {
    const KTSaveTargets where = targets();
    std::lock_guard guard(mutex);
    return isUnsaved(KTMetadataSource::Sidecar, where);
}

bool KTPhoto::unsavedIPhoto() const {
    std::lock_guard guard(mutex);
    return isUnsaved(KTMetadataSource::Library, {});
}

bool KTPhoto::hasUnsavedChanges() const {
    std::lock_guard guard(mutex);
    return unsaved;
}

bool KTPhoto::computeHasUnsavedChanges(const KTSaveTargets& where) const {
    std::lock_guard guard(mutex);
    return isUnsaved(KTMetadataSource::Image, where) || isUnsaved(KTMetadataSource::Sidecar, where) ||
           isUnsaved(KTMetadataSource::Library, where);
}

void KTPhoto::checkForUnsavedChanges() {
    if (KTCallMark::count(&values) > 0) { // a grouped edit, which checks at its end
        checkIsDue = true;
        return;
    }
    const KTSaveTargets where = targets();
    if (computeHasUnsavedChanges(where) != hasUnsavedChanges())
        // Asked again there: what is to be written changes on the main thread alone.
        KTPerformOnMainThreadAndWait([&] {
            const bool isUnsavedNow = computeHasUnsavedChanges(where);
            if (isUnsavedNow != hasUnsavedChanges())
                setMainThreadHasUnsavedChanges(isUnsavedNow);
        });
}

void KTPhoto::setMainThreadHasUnsavedChanges(bool isUnsavedNow) {
    willChange("hasUnsavedChanges");
    {
        std::lock_guard guard(mutex);
        unsaved = isUnsavedNow;
    }
    didChange("hasUnsavedChanges");
}
