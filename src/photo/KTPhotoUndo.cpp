#include "photo/KTPhotoGroupedEdit.h"

#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTCallContext.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/undo/KTUndoManager.h"

namespace {

constexpr std::chrono::seconds kJoiningTime{1};

std::optional<KTPhotoDateFamily::Which> familyOfKey(std::string_view key) {
    for (auto which : {KTPhotoDateFamily::Original, KTPhotoDateFamily::Digitized}) {
        const KTPhotoDateFamily::Keys& keys = KTPhotoDateFamily::keysOf(which);
        if (key == keys.components || key == keys.timeZone || key == keys.shift || key == keys.instant)
            return which;
    }
    return std::nullopt;
}

} // namespace

void KTPhoto::setUndoManager(std::shared_ptr<KTUndoManager> newManager) {
    std::lock_guard guard(mutex);
    manager.swap(newManager);
}

std::shared_ptr<KTUndoManager> KTPhoto::undoManager() const {
    std::lock_guard guard(mutex);
    return manager;
}

void KTPhoto::setUndoQueue(std::shared_ptr<KTSerialQueue> newQueue) {
    std::lock_guard guard(mutex);
    queue.swap(newQueue);
}

std::shared_ptr<KTSerialQueue> KTPhoto::undoQueue() const {
    std::lock_guard guard(mutex);
    return queue;
}

int KTPhoto::doNotTrackChangesStack() const {
    return KTCallMark::count(this);
}

KTValue KTPhoto::lastRecordedUndoKey() const {
    std::lock_guard guard(mutex);
    const bool isOver = std::chrono::steady_clock::now() - lastUndoTime >= kJoiningTime;
    return lastUndoKey.empty() || isOver ? KTValue() : KTValue(lastUndoKey);
}

void KTPhoto::invalidateLastRecordedUndoKey() {
    std::lock_guard guard(mutex);
    lastUndoKey.clear();
}

void KTPhoto::registerEditForUndo(const KTMetadataField& field, const KTValue& oldValue) {
    const auto undo = undoManager();
    if (!undo)
        return;
    if (undo->isUndoingOrRedoing())
        return invalidateLastRecordedUndoKey();
    if (oldValue == valueForKey(field.key()))
        return;
    const bool joins = lastRecordedUndoKey() == KTValue(field.key());
    {
        std::lock_guard guard(mutex);
        lastUndoKey = field.key();
        lastUndoTime = std::chrono::steady_clock::now();
    }
    if (!joins)
        registerWayBack(field.key(), oldValue);
}

void KTPhoto::registerWayBack(const std::string& key, const KTValue& before) {
    const auto undo = undoManager();
    const auto field = KTMetadataFieldManager::sharedMetadataFieldManager().metadataFieldForKey(key);
    if (!undo || field == nullptr)
        return;
    undo->registerUndoWithTarget(this, KTStringWithFormat(KTLocalizedString("Edit %@"), {field->name()}),
                                 [weak = weak_from_this(), key, before] {
                                     if (auto photo = weak.lock())
                                         photo->undoManagerChangeKeyPath(key, before);
                                 });
}

void KTPhoto::undoManagerChangeKeyPath(const std::string& key, const KTValue& toValue) {
    registerWayBack(key, valueForKey(key));
    setValueForKey(key, toValue);
}

void KTPhoto::setValuesForKeysWithDictionary(const KTValue::Dictionary& newValues,
                                             const std::string& actionName) {
    apply({newValues, {}}, actionName);
}

KTPhoto::GroupedEdit KTPhoto::inverseOf(const GroupedEdit& edit) const {
    GroupedEdit inverse;
    auto addDates = [&](KTPhotoDateFamily::Which which) { inverse.dates.emplace(which, readingOf(which)); };
    for (const auto& [which, reading] : edit.dates)
        addDates(which);
    for (const auto& [key, value] : edit.values) {
        if (auto which = familyOfKey(key))
            addDates(*which);
        else
            inverse.values.emplace(key, valueForKey(key));
    }
    return inverse;
}

void KTPhoto::apply(const GroupedEdit& edit, const std::string& actionName) {
    auto setAll = [&] {
        const KTCallMark untracked(this);
        const KTCallMark grouped(&values);
        for (const auto& [key, value] : edit.values)
            setValueForKey(key, value);
        for (const auto& [which, reading] : edit.dates)
            setDateComponents(which, reading.components, reading.shift);
    };
    auto change = [&] {
        const auto undo = undoManager();
        if (undo && doNotTrackChangesStack() == 0) {
            invalidateLastRecordedUndoKey();
            undo->registerUndoWithTarget(this, actionName,
                                         [weak = weak_from_this(), actionName, inverse = inverseOf(edit)] {
                                             if (auto photo = weak.lock())
                                                 photo->apply(inverse, actionName);
                                         });
        }
        sidecarOfGroup = hasXMPSidecar();
        KTPerformOnMainThreadAndWait(setAll);
    };
    if (const auto serial = undoQueue())
        serial->sync(change);
    else
        change();
    if (checkIsDue.exchange(false))
        checkForUnsavedChanges();
}
