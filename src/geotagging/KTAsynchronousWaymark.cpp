#include "geotagging/KTAsynchronousWaymark.h"

#include "photo/KTPhoto.h"
#include "platform/concurrency/KTMainThread.h"

#include <algorithm>
#include <utility>

/// What a change of the table leaves over; given up outside the queue, because the last reference to a photo
/// may be among it.
struct KTAsynchronousWaymark::Trash {
    std::vector<Link> links;
    std::vector<Operation> operations;
    std::vector<KTLinkingOperation::Result> results;
    std::vector<Observation> observations;
    Operations started; ///< to be queued
};

namespace {

std::shared_ptr<const KTTrackPointSearch> searchOf(const KTAsynchronousWaymark::TrackManagers& managers) {
    std::vector<const KTTrackStore*> stores;
    for (const KTTrackManager* manager : managers)
        stores.push_back(&manager->store());
    return std::make_shared<const KTTrackPointSearch>(std::move(stores));
}

} // namespace

KTAsynchronousWaymark::KTAsynchronousWaymark(KTPhotoController& controller, TrackManagers trackManagers)
    : photoController(controller), managers(std::move(trackManagers)), search(searchOf(managers)) {}

void KTAsynchronousWaymark::setup() {
    checkForLoadedValidTracks();
    controllerObservation = photoController.observe([this](const KTChange& change) {
        if (change.isPrior)
            return;
        if (change.key == "photos")
            handleArrangement(change);
        else if (change.key == "selectedPhotoIndexes")
            handleSelection();
    });
    for (KTTrackManager* manager : managers)
        trackHandlers.push_back(manager->addHandler([weak = weak_from_this()](const KTTrackNotification&) {
            if (const auto self = weak.lock())
                self->handleDidAddNewImportSource();
        }));
    setObservedPhotos(*photoController.photos());
    handleSelection();
}

void KTAsynchronousWaymark::tearDown() {
    controllerObservation.stop();
    for (std::size_t i = 0; i < trackHandlers.size(); ++i)
        managers[i]->removeHandler(trackHandlers[i]);
    trackHandlers.clear();
    setObservedPhotos({});
    operationQueue.waitUntilAllOperationsAreFinished();
    trackCheckQueue.drain();
}

/// Runs @p change on the table, then queues the operations that it started and tells whether the selection is
/// processed. The value is set inside, so that it never lags behind the table, and announced outside.
template<class Change>
void KTAsynchronousWaymark::changeTable(Change&& change) {
    Trash trash;
    const bool isNews = photoOperationTableSerialQueue.sync([&] {
        change(trash);
        const bool isProcessed = selectedInFlight == 0;
        return hasProcessedSelection.exchange(isProcessed) != isProcessed;
    });
    operationQueue.addOperations(std::move(trash.started));
    if (isNews)
        didChange("didProcessSelectedPhotos");
}

void KTAsynchronousWaymark::handleArrangement(const KTChange& change) {
    if (change.kind != KTChange::Kind::Insertion)
        return setObservedPhotos(*photoController.photos());
    const Photos added = photoController.photosAtIndexes(change.indexes);
    changeTable([&](Trash& trash) { addObservedPhotos(added, trash); });
}

void KTAsynchronousWaymark::setObservedPhotos(const Photos& arranged) {
    std::unordered_set<const KTPhoto*> present;
    for (const Photo& photo : arranged)
        present.insert(photo.get());
    changeTable([&](Trash& trash) {
        const auto isGone = [&](const Photo& photo) { return !present.contains(photo.get()); };
        for (const Photo& photo : observedPhotos)
            if (isGone(photo)) {
                auto entry = photoOperationTable.find(photo.get());
                stopLinking(entry->second);
                trash.links.push_back(std::move(entry->second));
                photoOperationTable.erase(entry);
            }
        std::erase_if(observedPhotos, isGone);
        addObservedPhotos(arranged, trash);
    });
}

void KTAsynchronousWaymark::addObservedPhotos(const Photos& added, Trash& trash) {
    for (const Photo& photo : added) {
        const auto [entry, isNew] = photoOperationTable.try_emplace(photo.get());
        if (!isNew)
            continue;
        Link& link = entry->second;
        link.photo = photo;
        link.photoObservation =
            photo->observe([weak = weak_from_this(), key = photo.get()](const KTChange& change) {
                if (!change.isPrior && change.key == "dateTimeOriginal")
                    if (const auto self = weak.lock())
                        self->startLinkingOperationForPhoto(key);
            });
        observedPhotos.push_back(photo);
        trash.started.push_back(startLinking(link, trash));
    }
}

void KTAsynchronousWaymark::startLinkingOperationForPhoto(const KTPhoto* photo) {
    changeTable([&](Trash& trash) {
        if (const auto entry = photoOperationTable.find(photo); entry != photoOperationTable.end())
            trash.started.push_back(startLinking(entry->second, trash));
    });
}

/// An operation that is superseded is not listened to any more. It still finishes.
KTAsynchronousWaymark::Operation KTAsynchronousWaymark::startLinking(Link& link, Trash& trash) {
    if (link.operation)
        link.operation->cancel();
    else
        selectedInFlight += link.isSelected ? 1 : 0;
    auto operation = std::make_shared<KTLinkingOperation>(link.photo, search);
    trash.observations.push_back(
        std::exchange(link.operationObservation,
                      operation->observe([this, finished = operation.get()](const KTChange& change) {
                          if (!change.isPrior && change.key == "isFinished")
                              handleFinishedLinkingOperation(*finished);
                      })));
    trash.operations.push_back(std::exchange(link.operation, operation));
    trash.results.push_back(std::exchange(link.points, nullptr));
    return operation;
}

void KTAsynchronousWaymark::stopLinking(Link& link) {
    if (!link.operation)
        return;
    link.operation->cancel();
    selectedInFlight -= link.isSelected ? 1 : 0;
}

void KTAsynchronousWaymark::handleFinishedLinkingOperation(const KTLinkingOperation& operation) {
    changeTable([&](Trash& trash) {
        const auto entry = photoOperationTable.find(operation.photo().get());
        if (entry == photoOperationTable.end() || entry->second.operation.get() != &operation)
            return;
        Link& link = entry->second;
        link.points = operation.linkedPoints();
        trash.operations.push_back(std::exchange(link.operation, nullptr));
        trash.observations.push_back(std::move(link.operationObservation));
        selectedInFlight -= link.isSelected ? 1 : 0;
    });
}

void KTAsynchronousWaymark::handleSelection() {
    const KTPhotoManager::Snapshot selected = photoController.selectedPhotos();
    changeTable([&](Trash&) {
        const auto mark = [&](const KTPhotoManager::Snapshot& photos, bool isSelected) {
            for (std::size_t i = 0; photos && i < photos->size(); ++i)
                if (const auto entry = photoOperationTable.find((*photos)[i].get());
                    entry != photoOperationTable.end()) {
                    entry->second.isSelected = isSelected;
                    selectedInFlight += isSelected && entry->second.operation ? 1 : 0;
                }
        };
        selectedInFlight = 0;
        mark(selectedPhotos, false);
        mark(selected, true);
        selectedPhotos = selected;
    });
}

void KTAsynchronousWaymark::handleDidAddNewImportSource() {
    checkForLoadedValidTracks();
    changeTable([&](Trash& trash) {
        for (const Photo& photo : observedPhotos)
            trash.started.push_back(startLinking(photoOperationTable.find(photo.get())->second, trash));
    });
}

void KTAsynchronousWaymark::checkForLoadedValidTracks() {
    trackCheckQueue.async([this] {
        const bool hasAny = search->countOfDatedPoints(1) != 0;
        KTPerformOnMainThread([weak = weak_from_this(), hasAny] {
            if (const auto self = weak.lock())
                self->setHasLoadedValidTracks(hasAny);
        });
    });
}

void KTAsynchronousWaymark::setHasLoadedValidTracks(bool hasAny) {
    if (hasTracks.exchange(hasAny) != hasAny)
        didChange("hasLoadedValidTracks");
}

KTLinkingOperation::Result KTAsynchronousWaymark::linkedPointsForPhoto(const Photo& photo) const {
    return photoOperationTableSerialQueue.sync([&]() -> KTLinkingOperation::Result {
        const auto entry = photoOperationTable.find(photo.get());
        return entry == photoOperationTable.end() ? nullptr : entry->second.points;
    });
}

KTAsynchronousWaymark::Point KTAsynchronousWaymark::precedingPointForPhoto(const Photo& photo) const {
    const auto linked = linkedPointsForPhoto(photo);
    return linked ? linked->preceding : nullptr;
}

KTAsynchronousWaymark::Point KTAsynchronousWaymark::nextPointForPhoto(const Photo& photo) const {
    const auto linked = linkedPointsForPhoto(photo);
    return linked ? linked->next : nullptr;
}

KTAsynchronousWaymark::Point KTAsynchronousWaymark::interpolatedPointForPhoto(const Photo& photo) const {
    const auto linked = linkedPointsForPhoto(photo);
    return linked ? linked->interpolated : nullptr;
}
