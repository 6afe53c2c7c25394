#include "collection/KTPhotoManager.h"

#include "photo/KTPhotoChangeTracker.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/concurrency/KTThreadPool.h"
#include "platform/undo/KTUndoManager.h"

#include <algorithm>
#include <limits>
#include <numeric>

KTPhotoManager& KTPhotoManager::sharedPhotoManager() {
    static KTPhotoManager shared;
    return shared;
}

KTPhotoManager::KTPhotoManager() : self(std::make_shared<KTPhotoManager*>(this)) {
    followAssumedTimeZone();
}

KTPhotoManager::~KTPhotoManager() {
    zoneObservation.stop();
    setShouldCancelImport();
    importQueue.waitUntilAllOperationsAreFinished();
}

void KTPhotoManager::setUndoManager(std::shared_ptr<KTUndoManager> manager,
                                    std::shared_ptr<KTSerialQueue> queue) {
    undo = std::move(manager);
    queueOfUndo = std::move(queue);
}

std::shared_ptr<KTUndoManager> KTPhotoManager::undoManager() const {
    return undo;
}

std::shared_ptr<KTSerialQueue> KTPhotoManager::undoQueue() const {
    return queueOfUndo;
}

KTPhotoManager::Snapshot KTPhotoManager::photos() const {
    std::lock_guard guard(mutex);
    return list.photos();
}

std::size_t KTPhotoManager::numberOfPhotos() const {
    std::lock_guard guard(mutex);
    return list.size();
}

KTPhotoManager::Photo KTPhotoManager::photoAtIndex(std::size_t index) const {
    std::lock_guard guard(mutex);
    return list.at(index);
}

KTPhotoManager::Snapshot KTPhotoManager::arrangedPhotos() const {
    std::lock_guard guard(mutex);
    return list.arranged();
}

KTPhotoManager::Photos KTPhotoManager::arrangedPhotosAtIndexes(const Indexes& indexes) const {
    std::lock_guard guard(mutex);
    return list.arrangedAt(indexes);
}

KTPhotoManager::Snapshot KTPhotoManager::selectedPhotos() const {
    std::lock_guard guard(mutex);
    return list.selected();
}

KTPhotoManager::Indexes KTPhotoManager::selectedPhotoIndexes() const {
    std::lock_guard guard(mutex);
    return list.selectedIndexes();
}

std::vector<KTSortDescriptor> KTPhotoManager::photoSortDescriptors() const {
    std::lock_guard guard(mutex);
    return list.sortDescriptors();
}

/// Changes the list inside the photo queue, with the announcements for the photos and for the map's features,
/// and for the selection where it may change.
template<class Change>
void KTPhotoManager::changeList(KTChange::Kind kind, const Indexes& indexes, Change&& change) {
    photoSerialQueue.sync([&] {
        const bool mayChangeSelection = kind != KTChange::Kind::Insertion || hasSelection();
        if (mayChangeSelection)
            willChange("selectedPhotoIndexes");
        willChange("spatialObjects", kind, indexes);
        willChange("photos", kind, indexes);
        {
            std::lock_guard guard(mutex);
            change(list);
            isOrderedByLatitude = false;
        }
        didChange("photos", kind, indexes);
        didChange("spatialObjects", kind, indexes);
        if (mayChangeSelection)
            didChange("selectedPhotoIndexes");
    });
}

void KTPhotoManager::insertObject(const Photo& photo, std::size_t inPhotosAtIndex) {
    const std::size_t index = std::min(inPhotosAtIndex, numberOfPhotos());
    changeList(KTChange::Kind::Insertion, {index}, [&](KTArrangedPhotos& all) { all.insert(photo, index); });
    startObservingPhotosForUnsavedChanges({photo});
    countPhotosOfLibraries({photo}, {});
}

void KTPhotoManager::removeObjectFromPhotosAtIndex(std::size_t index) {
    if (const Snapshot all = photos(); index < all->size())
        removePhotos({(*all)[index]});
}

void KTPhotoManager::replaceObjectInPhotosAtIndex(std::size_t index, const Photo& withObject) {
    const Snapshot all = photos();
    if (index >= all->size())
        return;
    stopObservingPhotosForUnsavedChanges({(*all)[index]});
    changeList(KTChange::Kind::Replacement, {index},
               [&](KTArrangedPhotos& photos) { photos.replace(index, withObject); });
    startObservingPhotosForUnsavedChanges({withObject});
    countPhotosOfLibraries({withObject}, {(*all)[index]});
}

void KTPhotoManager::removePhotos(const Photos& leaving) {
    Indexes indexes;
    Photos present;
    {
        std::lock_guard guard(mutex);
        indexes = list.indexesOf(leaving);
        for (std::size_t index : indexes)
            present.push_back((*list.photos())[index]); // kept until nobody is told of them any more
    }
    if (indexes.empty())
        return;
    stopObservingPhotosForUnsavedChanges(present);
    changeList(KTChange::Kind::Removal, indexes, [&](KTArrangedPhotos& photos) { photos.remove(indexes); });
    countPhotosOfLibraries({}, present);
}

KTPhotoManager::Indexes KTPhotoManager::movePhotos(const Indexes& indexes, std::size_t toIndex) {
    const Snapshot order = arrangedPhotos();
    Photos moved;
    for (std::size_t index : indexes)
        if (index < order->size())
            moved.push_back((*order)[index]);
    wantedSort = nullptr;
    willChange("photoSortDescriptors");
    changeList(KTChange::Kind::Setting, {}, [&](KTArrangedPhotos& photos) {
        photos.arrange(*order);
        photos.move(indexes, toIndex);
        photos.select(moved);
    });
    didChange("photoSortDescriptors");
    return selectedPhotoIndexes();
}

bool KTPhotoManager::addNewPhoto(const Photo& photo) {
    if (!photo)
        return false;
    // Looked up again, because imports overlap.
    const bool isAdded = photo->isValid() && !isLoaded(photo->fileURL());
    if (isAdded) {
        giveAssumedTimeZone(*photo);
        insertObject(photo, numberOfPhotos());
    }
    const Operations log = photo->photoOperations();
    if (const auto entry = watched.find(photo.get()); isAdded && entry != watched.end())
        entry->second.logged = log.size();
    addPhotoOperations(log);
    return isAdded;
}

bool KTPhotoManager::hasSelection() const {
    std::lock_guard guard(mutex);
    return list.hasSelection();
}

bool KTPhotoManager::isLoaded(const KTPhoto& photo) const {
    std::lock_guard guard(mutex);
    return list.contains(&photo);
}

bool KTPhotoManager::isLoaded(const std::filesystem::path& file) const {
    std::lock_guard guard(mutex);
    return list.containsFile(file);
}

void KTPhotoManager::countPhotosOfLibraries(const Photos& coming, const Photos& leaving) {
    auto count = [](const Photos& photos) {
        return static_cast<std::size_t>(std::ranges::count_if(
            photos, [](const Photo& photo) { return photo->shouldUseIPhotoProperties(); }));
    };
    const std::size_t now = photosOfLibraries + count(coming) - count(leaving);
    const bool isChange = (now > 0) != (photosOfLibraries > 0);
    if (isChange)
        willChange("isSyncingWithIPhoto");
    photosOfLibraries = now;
    if (isChange)
        didChange("isSyncingWithIPhoto");
}

template<class Change>
void KTPhotoManager::changeSelection(Change&& change) {
    willChange("selectedPhotoIndexes");
    {
        std::lock_guard guard(mutex);
        change(list);
    }
    didChange("selectedPhotoIndexes");
}

template<class Change>
void KTPhotoManager::changeSort(Change&& change) {
    willChange("photoSortDescriptors");
    changeSelection(std::forward<Change>(change));
    didChange("photoSortDescriptors");
}

void KTPhotoManager::setPhotoSortDescriptors(std::vector<KTSortDescriptor> descriptors) {
    wantedSort = nullptr;
    finishZoneChange();
    changeSort([&](KTArrangedPhotos& photos) { photos.sort(std::move(descriptors)); });
}

void KTPhotoManager::sortPhotosSoon(std::vector<KTSortDescriptor> descriptors) {
    finishZoneChange();
    wantedSort = std::make_shared<const std::vector<KTSortDescriptor>>(std::move(descriptors));
    KTRunOnThreadPool([weak = std::weak_ptr(self), all = photos(), wanted = wantedSort] {
        auto order = std::make_shared<KTArrangedPhotos::Sorted>(KTArrangedPhotos::sorted(*all, *wanted));
        KTPerformOnMainThread([weak, all, wanted, order] {
            const auto alive = weak.lock();
            if (!alive || (*alive)->wantedSort != wanted)
                return;
            KTPhotoManager& manager = **alive;
            if (manager.photos() != all) // some came or went meanwhile
                return manager.setPhotoSortDescriptors(*wanted);
            manager.wantedSort = nullptr;
            manager.changeSort([&](KTArrangedPhotos& photos) { photos.adopt(std::move(*order)); });
        });
    });
}

std::vector<KTSortDescriptor> KTPhotoManager::wantedSortDescriptors() const {
    return wantedSort ? *wantedSort : photoSortDescriptors();
}

void KTPhotoManager::setSelectedPhotoIndexes(const Indexes& indexes) {
    changeSelection([&](KTArrangedPhotos& photos) { photos.selectIndexes(indexes); });
}

void KTPhotoManager::setSelectedPhotos(const Photos& wanted) {
    changeSelection([&](KTArrangedPhotos& photos) { photos.select(wanted); });
}

KTPhotoManager::Operations KTPhotoManager::photoOperations() const {
    return photoOperationsFrom(0);
}

KTPhotoManager::Operations KTPhotoManager::photoOperationsFrom(std::size_t first) const {
    std::lock_guard guard(mutex);
    const auto begin = operations.begin() + static_cast<std::ptrdiff_t>(std::min(first, operations.size()));
    return {begin, operations.end()};
}

void KTPhotoManager::addPhotoOperations(const Operations& added) {
    if (added.empty())
        return;
    Indexes indexes(added.size());
    {
        std::lock_guard guard(mutex);
        std::iota(indexes.begin(), indexes.end(), operations.size());
    }
    willChange("photoOperations", KTChange::Kind::Insertion, indexes);
    {
        std::lock_guard guard(mutex);
        operations.insert(operations.end(), added.begin(), added.end());
    }
    didChange("photoOperations", KTChange::Kind::Insertion, indexes);
}

std::string KTPhotoManager::name() const {
    return KTLocalizedString("Photos");
}

KTPhotoManager::Objects KTPhotoManager::spatialObjects() const {
    std::lock_guard guard(mutex);
    if (isOrderedByLatitude.exchange(true))
        return bySouthernness;
    std::vector<std::pair<double, Photo>> order;
    for (const Photo& photo : *list.photos()) {
        const auto latitude = photo->decimalForKey("latitude");
        order.emplace_back(latitude ? latitude->toDouble() : -std::numeric_limits<double>::infinity(), photo);
    }
    std::ranges::stable_sort(order, {}, &std::pair<double, Photo>::first);
    bySouthernness.clear();
    for (auto& [latitude, photo] : order)
        bySouthernness.push_back(std::move(photo));
    return bySouthernness;
}

KTPhotoManager::Indexes KTPhotoManager::spatialObjectSelectionIndexes() const {
    const Snapshot selected = selectedPhotos();
    std::unordered_set<const KTSpatialObject*> wanted;
    for (const Photo& photo : *selected)
        wanted.insert(photo.get());
    const Objects objects = spatialObjects();
    Indexes indexes;
    for (std::size_t i = 0; i < objects.size() && indexes.size() < wanted.size(); ++i)
        if (wanted.contains(objects[i].get()))
            indexes.push_back(i);
    return indexes;
}

bool KTPhotoManager::addSelectedSpatialObjects(const Objects& objects) {
    Photos wanted;
    for (const auto& object : objects)
        if (auto photo = std::dynamic_pointer_cast<KTPhoto>(object))
            wanted.push_back(std::move(photo));
    setSelectedPhotos(wanted);
    return true;
}
