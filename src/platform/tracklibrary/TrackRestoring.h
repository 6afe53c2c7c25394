#pragma once
#include <cstdint>
#include <vector>

class TrackDatabase;

/// Deleted entries kept aside, by the number of their removal, in temporary tables of the writing connection:
/// they take no memory, and are gone with the connection. All throw SQLite::Exception. But for
/// prepareRestoring, inside a transaction of the caller's.

/// Makes the tables where they are missing.
void prepareRestoring(TrackDatabase& database);
/// Copies the listed entry @p track with its points and waypoints aside, before it is deleted.
void keepTrack(TrackDatabase& database, std::int64_t track, std::int64_t removal);
void forgetKeptTracks(TrackDatabase& database, std::int64_t removal);
/// Puts back what was kept, under its former ids, and forgets it. Entries of which the file has been imported
/// anew meanwhile are left out. Returns the entries that are there again.
std::vector<std::int64_t> restoreKeptTracks(TrackDatabase& database, std::int64_t removal);
