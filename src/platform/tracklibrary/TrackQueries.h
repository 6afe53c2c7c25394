#pragma once
#include "platform/tracklibrary/KTTrack.h"
#include "platform/tracklibrary/KTTrackPosition.h"

#include <functional>
#include <iosfwd>

class TrackDatabase;

/// Reads of what the library lists, on a connection whose mutex the caller holds. All throw
/// SQLite::Exception.

std::vector<KTTrack> listTracks(TrackDatabase& database);
std::vector<KTWaypoint> waypointsOfTrack(TrackDatabase& database, std::int64_t track);
std::vector<KTWaypoint> waypointsOfTime(TrackDatabase& database, KTInstant first, KTInstant last);
std::vector<std::vector<KTGeoPoint>> segmentsOfTrack(TrackDatabase& database, std::int64_t track);
/// Its points with a position, for maps.
std::vector<std::vector<KTTrackPosition>> positionsOfTrack(TrackDatabase& database, std::int64_t track);
/// Passes the positions of a listed entry's points and waypoints to @p visit, with true for the first of a
/// segment.
void visitPositionsOfTrack(TrackDatabase& database, std::int64_t track,
                           const std::function<void(double longitude, double latitude, bool)>& visit);
/// For each instant the entry with a point of that date and a position, the last imported of several.
std::vector<std::optional<std::int64_t>> tracksOfPointsAt(TrackDatabase& database,
                                                          const std::vector<KTInstant>& times);
/// The imports of the hour before the latest one.
std::vector<std::int64_t> listRecentSources(TrackDatabase& database);
/// Writes the entries @p ids, each of them once, as one GPX 1.1 file. Returns the first id that is not in the
/// library, with nothing written.
std::optional<std::int64_t> writeGPX(TrackDatabase& database, const std::vector<std::int64_t>& ids,
                                     std::ostream& out);
