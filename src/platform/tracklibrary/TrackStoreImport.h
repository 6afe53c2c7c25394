#pragma once
#include "platform/tracklibrary/KTTrackImportResult.h"
#include "platform/tracklibrary/TrackDatabase.h"
#include "platform/tracklibrary/TrackFileSink.h"
#include "platform/tracklibrary/TrackPointInserter.h"

#include <stop_token>

/// Thrown by an import that was to stop.
struct TrackImportStopped {};

/// Writes one track file into the store, inside a transaction of the caller's. Every function throws
/// SQLite::Exception, or TrackImportStopped once @p stopToken is requested; the caller then rolls back.
class TrackStoreImport : public TrackFileSink {
public:
    /// @p path names the file in the list and in an unnamed track's stead.
    TrackStoreImport(TrackDatabase& target, const std::filesystem::path& path,
                     std::stop_token stopToken = {});

    void beginTrack(KTTrack::Kind kind) override;
    void beginSegment() override;
    void addPoint(TrackFilePoint&& point) override;
    void endTrack(std::string name) override;
    void addWaypoint(TrackFileWaypoint&& waypoint) override;

    /// Completes the import of a file of @p size bytes and content @p hash, taking the place of an earlier
    /// import of the same content of which something was deleted. False, with nothing to keep, when the file
    /// held nothing.
    bool finish(std::int64_t size, const std::string& hash);
    const KTTrackImportResult& result() const { return imported; }

private:
    std::int64_t insertTrack(KTTrack::Kind kind);
    void endSegment();

    TrackDatabase& database;
    std::stop_token stop;
    TrackPointInserter points;
    std::string fileName;
    std::int64_t source = 0;
    std::int64_t segmentStart = 0;            // number of its first point
    std::int64_t waypointsTrack = 0;          // the listed entry of the waypoints, 0 before the first
    std::optional<std::int64_t> currentTrack; // inserted with its first point
    KTTrack track;                            // kind and counts of the current one
    KTTrackImportResult imported;
};

/// The import whose file had content @p hash, and whether all of it is still there.
struct TrackSourceMatch {
    std::int64_t source;
    bool isComplete;
};
std::optional<TrackSourceMatch> trackSourceWithHash(TrackDatabase& database, const std::string& hash);
/// Ids and counts of what is there of @p source, as an import that found it there reports them.
KTTrackImportResult existingImport(TrackDatabase& database, std::int64_t source);
