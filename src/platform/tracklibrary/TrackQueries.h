#pragma once
#include "platform/tracklibrary/KTTrack.h"

#include <iosfwd>

class TrackDatabase;

/// Reads of what the library lists, on a connection whose mutex the caller holds. All throw
/// SQLite::Exception.

std::vector<KTTrack> listTracks(TrackDatabase& database);
std::vector<KTWaypoint> waypointsOfTrack(TrackDatabase& database, std::int64_t track);
std::vector<KTWaypoint> waypointsOfTime(TrackDatabase& database, KTInstant first, KTInstant last);
std::vector<std::vector<KTGeoPoint>> segmentsOfTrack(TrackDatabase& database, std::int64_t track);
/// Writes the entries @p ids, each of them once, as one GPX 1.1 file. Returns the first id that is not in the
/// library, with nothing written.
std::optional<std::int64_t> writeGPX(TrackDatabase& database, const std::vector<std::int64_t>& ids,
                                     std::ostream& out);
