#include "platform/tracklibrary/KTTrackPickerController.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/concurrency/KTMainThread.h"

/// What one look-up found.
struct KTTrackPickerController::Fetched {
    std::uint64_t number;
    KTTrackSourceList::Records records;
};

KTTrackPickerController::KTTrackPickerController(KTTrackManager& library)
    : manager(library), entries{std::make_shared<KTSmartFile>(KTLocalizedString("Library"))},
      selected(entries.front()), self(std::make_shared<KTTrackPickerController*>(this)) {
    handler = manager.addHandler([alive = std::weak_ptr(self)](const KTTrackNotification&) {
        KTPerformOnMainThread([alive] {
            if (const auto controller = alive.lock())
                (*controller)->refetchSoon();
        });
    });
    entryObservation = selected->observe([this](const KTChange& change) {
        if (!change.isPrior)
            refetchSoon();
    });
    refetchSoon();
}

KTTrackPickerController::~KTTrackPickerController() {
    manager.removeHandler(handler);
    queue.cancelAllOperations();
}

void KTTrackPickerController::addSmartFile(SmartFile file) {
    willChange("sourceLists", KTChange::Kind::Insertion, {entries.size()});
    entries.push_back(std::move(file));
    didChange("sourceLists", KTChange::Kind::Insertion, {entries.size() - 1});
}

void KTTrackPickerController::setSelectedSourceList(const SmartFile& entry) {
    if (entry == selected)
        return;
    willChange("selectedSourceList");
    selected = entry;
    didChange("selectedSourceList");
    entryObservation = selected->observe([this](const KTChange& change) {
        if (!change.isPrior)
            refetchSoon();
    });
    refetchSoon();
}

void KTTrackPickerController::setWindowVisible(bool visible) {
    willChange("isWindowVisible");
    isVisible = visible;
    didChange("isWindowVisible");
}

void KTTrackPickerController::showWindowQuietly() {
    isQuiet = true;
    setWindowVisible(true);
    isQuiet = false;
}

void KTTrackPickerController::refetchSoon() {
    if (std::exchange(isFetchDue, true))
        return;
    KTPerformOnMainThread([alive = std::weak_ptr(self)] {
        if (const auto controller = alive.lock())
            (*controller)->refetch();
    });
}

void KTTrackPickerController::refetch() {
    isFetchDue = false;
    queue.cancelAllOperations();
    willChange("isFetching");
    fetching = true;
    didChange("isFetching");
    const auto tracks = selected->trackPredicate().value_or(KTTrackPredicate::everything());
    const auto waypoints = selected->waypointPredicate().value_or(KTTrackPredicate::everything());
    queue.addOperationWithBlock([this, tracks, waypoints, number = ++fetches, alive = std::weak_ptr(self)] {
        const auto found = std::make_shared<Fetched>(Fetched{.number = number, .records = {}});
        for (KTTrack& track : manager.tracksForPredicate(tracks))
            found->records.push_back({std::move(track)});
        for (KTWaypoint& waypoint : manager.waypointsForPredicate(waypoints))
            found->records.push_back({std::move(waypoint)});
        KTPerformOnMainThread([found, alive] {
            if (const auto controller = alive.lock())
                (*controller)->takeFetched(std::move(*found));
        });
    });
}

void KTTrackPickerController::takeFetched(Fetched fetched) {
    if (fetched.number != fetches)
        return;
    std::vector<std::int64_t> unmeasured;
    for (const KTTrackRecord& record : fetched.records)
        if (const KTTrack* track = record.track(); track != nullptr && !list.isLengthKnown(track->id))
            unmeasured.push_back(track->id);
    list.setTracksAndWaypoints(std::move(fetched.records));
    willChange("isFetching");
    fetching = false;
    didChange("isFetching");
    for (std::int64_t track : unmeasured)
        queue.addOperationWithBlock([this, track, alive = std::weak_ptr(self)] {
            const std::optional<double> length = manager.store().lengthOfTrack(track);
            KTPerformOnMainThread([alive, track, length] {
                if (const auto controller = alive.lock())
                    (*controller)->list.addLengths({{track, length}});
            });
        });
}
