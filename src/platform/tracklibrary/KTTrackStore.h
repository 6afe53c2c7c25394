#pragma once
#include "platform/tracklibrary/KTTrack.h"
#include "platform/tracklibrary/KTTrackImportResult.h"
#include "platform/tracklibrary/KTTrackPosition.h"
#include "platform/tracklibrary/TrackFileContent.h"
#include "platform/tracklibrary/TrackFileSink.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <stop_token>

/// The tracks, routes and waypoints of a library, in one SQLite file. Every function may be called on any
/// thread and throws nothing but std::bad_alloc.
///
/// A library in a file is read through a connection of its own: searches see what was committed last and do
/// not wait for an import that runs meanwhile, in this process or another. A library in memory has one
/// connection, so there they wait. Writing is one at a time.
class KTTrackStore {
public:
    struct Opened {
        std::unique_ptr<KTTrackStore> store; ///< nothing on error
        std::string error;                   ///< for users, naming the file
    };
    /// Opens the library @p file, made with its folders when missing; ":memory:" gives an empty one that is
    /// not kept. A file that is damaged, of another program or of a newer version is an error and stays as it
    /// is.
    static Opened open(const std::filesystem::path& file);
    ~KTTrackStore();
    KTTrackStore(const KTTrackStore&) = delete;
    KTTrackStore& operator=(const KTTrackStore&) = delete;

    /// The last point with a position dated before @p time; of several at one instant the one imported last.
    /// A failed search is logged and finds nothing.
    std::optional<KTGeoPoint> pointPrecedingTime(KTInstant time) const;
    /// The first point with a position dated at or after @p time; of several at one instant the one imported
    /// first.
    std::optional<KTGeoPoint> pointFollowingTime(KTInstant time) const;
    /// How many points have a date, with or without position, counted up to @p limit; 0 after a logged error.
    std::int64_t countOfDatedPoints(std::int64_t limit = INT64_MAX) const;

    /// Everything that is there, in the order of its import; empty after a logged error.
    std::vector<KTTrack> tracks() const;
    /// The waypoints of one listed entry, in the order of the file; empty after a logged error.
    std::vector<KTWaypoint> waypoints(std::int64_t track) const;
    /// The waypoints dated from @p first to @p last, both included, in the order of their dates; empty after
    /// a logged error.
    std::vector<KTWaypoint> waypointsBetween(KTInstant first, KTInstant last) const;
    /// The points of one listed entry, in the order of the file; empty after a logged error.
    std::vector<std::vector<KTGeoPoint>> segments(std::int64_t track) const;

    /// The same points as doubles, for maps: those with a position. Reads through a connection of its own.
    std::vector<std::vector<KTTrackPosition>> positions(std::int64_t track) const;

    /// Writes the listed entries @p ids as one GPX 1.1 file, streaming. Points without position are left out.
    /// Returns an error for users, else an empty text; with an unknown id nothing is written.
    std::string exportGPX(const std::vector<std::int64_t>& ids, std::ostream& out) const;

    struct Deletion {
        std::vector<std::int64_t> deleted;
        std::vector<std::int64_t> unknown; ///< ids that were not there
        std::string error;                 ///< for users; nothing was deleted then
    };
    /// Deletes the listed entries @p ids with their points, in one transaction. A file of which anything was
    /// deleted can be imported again.
    Deletion deleteTracks(const std::vector<std::int64_t>& ids);
    /// The same, keeping them aside so that restoreTracks can bring them back, up to the end of the process.
    /// Of several removals of one @p removal, a number of the caller's, the last one counts.
    Deletion deleteTracks(const std::vector<std::int64_t>& ids, std::int64_t removal);
    struct Restoration {
        std::vector<std::int64_t> restored; ///< under their former ids
        std::string error;                  ///< for users; nothing was restored then
    };
    /// Brings back what the deletion of that number kept aside, once, as it was. What has meanwhile been
    /// imported again from the same file is not brought back.
    Restoration restoreTracks(std::int64_t removal);

    /// Passes the positions of one listed entry's points, or waypoints, to @p visit, in the order of the
    /// file, with true for the first of each segment. Reads through a connection of its own. Nothing after a
    /// logged error.
    void visitPositions(
        std::int64_t track,
        const std::function<void(double longitude, double latitude, bool beginsSegment)>& visit) const;
    /// Metres along the points of one listed entry, those between two segments left out; nothing where it has
    /// no two points in a row.
    std::optional<double> lengthOfTrack(std::int64_t track) const;
    /// For each of these instants the entry whose point is dated so; of several the one imported last.
    /// Nothing where there is none.
    std::vector<std::optional<std::int64_t>> tracksWithPointsAt(const std::vector<KTInstant>& times) const;
    /// The imports of the hour before the latest one, as KTTrack::source numbers them, ascending.
    std::vector<std::int64_t> recentSources() const;

    /// Reads one track file into the sink that it is given. Called on a thread of its own.
    using Read = std::function<TrackFileContent(TrackFileSink& sink)>;
    /// Imports what @p read reads of @p file, in one transaction: all of it or nothing. Content that is there
    /// already is not added again; of content that was deleted in part, the rest is replaced.
    /// Once @p stop is requested, nothing is imported, with an error that says so.
    KTTrackImportResult importTracks(const std::filesystem::path& file, const Read& read,
                                     const std::stop_token& stop = {});
    /// The earlier import of a file of this content, when all of it is still there.
    std::optional<KTTrackImportResult> importedContent(const std::string& hash) const;
    /// Whether a file of @p size bytes has been imported; false is reason enough not to hash a file
    /// beforehand.
    bool hasImportOfSize(std::int64_t size) const;

private:
    struct Connections;

    explicit KTTrackStore(std::unique_ptr<Connections> opened);

    std::unique_ptr<Connections> connections;
};
