#include "collection/KTPhotoSpatialObjectController.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/concurrency/KTMainThread.h"

#include <algorithm>
#include <limits>

/// One photo of the layer, with what its place in the order follows from.
struct KTPhotoSpatialObjectController::Feature {
    KTPhotoManager::Photo photo;
    std::string path;
    double latitude = 0; // degrees; of a photo without one, less than any
    bool isInPlace = false;
    std::size_t index = 0; // in the order
    Observation latitudeObservation;

    void readLatitude() {
        const auto degrees = photo->decimalForKey("latitude");
        const bool isNumber = degrees && !degrees->isNaN();
        latitude = isNumber ? degrees->toDouble() : -std::numeric_limits<double>::infinity();
    }
    static bool isBefore(const Feature* left, const Feature* right) {
        return std::tie(left->latitude, left->path) < std::tie(right->latitude, right->path);
    }
};

/// Which photos came, went or changed their latitude since the last sort. Outlives the layer, because the
/// threads that change photos may still be telling of it.
struct KTPhotoSpatialObjectController::Moves {
    KTPhotoSpatialObjectController* layer; // null when it is gone; the main thread's

    std::mutex mutex; // guards what follows
    std::unordered_set<const KTPhoto*> photos;
    bool isToBeAnnounced = false;
};

KTPhotoSpatialObjectController::KTPhotoSpatialObjectController(KTPhotoManager& collection)
    : manager(collection), moves(std::make_shared<Moves>()) {
    moves->layer = this;
}

KTPhotoSpatialObjectController::~KTPhotoSpatialObjectController() {
    tearDown();
    moves->layer = nullptr;
}

void KTPhotoSpatialObjectController::setup() {
    managerObservation = manager.observe([this](const KTChange& change) {
        if (change.isPrior)
            return;
        if (change.key == "photos")
            photosDidChange(change);
        else if (change.key == "selectedPhotoIndexes" && !announceMoves())
            updateSpatialObjectSelectionIndexes();
    });
    synchronize();
}

void KTPhotoSpatialObjectController::tearDown() {
    managerObservation.stop();
    for (const auto& [photo, feature] : features)
        forget(*feature);
    features.clear();
    order.clear();
    const std::lock_guard guard(moves->mutex);
    moves->isToBeAnnounced = false;
}

/// Imports add photos one by one, thousands of times; all else is looked up.
void KTPhotoSpatialObjectController::photosDidChange(const KTChange& change) {
    if (change.kind != KTChange::Kind::Insertion)
        return synchronize();
    for (std::size_t index : change.indexes)
        if (const auto photo = manager.photoAtIndex(index))
            add(photo);
}

void KTPhotoSpatialObjectController::synchronize() {
    const auto photos = manager.photos();
    std::unordered_set<const KTPhoto*> loaded;
    for (const auto& photo : *photos)
        loaded.insert(photo.get());
    std::erase_if(order, [&](Feature* feature) { return !loaded.contains(feature->photo.get()); });
    std::erase_if(features, [&](const auto& entry) {
        if (loaded.contains(entry.first))
            return false;
        forget(*entry.second);
        noteMove(moves, entry.first);
        return true;
    });
    for (const auto& photo : *photos)
        add(photo);
}

void KTPhotoSpatialObjectController::add(const KTPhotoManager::Photo& photo) {
    auto& feature = features[photo.get()];
    if (feature)
        return;
    feature = std::make_unique<Feature>();
    feature->photo = photo;
    feature->path = photo->path();
    photo->setObjectOwner(this);
    feature->latitudeObservation = photo->observe([moves = moves, key = photo.get()](const KTChange& change) {
        if (!change.isPrior && change.key == "latitude")
            noteMove(moves, key);
    });
    order.push_back(feature.get());
    noteMove(moves, photo.get());
}

void KTPhotoSpatialObjectController::forget(Feature& feature) {
    feature.latitudeObservation.stop();
    if (feature.photo->objectOwner() == this)
        feature.photo->setObjectOwner(nullptr);
}

/// Any thread.
void KTPhotoSpatialObjectController::noteMove(const std::shared_ptr<Moves>& moves, const KTPhoto* photo) {
    {
        const std::lock_guard guard(moves->mutex);
        moves->photos.insert(photo);
        if (std::exchange(moves->isToBeAnnounced, true))
            return;
    }
    KTPerformOnMainThread([moves] {
        if (moves->layer != nullptr)
            moves->layer->announceMoves();
    });
}

/// Takes the photos that moved out of the order and merges them in again; the others need no comparing.
void KTPhotoSpatialObjectController::sort() const {
    std::unordered_set<const KTPhoto*> moved;
    {
        const std::lock_guard guard(moves->mutex);
        moved.swap(moves->photos);
    }
    if (moved.empty())
        return;
    for (const KTPhoto* photo : moved)
        if (const auto entry = features.find(photo); entry != features.end()) {
            entry->second->readLatitude();
            entry->second->isInPlace = false;
        }
    const auto firstMoved = std::ranges::stable_partition(order, [](const Feature* feature) {
                                return feature->isInPlace;
                            }).begin();
    std::sort(firstMoved, order.end(), Feature::isBefore);
    std::inplace_merge(order.begin(), firstMoved, order.end(), Feature::isBefore);
    for (std::size_t index = 0; index < order.size(); ++index) {
        order[index]->isInPlace = true;
        order[index]->index = index;
    }
}

/// Whether there was anything to announce. Sorting is left to whoever asks for the order: while photos are
/// imported, each turn of the event loop brings one.
bool KTPhotoSpatialObjectController::announceMoves() {
    {
        const std::lock_guard guard(moves->mutex);
        if (!std::exchange(moves->isToBeAnnounced, false))
            return false;
    }
    willChange("spatialObjects");
    didChange("spatialObjects");
    updateSpatialObjectSelectionIndexes();
    return true;
}

void KTPhotoSpatialObjectController::updateSpatialObjectSelectionIndexes() {
    willChange("spatialObjectSelectionIndexes");
    didChange("spatialObjectSelectionIndexes");
}

std::string KTPhotoSpatialObjectController::name() const {
    return KTLocalizedString("Photos");
}

KTSpatialObjectController::Objects KTPhotoSpatialObjectController::spatialObjects() const {
    sort();
    Objects objects;
    objects.reserve(order.size());
    for (const Feature* feature : order)
        objects.push_back(feature->photo);
    return objects;
}

KTSpatialObjectController::Indexes KTPhotoSpatialObjectController::spatialObjectSelectionIndexes() const {
    sort();
    Indexes indexes;
    for (const auto& photo : *manager.selectedPhotos())
        if (const auto entry = features.find(photo.get()); entry != features.end())
            indexes.push_back(entry->second->index);
    std::ranges::sort(indexes);
    return indexes;
}

bool KTPhotoSpatialObjectController::addSelectedSpatialObjects(const Objects& objects) {
    return manager.addSelectedSpatialObjects(objects);
}
