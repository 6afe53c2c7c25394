#include "geotagging/KTAppTrackPickerController.h"

#include "geotagging/KTPhotoMatchController.h"
#include "platform/cartography/KTMapController.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/defaults/KTUserDefaults.h"

namespace {

enum : std::int64_t { kMapStays = 0, kMapReveals = 1 }; // and fits for every other style

/// The box around what @p predicate means; reads every position.
std::optional<KTMapBounds> boundsOf(const KTTrackManager& manager, const KTTrackPredicate& predicate) {
    std::vector<KTMapPoint> positions;
    for (const KTTrack& track : manager.store().tracks())
        if (predicate.matches(track))
            manager.store().visitPositions(track.id, [&](double longitude, double latitude, bool) {
                positions.push_back({longitude, latitude});
            });
    return KTMapBounds::ofPoints(positions);
}

} // namespace

KTAppTrackPickerController::KTAppTrackPickerController(KTTrackManager& library)
    : KTTrackPickerController(library),
      waypoints(std::make_shared<KTSmartFile>(KTLocalizedString("All Waypoints"))),
      recent(std::make_shared<KTSmartRecentImportsFile>(library)),
      near(std::make_shared<KTNearPhotosSmartFile>(KTLocalizedString("Near Photos"))),
      nearAndRecent(
          std::make_shared<KTNearPhotosAndRecentImportsSmartFile>(KTLocalizedString("Near & Recent"))),
      self(std::make_shared<KTAppTrackPickerController*>(this)) {
    waypoints->setTrackPredicate(KTTrackPredicate{});
    for (const auto& file : {near, std::static_pointer_cast<KTNearPhotosSmartFile>(nearAndRecent)}) {
        file->setTrackPredicate(KTTrackPredicate{}); // nothing, up to the first look-up
        file->setWaypointPredicate(KTTrackPredicate{});
    }
    for (const SmartFile& file : {waypoints, SmartFile(recent), SmartFile(near), SmartFile(nearAndRecent)})
        addSmartFile(file);
}

KTAppTrackPickerController::~KTAppTrackPickerController() {
    lookUps.cancelAllOperations();
}

void KTAppTrackPickerController::setup() {
    photosObservation = photoManager->observe([this](const KTChange& change) {
        if (change.key == "photos" && !change.isPrior)
            refreshSoon();
    });
    importsObservation = trackManager().observe([this](const KTChange& change) {
        if (change.key == "recentImportsPredicate" && !change.isPrior)
            recentImportsDidChange();
    });
    setSelectedSourceList(nearAndRecent);
    refreshPredicates();
}

/// Photos come one by one, in thousands.
void KTAppTrackPickerController::refreshSoon() {
    if (std::exchange(isRefreshDue, true) || isRefreshing)
        return;
    KTPerformOnMainThread([alive = std::weak_ptr(self)] {
        if (const auto controller = alive.lock())
            (*controller)->refreshPredicates();
    });
}

void KTAppTrackPickerController::refreshPredicates() {
    isRefreshDue = isRefreshing;
    if (std::exchange(isRefreshing, true))
        return;
    lookUps.addOperationWithBlock([this, photos = photoManager->photos(), alive = std::weak_ptr(self)] {
        std::vector<KTInstant> dates;
        for (const auto& photo : *photos)
            if (const auto date = photo->dateTimeOriginal())
                dates.push_back(*date);
        KTPerformOnMainThread([alive, found = trackManager().nearbyPredicatesForDates(std::move(dates))] {
            if (const auto controller = alive.lock())
                (*controller)->takePredicates(found);
        });
    });
}

void KTAppTrackPickerController::takePredicates(const KTNearbyPredicates& found) {
    const KTTrackPredicate imported = trackManager().recentImportsPredicate();
    near->setTrackPredicate(found.trackPredicate);
    near->setWaypointPredicate(found.waypointPredicate);
    near->setShouldRefreshTracksAndWaypoints(!near->shouldRefreshTracksAndWaypoints());
    nearAndRecent->setTrackPredicate(found.trackPredicate == imported ? found.trackPredicate
                                                                      : found.trackPredicate | imported);
    nearAndRecent->setWaypointPredicate(found.waypointPredicate | imported);
    nearAndRecent->setShouldRefreshTracksAndWaypoints(!nearAndRecent->shouldRefreshTracksAndWaypoints());
    isRefreshing = false;
    if (std::exchange(isRefreshDue, false))
        refreshPredicates();
}

void KTAppTrackPickerController::recentImportsDidChange() {
    refreshPredicates();
    const std::int64_t style =
        KTUserDefaults::standardUserDefaults().integerForKey("defaultAutoZoomRecentTrackImportsStyle");
    if (style == kMapStays)
        return;
    if (selectedSourceList() != recent && selectedSourceList() != nearAndRecent)
        setSelectedSourceList(nearAndRecent);
    lookUps.addOperationWithBlock(
        [this, style, alive = std::weak_ptr(self), imported = trackManager().recentImportsPredicate()] {
            KTPerformOnMainThread([alive, style, bounds = boundsOf(trackManager(), imported)] {
                if (const auto controller = alive.lock())
                    (*controller)->showOnMap(bounds, style);
            });
        });
}

void KTAppTrackPickerController::showOnMap(const std::optional<KTMapBounds>& bounds, std::int64_t style) {
    if (map == nullptr || !bounds)
        return;
    if (style == kMapReveals)
        map->revealBounds(*bounds);
    else
        map->fitBounds(*bounds);
}

void KTAppTrackPickerController::setMatchController(KTPhotoMatchController* knower) {
    matchesObservation.stop();
    matches = knower;
    if (matches != nullptr)
        matchesObservation = matches->observe([this](const KTChange& change) {
            if (change.key == "matches")
                change.isPrior ? willChange("matchedPhotos") : didChange("matchedPhotos");
        });
    willChange("matchedPhotos");
    didChange("matchedPhotos");
}

std::size_t KTAppTrackPickerController::matchedPhotosOfTrack(std::int64_t track) const {
    return matches == nullptr ? 0 : matches->matchedPhotosOfTrack(track);
}
