#pragma once
#include "platform/concurrency/KTOperationQueue.h"
#include "platform/observing/KTObservable.h"
#include "platform/tracklibrary/KTTrackPredicate.h"
#include "platform/tracklibrary/KTTrackRecord.h"
#include "platform/tracklibrary/KTTrackStore.h"

#include <stop_token>

class KTUndoManager;

inline constexpr std::string_view KTTrackManagerDidAddNewImportSource = "KTTrackManagerDidAddNewImportSource";
inline constexpr std::string_view KTTrackManagerDidDeleteObjects = "KTTrackManagerDidDeleteObjects";

/// What a track manager tells its handlers.
struct KTTrackNotification {
    std::string_view name;              ///< one of the two names above
    std::vector<std::int64_t> trackIDs; ///< added or deleted, as KTTrackStore lists them
};

/// Imports track files into a store, deletes from it, and tells of both. Any thread, but for what is said to
/// be for the main thread; one import at a time. Observable, on the main thread, under "importInProgress",
/// "importDescription", "importMax", "importValue" and "recentImportsPredicate".
class KTTrackManager : public KTObservable {
public:
    using Paths = std::vector<std::filesystem::path>;

    /// That of the process, on the user's library; opened at the first call. Where it cannot be opened, it
    /// stands on an empty library that is not kept, and sharedTrackManagerProblem() says why.
    static KTTrackManager& sharedTrackManager();
    /// For users; empty where there is none.
    static const std::string& sharedTrackManagerProblem();
    /// waymark/tracks.sqlite in the user's data folder.
    static std::filesystem::path userLibraryFile();

    explicit KTTrackManager(std::unique_ptr<KTTrackStore> ownedStore);
    /// Stops the import that runs and waits for it. On the main thread.
    ~KTTrackManager() override;

    KTTrackStore& store() { return *trackStore; }
    const KTTrackStore& store() const { return *trackStore; }

    /// The extensions of track files, without their dot, in small letters.
    static std::vector<std::string> validFileTypes();
    /// Whether @p path ends in one of them, in any letter case.
    static bool validFileTypePredicate(const std::filesystem::path& path);

    /// Imports the track file @p file: GPX, or through the program gpsbabel NMEA, KML, KMZ, TCX, FIT, IGC and
    /// CSV; by its extension, else by its content. All of it or, with an error that names file and line,
    /// nothing. The same content twice is there once. A file without any point or waypoint is no error and
    /// adds nothing. Once @p stop is requested, nothing is added.
    KTTrackImportResult importFile(const std::filesystem::path& file, const std::stop_token& stop = {});
    /// As KTTrackStore::deleteTracks.
    KTTrackStore::Deletion deleteTracks(const std::vector<std::int64_t>& ids);

    // In the background; for the main thread (KTTrackManagerWork.cpp)
    struct ImportOfFile {
        std::filesystem::path file;
        KTTrackImportResult result;
    };
    /// Called once, on the main thread; files that a stop left out are missing.
    using DidImport = std::function<void(const std::vector<ImportOfFile>& imports)>;
    /// Imports the files one after the other. Returns at once; a second call follows the first.
    void importFilesAtPaths(const Paths& files, DidImport didImport = {});
    /// Stops every import: the file that is being read is not added.
    void cancelImport();
    bool importInProgress() const { return isImporting; }
    /// "Importing track file 2 of 5"; empty while nothing is imported.
    const std::string& importDescription() const { return importLine; }
    std::size_t importMax() const { return filesToImport; }
    std::size_t importValue() const { return filesImported; }
    /// Deletes the listed entries, which @p undo can bring back in one step; null for no undo. @p didRemove,
    /// which may be missing, is told why it could not be done, else an empty text, on the main thread.
    void removeTracks(const std::vector<std::int64_t>& ids, const std::shared_ptr<KTUndoManager>& undo,
                      std::function<void(const std::string& error)> didRemove = {});
    /// Whether nothing is left to import or to remove.
    bool isIdle() const { return work.operationCount() == 0; }

    /// What the last run of importFilesAtPaths brought, or found to be there; before the first one, what was
    /// imported in the hour before the latest import.
    KTTrackPredicate recentImportsPredicate() const;
    /// The tracks and waypoints of that predicate.
    std::vector<KTTrackRecord> recentImports() const;

    /// What was recorded at most a day before or after one of @p dates, which may come in any order. A day,
    /// because a camera's clock may be set to any zone of the world.
    KTNearbyPredicates nearbyPredicatesForDates(std::vector<KTInstant> dates) const;
    /// The tracks and routes that the predicate means, in the order of their import; of a track's time only
    /// its first and last point are looked at.
    std::vector<KTTrack> tracksForPredicate(const KTTrackPredicate& predicate) const;
    /// The waypoints that are dated so, in the order of their dates, then the others of the predicate's
    /// imports; undated ones are near nothing.
    std::vector<KTWaypoint> waypointsForPredicate(const KTTrackPredicate& predicate) const;

    /// Called on the thread that imported or deleted, after the change is committed and outside every lock,
    /// in the order of registration.
    using Handler = std::function<void(const KTTrackNotification& notification)>;
    /// Returns the number by which the handler is removed. After removal no new call of it begins.
    int addHandler(Handler handler);
    void removeHandler(int number);

private:
    struct ImportRun;
    struct Removal;

    void post(const KTTrackNotification& notification);
    void importRun(const std::shared_ptr<ImportRun>& run);
    void finishRun(const ImportRun& run);
    void setImportProgress(std::size_t value);
    void remove(const std::shared_ptr<Removal>& removal);
    void bringBack(const std::shared_ptr<Removal>& removal);
    void onMainThread(std::function<void(KTTrackManager&)> call);
    template<class Property>
    void set(std::string_view key, Property& property, Property value);

    std::unique_ptr<KTTrackStore> trackStore;
    std::mutex handlersMutex;
    std::map<int, Handler> handlers;
    int lastNumber = 0;
    mutable std::mutex recentMutex;
    mutable std::optional<KTTrackPredicate> recent;

    // The main thread's.
    bool isImporting = false;
    std::string importLine;
    std::size_t filesToImport = 0, filesImported = 0, runs = 0;
    std::int64_t lastRemoval = 0;
    std::stop_source importStop;

    const std::shared_ptr<KTTrackManager*> self; // for what is posted to the main thread
    KTOperationQueue work;                       // last: its end is waited for first
};
