#pragma once
#include <cstdint>

class TrackDatabase;

/// Deletes the listed entry @p track with its points and waypoints, and its source with its last entry.
/// Inside a transaction of the caller's. False when there is no such entry. Throws SQLite::Exception.
bool removeTrack(TrackDatabase& database, std::int64_t track);
/// Deletes all of @p source. Inside a transaction of the caller's. Throws SQLite::Exception.
void removeSource(TrackDatabase& database, std::int64_t source);
