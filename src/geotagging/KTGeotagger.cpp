#include "geotagging/KTGeotagger.h"

#include "photo/KTPhoto.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/defaults/KTUserDefaults.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::string_view kAutoAdvance = "shouldAutoAdvanceToNextPhotoDefault";

/// The settings that decide a computation's result.
constexpr std::string_view kCriteria[] = {
    "shouldUseDistanceRestriction",      "distanceRestriction", "shouldANDRestrictions",
    "shouldUseTimeRestriction",          "timeRestriction",     "shouldUseTimeWeightedAverage",
    "shouldIgnorePreviouslyTaggedPhotos"};

bool isFollowed(std::string_view key) {
    return key == "isGeotagged";
}

} // namespace

KTGeotagger::KTGeotagger(KTPhotoController& controller, KTAsynchronousWaymark::TrackManagers trackManagers,
                         KTBatchOperationController& batches)
    : photoController(controller), batchOperationController(batches),
      linker(std::make_shared<KTAsynchronousWaymark>(controller, std::move(trackManagers))),
      self(std::make_shared<KTGeotagger*>(this)), updateGeotagsSource(std::make_shared<KTDataAddSource>(
                                                      updateGeotagsQueue, [this] { updateGeotags(); })) {}

KTGeotagger::~KTGeotagger() {
    tearDown();
    updateGeotagsSource->cancel();
}

void KTGeotagger::setup() {
    selectionObserver = std::make_unique<SelectedPhotoObserver>(
        photoController.photoManager(), isFollowed,
        SelectedPhotoObserver::Handlers{
            [this](const Photos&) { updateGeotagsSource->mergeData(); },
            [this](const KTPhoto&, std::string_view) { requestUpdateAfterEdit(); }});
    controllerObservation = photoController.observe([this](const KTChange& change) {
        if (!change.isPrior && change.key == "isBatchGeotagRemovalInProgress")
            requestUpdateAfterEdit();
    });
    batchObservation = batchOperationController.observe([this](const KTChange& change) {
        if (!change.isPrior && change.key == "batchSaveInProgress")
            requestUpdateAfterEdit();
    });
    observeLinker();
    observeSettings();
    linker->setup();
}

/// Announcements of other threads may still be on their way when the geotagger is gone; so their handlers
/// know no more than the source.
void KTGeotagger::observeLinker() {
    linkerObservation = linker->observe(
        [this, links = linker.get(), source = std::weak_ptr(updateGeotagsSource)](const KTChange& change) {
            if (change.key == "hasLoadedValidTracks")
                takeOverHasLoadedValidTracks();
            else if (change.key == "didProcessSelectedPhotos" && links->didProcessSelectedPhotos())
                if (const auto alive = source.lock())
                    alive->mergeData();
        });
}

void KTGeotagger::observeSettings() {
    settingsObservation = KTUserDefaults::standardUserDefaults().observe(
        [source = std::weak_ptr(updateGeotagsSource)](const KTChange& change) {
            if (change.isPrior || std::ranges::find(kCriteria, change.key) == std::ranges::end(kCriteria))
                return;
            if (const auto alive = source.lock())
                alive->mergeData();
        });
}

void KTGeotagger::tearDown() {
    linker->tearDown();
    for (Observation* observation :
         {&controllerObservation, &linkerObservation, &batchObservation, &settingsObservation})
        observation->stop();
    selectionObserver = nullptr;
}

void KTGeotagger::takeOverHasLoadedValidTracks() {
    willChange("hasLoadedValidTracks");
    hasTracks = linker->hasLoadedValidTracks();
    didChange("hasLoadedValidTracks");
    updateGeotagsSource->mergeData();
}

/// While many photos are edited one after the other, one computation at the end does.
void KTGeotagger::requestUpdateAfterEdit() {
    if (!photoController.isBatchGeotagRemovalInProgress() && !batchOperationController.batchSaveInProgress())
        updateGeotagsSource->mergeData();
}

void KTGeotagger::setShouldActivelyGeotag(bool isWanted) {
    willChange("shouldActivelyGeotag");
    isActive = isWanted;
    didChange("shouldActivelyGeotag");
    if (isWanted)
        updateGeotagsSource->mergeData();
}

KTGeotaggingCriteria KTGeotagger::criteria() {
    return KTGeotaggingCriteria::criteriaFromDefaults(KTUserDefaults::standardUserDefaults());
}

bool KTGeotagger::shouldAutoAdvanceToNextPhoto() const {
    return KTUserDefaults::standardUserDefaults().boolForKey(kAutoAdvance);
}

void KTGeotagger::setShouldAutoAdvanceToNextPhoto(bool shouldAdvance) {
    setBoolean(kAutoAdvance, shouldAdvance);
}

void KTGeotagger::setShouldUseDistanceRestriction(bool isUsed) {
    setBoolean("shouldUseDistanceRestriction", isUsed);
}

void KTGeotagger::setShouldUseTimeRestriction(bool isUsed) {
    setBoolean("shouldUseTimeRestriction", isUsed);
}

void KTGeotagger::setShouldANDRestrictions(bool mustBothHold) {
    setBoolean("shouldANDRestrictions", mustBothHold);
}

void KTGeotagger::setShouldUseTimeWeightedAverage(bool isUsed) {
    setBoolean("shouldUseTimeWeightedAverage", isUsed);
}

void KTGeotagger::setShouldIgnorePreviouslyTaggedPhotos(bool areIgnored) {
    setBoolean("shouldIgnorePreviouslyTaggedPhotos", areIgnored);
}

void KTGeotagger::setDistanceRestriction(double metres) {
    setRestriction("distanceRestriction", metres);
}

void KTGeotagger::setTimeRestriction(double seconds) {
    setRestriction("timeRestriction", seconds);
}

void KTGeotagger::setBoolean(std::string_view setting, bool isOn) {
    KTUserDefaults::standardUserDefaults().setValue(setting, isOn);
}

void KTGeotagger::setRestriction(std::string_view setting, double value) {
    KTUserDefaults::standardUserDefaults().setValue(
        setting, KTDecimal::fromDouble(KTGeotaggingCriteria::restrictionFromInput(value)));
}

KTGeotagger::Computation KTGeotagger::computation() const {
    std::lock_guard guard(mutex);
    return latest;
}

/// A task of the computing queue.
void KTGeotagger::updateGeotags() {
    if (!isActive)
        return;
    computeTrackPointsWithBatchCriteriaForPhotos(*photoController.selectedPhotos());
    KTPerformOnMainThread([weak = std::weak_ptr(self)] {
        if (const auto alive = weak.lock())
            (*alive)->updateNearbyTrackPoints();
    });
}

/// A task of the computing queue.
void KTGeotagger::computeTrackPointsWithBatchCriteriaForPhotos(const Photos& photos) {
    auto computed = std::make_shared<const KTGeotaggingComputation>(
        KTGeotaggingComputation::computationOf(photos, criteria(), *linker));
    willChange("batchPointArray");
    {
        std::lock_guard guard(mutex);
        latest.swap(computed);
    }
    didChange("batchPointArray");
}

void KTGeotagger::updateNearbyTrackPoints() {
    const auto selected = photoController.selectedPhotos();
    setCandidates(selected->size() == 1 ? linker->linkedPointsForPhoto(selected->back()) : nullptr);
}

void KTGeotagger::setCandidates(Links links) {
    constexpr std::string_view keys[] = {"precedingPoint", "nextPoint", "timeWeightedPoint",
                                         "standardPointArray"};
    {
        std::lock_guard guard(mutex);
        if (links == candidates)
            return;
    }
    for (std::string_view key : keys)
        willChange(key);
    {
        std::lock_guard guard(mutex);
        candidates.swap(links);
    }
    for (std::string_view key : keys)
        didChange(key);
}

KTGeotagger::Point KTGeotagger::candidate(Candidate which) const {
    std::lock_guard guard(mutex);
    return candidates ? (*candidates).*which : nullptr;
}

KTGeotagger::Points KTGeotagger::standardPointArray() const {
    std::lock_guard guard(mutex);
    Points points;
    for (const Candidate which :
         {&KTLinkedPoints::preceding, &KTLinkedPoints::next, &KTLinkedPoints::interpolated})
        if (candidates && (*candidates).*which)
            points.push_back((*candidates).*which);
    return points;
}
