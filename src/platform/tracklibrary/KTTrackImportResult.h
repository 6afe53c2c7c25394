#pragma once
#include <cstdint>
#include <string>
#include <vector>

/// What came of importing one track file.
struct KTTrackImportResult {
    std::string error;            ///< for users, naming file and line; empty after success
    std::int64_t source = 0;      ///< as KTTrack::source numbers imports; 0 for a file that held nothing
    bool alreadyImported = false; ///< the same content is in the library; ids and counts are of what is there
    std::vector<std::int64_t> trackIDs; ///< of tracks, routes and waypoints, as KTTrackStore lists them
    std::int64_t trackCount = 0;
    std::int64_t routeCount = 0;
    std::int64_t pointCount = 0; ///< of tracks and routes
    std::int64_t datedPointCount = 0;
    std::int64_t waypointCount = 0;

    bool succeeded() const { return error.empty(); }
    /// Whether the library holds more than before.
    bool addedSomething() const { return succeeded() && !alreadyImported && !trackIDs.empty(); }
};
