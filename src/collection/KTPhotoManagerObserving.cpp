#include "collection/KTPhotoManager.h"

#include "metadata/KTMetadataFieldManager.h"
#include "photo/KTPhotoChangeTracker.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/undo/KTUndoManager.h"

#include <algorithm>

namespace {

constexpr std::chrono::milliseconds kSlice{10}; // of the main thread's time, for each turn of its event loop

} // namespace

/// The field changes that a photo announces are recorded by its tracker; what is left is the list of what is
/// unsaved. That state changes on the main thread alone, the latitude anywhere.
void KTPhotoManager::startObservingPhotosForUnsavedChanges(const Photos& newPhotos) {
    for (const Photo& photo : newPhotos) {
        photo->setUndoManager(undo);
        photo->setUndoQueue(queueOfUndo);
        watched[photo.get()].tracker = std::make_unique<KTPhotoChangeTracker>(
            *photo, [this, weak = std::weak_ptr(photo)](const KTChange& change) {
                if (change.isPrior)
                    return;
                if (change.key == "latitude")
                    isOrderedByLatitude = false;
                else if (change.key == "hasUnsavedChanges")
                    if (const Photo changed = weak.lock())
                        updateUnsaved(changed);
            });
        updateUnsaved(photo);
    }
}

void KTPhotoManager::stopObservingPhotosForUnsavedChanges(const Photos& leaving) {
    std::vector<const void*> targets;
    std::unordered_set<const KTPhoto*> gone;
    for (const Photo& photo : leaving) {
        targets.push_back(photo.get());
        gone.insert(photo.get());
        watched.erase(photo.get());
        listedAsUnsaved.erase(photo.get());
    }
    if (undo)
        undo->removeAllActionsWithTargets(targets);
    Indexes indexes;
    {
        std::lock_guard guard(mutex);
        for (std::size_t i = 0; i < unsaved.size(); ++i)
            if (gone.contains(unsaved[i].get()))
                indexes.push_back(i);
    }
    changeUnsaved(KTChange::Kind::Removal, indexes, [&](Photos& photos) {
        std::erase_if(photos, [&](const Photo& photo) { return gone.contains(photo.get()); });
    });
}

KTPhotoManager::Snapshot KTPhotoManager::unsavedPhotos() const {
    std::lock_guard guard(mutex);
    if (!unsavedCopy)
        unsavedCopy = std::make_shared<const Photos>(unsaved);
    return unsavedCopy;
}

/// Only the main thread changes the list, so that it may look without the lock.
void KTPhotoManager::updateUnsaved(const Photo& photo) {
    const bool isListed = listedAsUnsaved.contains(photo.get());
    if (photo->hasUnsavedChanges() == isListed || !watched.contains(photo.get()))
        return;
    if (isListed) {
        listedAsUnsaved.erase(photo.get());
        const auto index = static_cast<std::size_t>(std::ranges::find(unsaved, photo) - unsaved.begin());
        changeUnsaved(KTChange::Kind::Removal, {index}, [&](Photos& photos) {
            photos.erase(photos.begin() + static_cast<std::ptrdiff_t>(index));
        });
    } else {
        listedAsUnsaved.insert(photo.get());
        changeUnsaved(KTChange::Kind::Insertion, {unsaved.size()},
                      [&](Photos& photos) { photos.push_back(photo); });
    }
}

void KTPhotoManager::changeUnsaved(KTChange::Kind kind, const Indexes& indexes,
                                   const std::function<void(Photos&)>& change) {
    if (indexes.empty())
        return;
    willChange("unsavedPhotos", kind, indexes);
    {
        std::lock_guard guard(mutex);
        change(unsaved);
        unsavedCopy = nullptr;
    }
    didChange("unsavedPhotos", kind, indexes);
}

void KTPhotoManager::followAssumedTimeZone() {
    KTMetadataFieldManager& catalogue = KTMetadataFieldManager::sharedMetadataFieldManager();
    zoneObservation = catalogue.observe([this, weak = std::weak_ptr(self)](const KTChange& change) {
        if (change.isPrior || change.key != "assumedTimeZone")
            return;
        if (KTMainThread::isCurrent())
            return beginZoneChange();
        KTPerformOnMainThread([weak] {
            if (const auto alive = weak.lock())
                (*alive)->beginZoneChange();
        });
    });
}

void KTPhotoManager::beginZoneChange() {
    const bool isUnderWay = zoneChange.has_value();
    zoneChange = ZoneChange{photos()};
    if (!isUnderWay)
        spreadZoneChange(kSlice);
}

/// Goes on for @p limit, and later with the rest; without limit to the end. Who is told of a photo's new zone
/// may ask for the end, or change the zone again.
void KTPhotoManager::spreadZoneChange(std::optional<std::chrono::milliseconds> limit) {
    const auto begin = std::chrono::steady_clock::now();
    while (zoneChange) {
        if (zoneChange->next == zoneChange->photos->size())
            return zoneChange.reset();
        const Photo photo = (*zoneChange->photos)[zoneChange->next++];
        const KTTimeZone zone = KTMetadataFieldManager::sharedMetadataFieldManager().assumedTimeZone();
        photo->setDateTimeDigitizedTimeZone(zone);
        photo->setDateTimeOriginalTimeZone(zone);
        if (limit && std::chrono::steady_clock::now() - begin >= *limit)
            return KTPerformOnMainThread([weak = std::weak_ptr(self)] {
                if (const auto alive = weak.lock())
                    (*alive)->spreadZoneChange(kSlice);
            });
    }
}

void KTPhotoManager::finishZoneChange() {
    spreadZoneChange(std::nullopt);
}

/// For a photo that may have been read before the present zone was chosen.
void KTPhotoManager::giveAssumedTimeZone(KTPhoto& photo) {
    const KTTimeZone zone = KTMetadataFieldManager::sharedMetadataFieldManager().assumedTimeZone();
    for (auto which : {KTPhotoDateFamily::Digitized, KTPhotoDateFamily::Original}) {
        const auto reading = photo.readingOf(which).components;
        if (reading && reading->timeZone && !(*reading->timeZone == zone))
            photo.setDateTimeZone(which, zone);
    }
}
