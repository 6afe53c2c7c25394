#pragma once
#include "platform/tracklibrary/KTTrackPredicate.h"
#include "platform/tracklibrary/KTTrackStore.h"

inline constexpr std::string_view KTTrackManagerDidAddNewImportSource = "KTTrackManagerDidAddNewImportSource";
inline constexpr std::string_view KTTrackManagerDidDeleteObjects = "KTTrackManagerDidDeleteObjects";

/// What a track manager announces.
struct KTTrackNotification {
    std::string_view name;              ///< one of the two names above
    std::vector<std::int64_t> trackIDs; ///< added or deleted, as KTTrackStore lists them
};

/// Imports track files into a store, deletes from it, and announces both. Any thread; one import at a time.
class KTTrackManager {
public:
    explicit KTTrackManager(std::unique_ptr<KTTrackStore> ownedStore) : trackStore(std::move(ownedStore)) {}

    KTTrackStore& store() { return *trackStore; }
    const KTTrackStore& store() const { return *trackStore; }

    /// Imports the track file @p file: GPX, or through the program gpsbabel NMEA, KML, KMZ, TCX, FIT, IGC and
    /// CSV; by its extension, else by its content. All of it or, with an error that names file and line,
    /// nothing. The same content twice is there once. A file without any point or waypoint is no error and
    /// adds nothing.
    KTTrackImportResult importFile(const std::filesystem::path& file);
    /// As KTTrackStore::deleteTracks.
    KTTrackStore::Deletion deleteTracks(const std::vector<std::int64_t>& ids);

    /// What was recorded at most a day before or after one of @p dates, which may come in any order. A day,
    /// because a camera's clock may be set to any zone of the world.
    KTNearbyPredicates nearbyPredicatesForDates(std::vector<KTInstant> dates) const;
    /// The tracks with dated points, in the order of their import, of which a part may lie in one of the
    /// predicate's spans: their time from the first to the last point is looked at.
    std::vector<KTTrack> tracksForPredicate(const KTTrackPredicate& predicate) const;
    /// The waypoints that are dated so, in the order of their dates; undated ones are near nothing.
    std::vector<KTWaypoint> waypointsForPredicate(const KTTrackPredicate& predicate) const;

    /// Called on the thread that imported or deleted, after the change is committed and outside every lock,
    /// in the order of registration.
    using Handler = std::function<void(const KTTrackNotification& notification)>;
    /// Returns the number by which the handler is removed. After removal no new call of it begins.
    int addHandler(Handler handler);
    void removeHandler(int number);

private:
    void post(const KTTrackNotification& notification);

    std::unique_ptr<KTTrackStore> trackStore;
    std::mutex handlersMutex;
    std::map<int, Handler> handlers;
    int lastNumber = 0;
};
