#pragma once
#include "collection/KTArrangedPhotos.h"
#include "collection/KTImportRecord.h"
#include "collection/KTPhotoImportHandlers.h"
#include "photo/KTPhotoReadAhead.h"
#include "platform/cartography/KTSpatialObjectController.h"
#include "platform/concurrency/KTOperationQueue.h"
#include "platform/concurrency/KTSerialQueue.h"
#include "platform/desktop/KTPasteboard.h"

#include <stop_token>

class KTBatchOperationController;
class KTPhotoChangeTracker;
class KTUndoManager;

/// Announced by the photo manager when a batch save has ended.
inline constexpr std::string_view KTPhotoControllerDidWriteUnsavedChanges =
    "KTPhotoControllerDidWriteUnsavedChanges";

/// The collection of loaded photos: their list, selection and sort, what is unsaved, the log of what was done
/// to them, imports and batch saves. Watches every loaded photo, so that each edit is entered into the
/// photo's dictionaries of changes and registered for undo. As a map layer it lists the photos from south to
/// north.
///
/// Observable under the names of its properties; lists announce insertions, removals and replacements with
/// their indexes. Lists are read as immutable snapshots on any thread; they are changed on the main thread,
/// inside `photoSerialQueue`, and announced there.
class KTPhotoManager : public KTSpatialObjectController {
public:
    using Photo = std::shared_ptr<KTPhoto>;
    using Photos = std::vector<Photo>;
    using Snapshot = std::shared_ptr<const Photos>;
    using Operations = std::vector<KTPhotoOperation>;

    static KTPhotoManager& sharedPhotoManager();
    KTPhotoManager();
    ~KTPhotoManager() override;

    // Collection
    /// "photos", in load order.
    Snapshot photos() const;
    /// How many there are; cheaper than a snapshot while they are many and come one by one.
    std::size_t numberOfPhotos() const;
    /// The one at that place of the load order, null where there is none; cheaper likewise.
    Photo photoAtIndex(std::size_t index) const;
    /// Asked for one photo, or for each of many.
    bool isLoaded(const KTPhoto& photo) const;
    void insertObject(const Photo& photo, std::size_t inPhotosAtIndex);
    void removeObjectFromPhotosAtIndex(std::size_t index);
    void replaceObjectInPhotosAtIndex(std::size_t index, const Photo& withObject);
    /// Appends a photo that was just read, if it is valid and its file is not loaded yet, and its log to the
    /// log in any case. Whether the photo was added.
    bool addNewPhoto(const Photo& photo);
    void removePhotos(const Photos& photos);
    /// Moves the photos at @p indexes of the arranged order before the one at @p toIndex, as a block, makes
    /// the result the load order, clears the sort, and selects the moved photos. Returns their new places.
    Indexes movePhotos(const Indexes& indexes, std::size_t toIndex);

    /// "photoSortDescriptors": the order of what is shown; load order while empty.
    std::vector<KTSortDescriptor> photoSortDescriptors() const;
    void setPhotoSortDescriptors(std::vector<KTSortDescriptor> descriptors);
    /// The same a little later: another thread finds the order, so that with many photos nobody waits. What
    /// was asked for last holds.
    void sortPhotosSoon(std::vector<KTSortDescriptor> descriptors);
    /// Those asked for last, which may be still on their way.
    std::vector<KTSortDescriptor> wantedSortDescriptors() const;
    /// The photos in that order, as it was when the sort was last set or a photo came.
    Snapshot arrangedPhotos() const;
    /// Those at these places of that order; cheaper than a snapshot for a few.
    Photos arrangedPhotosAtIndexes(const Indexes& indexes) const;
    /// "selectedPhotoIndexes": the selection, as indexes into the arranged photos. It stays with the photos
    /// when their order changes.
    Indexes selectedPhotoIndexes() const;
    void setSelectedPhotoIndexes(const Indexes& indexes);
    void setSelectedPhotos(const Photos& photos);
    /// In arranged order.
    Snapshot selectedPhotos() const;

    /// "unsavedPhotos", in the order in which they became unsaved.
    Snapshot unsavedPhotos() const;
    /// "photoOperations": what was done to photos since start-up.
    Operations photoOperations() const;
    /// Those from the @p first on: what an insertion at the end announced.
    Operations photoOperationsFrom(std::size_t first) const;
    void addPhotoOperations(const Operations& operations);
    /// "isSyncingWithIPhoto": whether a loaded photo belongs to a library that takes changes.
    bool isSyncingWithIPhoto() const { return photosOfLibraries > 0; }

    /// Shared with every loaded photo; set before the first is added.
    void setUndoManager(std::shared_ptr<KTUndoManager> manager, std::shared_ptr<KTSerialQueue> queue);
    std::shared_ptr<KTUndoManager> undoManager() const;
    std::shared_ptr<KTSerialQueue> undoQueue() const;
    /// Runs the saves; must outlive them.
    void setBatchOperationController(KTBatchOperationController* controller) { batches = controller; }

    // Saving
    /// Saves those of @p photos that have unsaved changes, as one batch, on the main thread. Under the
    /// setting defaultShouldBackupWhenWritingToImageFiles with backups in a new folder, named by date and
    /// time, of the chosen backup folder. Afterwards announces KTPhotoControllerDidWriteUnsavedChanges,
    /// appends what was done to the log, and runs @p didSave.
    void savePhotos(const Photos& photos, std::function<void()> didSave = {});

    // Import. Each returns at once; files are looked up and read on other threads, photos are added one after
    // the other on the main thread, ordered by path without regard to letter case.
    using ImportHandlers = KTPhotoImportHandlers;
    void importPhotosAtPaths(std::vector<std::string> paths, ImportHandlers handlers = {});
    void importPhotosAtURLs(std::vector<std::filesystem::path> files, ImportHandlers handlers = {});
    void importPhotosFromPasteboard(KTPasteboard pasteboard, ImportHandlers handlers = {});
    /// Whether an import gives each "crw" file without sidecar one on disk. Off, as commands that only look
    /// want it; on in the application.
    void setCreatesSidecarsOfRawFiles(bool creates) { createsSidecars = creates; }
    /// Cancels every import: listing stops, the photo being read is added, the rest is not read. The value is
    /// not used.
    void setShouldCancelImport(bool ignored = true);
    /// "importInProgress", "importDescription" ("Loading image 2 of 5") and "importMax", changed on the main
    /// thread.
    bool importInProgress() const { return isImporting; }
    const std::string& importDescription() const { return importLine; }
    std::size_t importMax() const { return importCount; }

    // Map layer
    std::string name() const override; ///< "Photos"
    /// The photos by latitude, those without first.
    Objects spatialObjects() const override;
    Indexes spatialObjectSelectionIndexes() const override;
    bool addSelectedSpatialObjects(const Objects& objects) override;
    bool removeSelectedSpatialObjects(const Objects&) override { return false; }

    /// Gives every photo the assumed time zone now, where its change is still being spread over several turns
    /// of the event loop. For commands that must not see mixed zones.
    void finishZoneChange();

private:
    class ImportRun;
    /// A new assumed time zone on its way to the photos, in list order.
    struct ZoneChange {
        Snapshot photos;
        std::size_t next = 0;
    };
    struct Watched {
        std::unique_ptr<KTPhotoChangeTracker> tracker;
        std::size_t logged = 0; ///< entries of the photo's log that are in the collection's
    };

    // List (KTPhotoManager.cpp)
    template<class Change>
    void changeList(KTChange::Kind kind, const Indexes& indexes, Change&& change);
    template<class Change>
    void changeSelection(Change&& change);
    template<class Change>
    void changeSort(Change&& change);
    bool hasSelection() const;
    bool isLoaded(const std::filesystem::path& file) const;
    void countPhotosOfLibraries(const Photos& coming, const Photos& leaving);

    // Observing (KTPhotoManagerObserving.cpp)
    void startObservingPhotosForUnsavedChanges(const Photos& newPhotos);
    void stopObservingPhotosForUnsavedChanges(const Photos& leaving);
    void updateUnsaved(const Photo& photo);
    void changeUnsaved(KTChange::Kind kind, const Indexes& indexes,
                       const std::function<void(Photos&)>& change);
    void followAssumedTimeZone();
    void beginZoneChange();
    static void giveAssumedTimeZone(KTPhoto& photo);
    void spreadZoneChange(std::optional<std::chrono::milliseconds> limit);

    // Import (KTPhotoManagerImport.cpp)
    using Records = std::vector<KTImportRecord>;
    using Listing = std::function<Records(const std::stop_token& stop, std::vector<std::string>& problems)>;
    void beginImport(Listing listing, ImportHandlers handlers);
    void queueImport(const std::shared_ptr<ImportRun>& run, Records records);
    void finishReading(const ImportRun& run, const std::filesystem::path& file,
                       const KTPhotoReadAhead::Result& result);
    void updateImportProgress();
    template<class Property>
    void set(std::string_view key, Property& property, Property value);

    // Saving (KTPhotoManagerSaving.cpp)
    static std::optional<std::filesystem::path> makeBackupFolder();
    void logNewOperations(const Photos& saved);

    mutable std::mutex mutex; // guards the lists; never held while announcing
    KTArrangedPhotos list;
    Photos unsaved;
    Operations operations;
    mutable Snapshot unsavedCopy;
    mutable Objects bySouthernness; // the photos by latitude, as last asked for
    mutable std::atomic<bool> isOrderedByLatitude = false;

    // The main thread's.
    KTSerialQueue photoSerialQueue{"com.Brightfold.PhotoSerialQueue", KTSerialQueue::Kind::Announcing};
    std::unordered_map<const KTPhoto*, Watched> watched; // the loaded photos
    std::unordered_set<const KTPhoto*> listedAsUnsaved;
    std::shared_ptr<KTUndoManager> undo;
    std::shared_ptr<KTSerialQueue> queueOfUndo;
    KTBatchOperationController* batches = nullptr;
    std::size_t photosOfLibraries = 0;                               // that take changes
    std::optional<ZoneChange> zoneChange;                            // under way
    std::shared_ptr<const std::vector<KTSortDescriptor>> wantedSort; // on its way
    bool createsSidecars = false;
    bool isImporting = false;
    std::string importLine;
    std::size_t importCount = 0;
    std::stop_source importStop;

    const std::shared_ptr<KTPhotoManager*> self; // for what is posted to the main thread
    Observation zoneObservation, importObservation;
    KTOperationQueue importQueue;
};
