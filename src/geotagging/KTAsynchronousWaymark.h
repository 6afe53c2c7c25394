#pragma once
#include "collection/KTPhotoController.h"
#include "geotagging/KTLinkingOperation.h"
#include "platform/tracklibrary/KTTrackManager.h"

/// The linker: keeps, for every photo that the photo controller arranges, its candidate locations from the
/// tracks. It finds them again when the photo's capture instant changes, and for all photos when tracks come
/// or go; until the new ones are there, a photo has none. Made with std::make_shared.
///
/// Observable, after changes of their values alone: "hasLoadedValidTracks" on the main thread, and
/// "didProcessSelectedPhotos" on the thread that brings the change about.
class KTAsynchronousWaymark : public KTObservable,
                              public std::enable_shared_from_this<KTAsynchronousWaymark> {
public:
    using Photo = KTPhotoManager::Photo;
    using Photos = KTPhotoManager::Photos;
    using Point = KTLinkedPoints::Point;
    using TrackManagers = std::vector<KTTrackManager*>;

    /// @p trackManagers are searched as if they were one; of points at one instant, those of the earlier
    /// managers win. They and @p controller must outlive tearDown().
    KTAsynchronousWaymark(KTPhotoController& controller, TrackManagers trackManagers);

    /// Links what is arranged, and from now on what changes. Main thread.
    void setup();
    /// Stops the operations, waits for the one that runs, and forgets all results. Main thread.
    void tearDown();

    // The last result of a photo, by identity; null where it has no such point, is being linked or is not
    // arranged. Any thread, at once.
    Point precedingPointForPhoto(const Photo& photo) const;
    Point nextPointForPhoto(const Photo& photo) const;
    Point interpolatedPointForPhoto(const Photo& photo) const;
    /// The three together, as they belong together; null while the photo is being linked or is not arranged.
    KTLinkingOperation::Result linkedPointsForPhoto(const Photo& photo) const;

    /// Whether any track point has a date, with or without a position.
    bool hasLoadedValidTracks() const { return hasTracks; }
    /// Whether no selected photo is being linked; true without selection.
    bool didProcessSelectedPhotos() const { return hasProcessedSelection; }

private:
    using Operation = std::shared_ptr<KTLinkingOperation>;
    using Operations = std::vector<std::shared_ptr<KTOperation>>;

    /// What is known of an arranged photo. Either it is being linked or it has a result.
    struct Link {
        Photo photo;
        Observation photoObservation;
        Operation operation; ///< the current one; null when it has delivered its result
        Observation operationObservation;
        KTLinkingOperation::Result points;
        bool isSelected = false;
    };
    struct Trash;

    template<class Change>
    void changeTable(Change&& change);
    void setObservedPhotos(const Photos& arranged);
    void addObservedPhotos(const Photos& added, Trash& trash);
    void startLinkingOperationForPhoto(const KTPhoto* photo);
    Operation startLinking(Link& link, Trash& trash);
    void stopLinking(Link& link);
    void handleFinishedLinkingOperation(const KTLinkingOperation& operation);
    void handleArrangement(const KTChange& change);
    void handleSelection();
    void handleDidAddNewImportSource();
    void checkForLoadedValidTracks();
    void setHasLoadedValidTracks(bool hasAny);

    KTPhotoController& photoController;
    const TrackManagers managers;
    const std::shared_ptr<const KTTrackPointSearch> search;
    std::vector<int> trackHandlers; // of the managers, in their order
    Observation controllerObservation;
    std::atomic<bool> hasTracks = false, hasProcessedSelection = false;

    // Guards what follows. One queue for photos and results: a photo that leaves while tracks are imported
    // must not be linked again by the one who imports.
    mutable KTSerialQueue photoOperationTableSerialQueue{"com.Brightfold.PhotoOperationSynchronizationQueue"};
    Photos observedPhotos; // in the order of their coming
    std::unordered_map<const KTPhoto*, Link> photoOperationTable;
    KTPhotoManager::Snapshot selectedPhotos;
    std::size_t selectedInFlight = 0; // selected photos that are being linked

    // Last, so that they end before what they use.
    KTSerialQueue trackCheckQueue{"waymark.TrackCheck"};
    KTOperationQueue operationQueue;
};
