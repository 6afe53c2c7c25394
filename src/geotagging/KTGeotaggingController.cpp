#include "geotagging/KTGeotaggingController.h"

#include "geotagging/KTAppTrackPickerController.h"
#include "platform/cartography/KTMapController.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/concurrency/KTThreadPool.h"
#include "platform/defaults/KTUserDefaults.h"

#include <numbers>

namespace {

constexpr const char* kMode = "KTGeotaggingModeDefault";
constexpr unsigned kTransition = 3; // kind of animation
/// As many places are asked for at once of a server, which wants a second for
/// each; others when they are looked at.
constexpr std::size_t kPlacesFromServer = 3;

} // namespace

KTGeotaggingController::KTGeotaggingController(KTPhotoController& photoController,
                                               KTAppTrackPickerController& trackPicker,
                                               KTBatchOperationController& batchOperationController)
    : photos(photoController), picker(trackPicker), batches(batchOperationController),
      formerMode(geotaggingMode()), self(std::make_shared<KTGeotaggingController*>(this)) {}

KTGeotaggingController::~KTGeotaggingController() {
    tearDown();
}

void KTGeotaggingController::setup() {
    tagger = std::make_unique<KTGeotagger>(
        photos, KTAsynchronousWaymark::TrackManagers{&picker.trackManager()}, batches);
    photosObservation = photos.observe([alive = std::weak_ptr(self)](const KTChange& change) {
        if (change.key == "selectedPhotoIndexes" && !change.isPrior)
            updateSoon(alive, false);
    });
    // Runs on the geotagger's queue, perhaps while the controller ends.
    geotaggerObservation = tagger->observe([alive = std::weak_ptr(self)](const KTChange& change) {
        if (change.isPrior)
            return;
        if (change.key == "hasLoadedValidTracks")
            updateSoon(alive, false);
        else if (change.key == "batchPointArray" || change.key == "standardPointArray")
            updateSoon(alive, true);
    });
    tagger->setup();
    tagger->setShouldActivelyGeotag(isShowing);
    updateGeotaggingModeStatus();
    updateMapFunctionsEnabledStatus();
}

void KTGeotaggingController::tearDown() {
    photosObservation.stop();
    geotaggerObservation.stop();
    if (tagger)
        tagger->tearDown();
}

/// The geotagger announces its computations on a queue of its own, on which
/// nobody may wait.
void KTGeotaggingController::updateSoon(const std::weak_ptr<KTGeotaggingController*>& alive, bool ofPoints) {
    KTPerformOnMainThread([ofPoints, alive] {
        const auto controller = alive.lock();
        if (!controller || !(*controller)->geotaggerObservation.isObserving())
            return;
        if (ofPoints) {
            (*controller)->updateLinkerPoints();
            (*controller)->updateMapFunctionsEnabledStatus();
        } else {
            (*controller)->updateGeotaggingModeStatus();
        }
    });
}

unsigned KTGeotaggingController::geotaggingMode() const {
    return unsigned(KTUserDefaults::standardUserDefaults().integerForKey(kMode));
}

void KTGeotaggingController::setGeotaggingMode(unsigned mode) {
    const unsigned former = geotaggingMode();
    set("lastGeotaggingMode", formerMode, former);
    willChange("geotaggingMode");
    if ((former == KTGeotaggingModeBatch && mode == KTGeotaggingModeStandard) ||
        (former == KTGeotaggingModeStandard && mode == KTGeotaggingModeBatch))
        shouldStartModeTransition = true;
    KTUserDefaults::standardUserDefaults().setValue(kMode, std::int64_t(mode));
    didChange("geotaggingMode");
    if (!tagger)
        return;
    updateGeotaggingModeStatus();
    updateLinkerPoints();
    updateMapFunctionsEnabledStatus();
}

void KTGeotaggingController::updateGeotaggingModeStatus() {
    const unsigned mode = geotaggingMode();
    const std::size_t count = photos.selectedPhotoIndexes().size();
    unsigned next = status;
    if (mode == KTGeotaggingModeManual)
        next = KTGeotaggingStatusManual;
    else if (!tagger->hasLoadedValidTracks())
        next = KTGeotaggingStatusNoTracks;
    else if (count == 0)
        next = KTGeotaggingStatusNoSelection;
    else if (mode == KTGeotaggingModeBatch)
        next = KTGeotaggingStatusBatch;
    else if (mode == KTGeotaggingModeStandard)
        next = count < 2 ? KTGeotaggingStatusSingle : KTGeotaggingStatusSeveral;
    if (next == KTGeotaggingStatusBatch || next == KTGeotaggingStatusSingle ||
        next == KTGeotaggingStatusSeveral)
        selectNearPhotosAndRecentImportsInTrackPicker();
    set("geotaggingModeStatus", status, next);
}

void KTGeotaggingController::selectNearPhotosAndRecentImportsInTrackPicker() {
    const auto& selected = picker.selectedSourceList();
    if (selected != picker.recentImports() && selected != picker.nearPhotosAndRecentImports())
        picker.setSelectedSourceList(picker.nearPhotosAndRecentImports());
}

KTGeotaggingController::Points KTGeotaggingController::targetPoints() const {
    switch (geotaggingMode()) {
    case KTGeotaggingModeBatch:
        return tagger->batchPointArray();
    case KTGeotaggingModeStandard:
        return tagger->standardPointArray();
    default:
        return {};
    }
}

void KTGeotaggingController::updateLinkerPoints() {
    replaceActivePoints(targetPoints());
}

void KTGeotaggingController::replaceActivePoints(Points target) {
    if (active == target && !shouldStartModeTransition)
        return;
    const std::unordered_set<Point> before(active.begin(), active.end()), after(target.begin(), target.end());
    std::vector<Animation> begun;
    auto add = [&](Animation::Change change, unsigned kind, const Points& among,
                   const std::unordered_set<Point>& other, bool wanted) {
        Animation animation{change, kind, {}};
        for (const Point& point : among)
            if (other.contains(point) == wanted)
                animation.points.push_back(point);
        if (!animation.points.empty())
            begun.push_back(std::move(animation));
    };
    if (isShowing) {
        auto kindOf = [](unsigned mode) { return mode == KTGeotaggingModeBatch ? 0u : 2u; };
        add(Animation::Change::Removed, kindOf(shouldStartModeTransition ? formerMode : geotaggingMode()),
            active, after, false);
        add(Animation::Change::Added, kindOf(geotaggingMode()), target, before, false);
    }
    if (std::exchange(shouldStartModeTransition, false))
        add(Animation::Change::Moved, kTransition, target, before, true);
    set("currentAnimations", animations, std::move(begun));

    for (const Point& point : active)
        if (!after.contains(point) && point->objectOwner() == this)
            point->setObjectOwner(nullptr);
    willChange("activeLinkablePoints");
    willChange("spatialObjects");
    active = std::move(target);
    for (const Point& point : active)
        point->setObjectOwner(this);
    didChange("spatialObjects");
    didChange("activeLinkablePoints");
    if (isShowing)
        fetchPlaces();
}

/// Looks up the places of the shown points at once, beside the main thread:
/// there may be thousands.
void KTGeotaggingController::fetchPlaces() const {
    const bool isServer = KTUserDefaults::standardUserDefaults().textForKey("reverseGeocoder") == "server";
    if (active.empty() || (isServer && active.size() > kPlacesFromServer))
        return;
    KTRunOnThreadPool([points = active] {
        for (const Point& point : points)
            point->fetchLocationDescription();
    });
}

void KTGeotaggingController::updateMapFunctionsEnabledStatus() {
    for (const char* key : {"canZoomToFlags", "canRotateFlags"}) {
        willChange(key);
        didChange(key);
    }
}

void KTGeotaggingController::setShouldShowSpatialObjects(bool shows) {
    if (tagger)
        tagger->setShouldActivelyGeotag(shows);
    const bool wasShowing = isShowing;
    willChange("spatialObjects");
    set("shouldShowSpatialObjects", isShowing, shows);
    didChange("spatialObjects");
    std::vector<Animation> begun;
    if (shows != wasShowing && !active.empty())
        begun.push_back(
            {shows ? Animation::Change::Added : Animation::Change::Removed, geotaggingMode(), active});
    set("currentAnimations", animations, std::move(begun));
    if (shows)
        fetchPlaces();
    if (map != nullptr && geotaggingMode() == KTGeotaggingModeManual)
        map->setShouldShowCrosshairs(shows);
}

std::string KTGeotaggingController::name() const {
    return KTLocalizedString("Linkable Points");
}

KTGeotaggingController::Objects KTGeotaggingController::spatialObjects() const {
    return isShowing ? Objects(active.begin(), active.end()) : Objects();
}

void KTGeotaggingController::setFlagRotation(double radians) {
    set("flagRotation", rotation, radians);
    if (map != nullptr)
        map->setNeedsDisplay();
}

void KTGeotaggingController::toggleFlagRotation() {
    setFlagRotation(rotation > std::numbers::pi / 4 ? 0 : std::numbers::pi / 2);
}

void KTGeotaggingController::zoomToFitActiveLinkablePoints() {
    if (map != nullptr)
        map->fitSpatialObjects(Objects(active.begin(), active.end()));
}
