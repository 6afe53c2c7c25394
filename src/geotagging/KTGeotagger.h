#pragma once
#include "collection/KTBatchOperationController.h"
#include "collection/SelectedPhotoObserver.h"
#include "geotagging/KTAsynchronousWaymark.h"
#include "geotagging/KTGeotaggingComputation.h"
#include "platform/concurrency/KTDataAddSource.h"

/// Decides from which track point each selected photo takes its place, under the user's criteria, and has the
/// decisions carried out. For several photos it publishes what a batch would do, for a single one the
/// candidates to pick from.
///
/// Computations run on a queue of their own, one at a time, as long as shouldActivelyGeotag; whatever may
/// change their result asks for one: selection, criteria, linked points, tracks, photos that get or lose a
/// position, the end of a batch. Requests merge.
///
/// Observable under the names of its properties: "batchPointArray", which stands for all that a computation
/// brings, on the computing queue; everything else on the main thread. For the main thread, but what says
/// otherwise.
class KTGeotagger : public KTObservable {
public:
    using Photos = KTPhotoManager::Photos;
    using Point = KTLinkedPoints::Point;
    using Points = KTGeotaggingComputation::Points;
    using Operations = KTGeotaggingComputation::Operations;
    using Computation = std::shared_ptr<const KTGeotaggingComputation>;

    /// @p controller shows the photos and their selection, @p trackManagers are as KTAsynchronousWaymark
    /// takes them, @p batches carries out. All must outlive the geotagger.
    KTGeotagger(KTPhotoController& controller, KTAsynchronousWaymark::TrackManagers trackManagers,
                KTBatchOperationController& batches);
    ~KTGeotagger() override; ///< as tearDown()
    void setup();
    void tearDown();

    const std::shared_ptr<KTAsynchronousWaymark>& asynchronousWaymark() const { return linker; }
    /// "shouldActivelyGeotag", false at first. Setting it to true asks for a computation; any thread.
    bool shouldActivelyGeotag() const { return isActive; }
    void setShouldActivelyGeotag(bool isWanted);
    /// "hasLoadedValidTracks", as the linker has it.
    bool hasLoadedValidTracks() const { return hasTracks; }
    /// "isBatchOperationInProgress": from batchSave until its end.
    bool isBatchOperationInProgress() const { return isSavingBatch; }

    // Settings, kept in the user defaults; any thread. All but the first make a new computation.
    bool shouldAutoAdvanceToNextPhoto() const;
    void setShouldAutoAdvanceToNextPhoto(bool shouldAdvance);
    bool shouldUseDistanceRestriction() const { return criteria().shouldUseDistanceRestriction; }
    void setShouldUseDistanceRestriction(bool isUsed);
    bool shouldUseTimeRestriction() const { return criteria().shouldUseTimeRestriction; }
    void setShouldUseTimeRestriction(bool isUsed);
    bool shouldANDRestrictions() const { return criteria().shouldANDRestrictions; }
    void setShouldANDRestrictions(bool mustBothHold);
    bool shouldUseTimeWeightedAverage() const { return criteria().shouldUseTimeWeightedAverage; }
    void setShouldUseTimeWeightedAverage(bool isUsed);
    bool shouldIgnorePreviouslyTaggedPhotos() const { return criteria().shouldIgnorePreviouslyTaggedPhotos; }
    void setShouldIgnorePreviouslyTaggedPhotos(bool areIgnored);
    /// Metres between the neighbouring track points, inclusive; what is not above 0 is kept as 0.
    double distanceRestriction() const { return criteria().distanceRestriction; }
    void setDistanceRestriction(double metres);
    /// Seconds from the photo to the nearer track point, exclusive; as above.
    double timeRestriction() const { return criteria().timeRestriction; }
    void setTimeRestriction(double seconds);
    static KTGeotaggingCriteria criteria();

    // The last computation. Any thread; never null, empty before the first.
    Computation computation() const;
    /// The point chosen for each accepted photo, in the order of the selection.
    Points batchPointArray() const { return computation()->batchPointArray; }
    /// New operations, one for each of them.
    Operations operationArray() const { return computation()->operations(); }
    std::size_t totalSuccesses() const { return counters().totalSuccesses; }
    std::size_t totalPreceding() const { return counters().totalPreceding; }
    std::size_t totalNext() const { return counters().totalNext; }
    std::size_t totalFailures() const { return counters().totalFailures(); }
    std::size_t previouslyGeotaggedFailures() const { return counters().previouslyGeotaggedFailures; }
    std::size_t noDateTimeOriginalFailures() const { return counters().noDateTimeOriginalFailures; }
    std::size_t timeCriteriaFailures() const { return counters().timeCriteriaFailures; }
    std::size_t distanceCriteriaFailures() const { return counters().distanceCriteriaFailures; }
    std::size_t timeAndDistanceFailures() const { return counters().timeAndDistanceFailures; }

    // The candidates of a single selected photo; null where there is none. Any thread.
    Point precedingPoint() const { return candidate(&KTLinkedPoints::preceding); }
    Point nextPoint() const { return candidate(&KTLinkedPoints::next); }
    Point timeWeightedPoint() const { return candidate(&KTLinkedPoints::interpolated); }
    /// Those that exist, in the order preceding, next, time-weighted.
    Points standardPointArray() const;

    // Writing
    /// Write one candidate into the single selected photo, and advance to the next photo. Nothing happens
    /// when there is no such candidate, or when it no longer is one of that photo.
    void savePrecedingPoint() { saveCandidate(&KTLinkedPoints::preceding); }
    void saveNextPoint() { saveCandidate(&KTLinkedPoints::next); }
    void saveTimeWeightedPoint() { saveCandidate(&KTLinkedPoints::interpolated); }
    /// Selects the next photo, if shouldAutoAdvanceToNextPhoto.
    void advanceToNextPhoto();
    /// Carries out what the last computation proposes, as one batch; no effect while one is in progress.
    void batchSave();
    /// Write one given point into many photos, as one batch: as the place where they were taken, or as the
    /// place that they show.
    void geotagPhotos(const Photos& photos, const Point& toLinkablePoint);
    void geotagPhotosToLocationShown(const Photos& photos, const Point& withLinkablePoint);

private:
    using Candidate = Point KTLinkedPoints::*;
    using Setter = void (KTPhoto::*)(const Point&);
    using Links = KTLinkingOperation::Result;

    void setBoolean(std::string_view setting, bool isOn);
    void setRestriction(std::string_view setting, double value);
    void updateGeotags();
    void computeTrackPointsWithBatchCriteriaForPhotos(const Photos& photos);
    void updateNearbyTrackPoints();
    void setCandidates(Links links);
    Point candidate(Candidate which) const;
    void saveCandidate(Candidate which);
    void geotag(const Photos& photos, const Point& point, Setter setter);
    void handOver(const KTGeotaggingComputation& proposed);
    void endBatch(bool sparesGeotagged);
    void setIsBatchOperationInProgress(bool isInProgress);
    void takeOverHasLoadedValidTracks();
    void observeLinker();
    void observeSettings();
    void requestUpdateAfterEdit();
    KTGeotaggingCounters counters() const { return computation()->counters; }

    KTPhotoController& photoController;
    KTBatchOperationController& batchOperationController;
    const std::shared_ptr<KTAsynchronousWaymark> linker;
    std::atomic<bool> isActive = false;
    bool hasTracks = false, isSavingBatch = false; // for the main thread

    mutable std::mutex mutex; // guards what follows; never held while announcing
    Computation latest = std::make_shared<const KTGeotaggingComputation>();
    Links candidates; // of the single selected photo

    std::unique_ptr<SelectedPhotoObserver> selectionObserver;
    Observation controllerObservation, linkerObservation, batchObservation, settingsObservation;
    const std::shared_ptr<KTGeotagger*> self; // for what is posted to the main thread
    KTSerialQueue updateGeotagsQueue{"com.Brightfold.KTGeotagger.updateGeotagsQueue",
                                     KTSerialQueue::Kind::Announcing}; // its tasks use what stands above
    const std::shared_ptr<KTDataAddSource> updateGeotagsSource;
};
