#include "platform/tracklibrary/TrackQueries.h"

#include "platform/tracklibrary/GPXWriter.h"
#include "platform/tracklibrary/TrackDatabase.h"

#include <algorithm>

namespace {

struct PointRange {
    std::int64_t first, last;
};

std::vector<PointRange> segmentRanges(TrackDatabase& database, std::int64_t track) {
    auto find = database.statement("SELECT first_point, last_point FROM segment WHERE track = ? ORDER BY id");
    find->bind(1, track);
    std::vector<PointRange> ranges;
    while (find->executeStep())
        ranges.push_back({find->getColumn(0).getInt64(), find->getColumn(1).getInt64()});
    return ranges;
}

template<class Visit>
void forEachPoint(TrackDatabase& database, PointRange range, const Visit& visit) {
    auto find = database.statement(
        "SELECT date, latitude, longitude, elevation FROM point WHERE id BETWEEN ? AND ? ORDER BY id");
    find->bind(1, range.first);
    find->bind(2, range.last);
    while (find->executeStep())
        visit(geoPointFromRow(*find, 0));
}

std::vector<KTWaypoint> waypointsFromRows(SQLite::Statement& rows) {
    std::vector<KTWaypoint> waypoints;
    while (rows.executeStep())
        waypoints.push_back({rows.getColumn(0).getInt64(), rows.getColumn(1).getInt64(),
                             rows.getColumn(2).getString(), rows.getColumn(3).getString(),
                             geoPointFromRow(rows, 4)});
    return waypoints;
}

void writeTrack(TrackDatabase& database, const KTTrack& track, GPXWriter& writer) {
    writer.beginTrack(track);
    for (PointRange range : segmentRanges(database, track.id)) {
        writer.beginSegment();
        forEachPoint(database, range, [&](const KTGeoPoint& point) { writer.point(point); });
        writer.endSegment();
    }
    writer.endTrack();
}

} // namespace

std::vector<KTTrack> listTracks(TrackDatabase& database) {
    auto find = database.statement(
        "SELECT track.id, kind, name, source, path, points, dated_points, waypoints, first_date, last_date "
        "FROM track JOIN source ON source.id = track.source ORDER BY track.id");
    std::vector<KTTrack> tracks;
    while (find->executeStep()) {
        KTTrack track;
        track.id = find->getColumn(0).getInt64();
        track.kind = static_cast<KTTrack::Kind>(find->getColumn(1).getInt());
        track.name = find->getColumn(2).getString();
        track.source = find->getColumn(3).getInt64();
        track.sourceFile = find->getColumn(4).getString();
        track.pointCount = find->getColumn(5).getInt64();
        track.datedPointCount = find->getColumn(6).getInt64();
        track.waypointCount = find->getColumn(7).getInt64();
        track.firstDate = instantFromColumn(find->getColumn(8));
        track.lastDate = instantFromColumn(find->getColumn(9));
        tracks.push_back(std::move(track));
    }
    return tracks;
}

std::vector<KTWaypoint> waypointsOfTrack(TrackDatabase& database, std::int64_t track) {
    auto find = database.statement("SELECT id, track, name, comment, date, latitude, longitude, elevation "
                                   "FROM waypoint WHERE track = ? ORDER BY id");
    find->bind(1, track);
    return waypointsFromRows(*find);
}

std::vector<KTWaypoint> waypointsOfTime(TrackDatabase& database, KTInstant first, KTInstant last) {
    auto find = database.statement("SELECT id, track, name, comment, date, latitude, longitude, elevation "
                                   "FROM waypoint WHERE date BETWEEN ? AND ? ORDER BY date, id");
    find->bind(1, static_cast<std::int64_t>(first.time_since_epoch().count()));
    find->bind(2, static_cast<std::int64_t>(last.time_since_epoch().count()));
    return waypointsFromRows(*find);
}

std::vector<std::vector<KTGeoPoint>> segmentsOfTrack(TrackDatabase& database, std::int64_t track) {
    std::vector<std::vector<KTGeoPoint>> segments;
    for (PointRange range : segmentRanges(database, track)) {
        auto& points = segments.emplace_back();
        forEachPoint(database, range, [&](KTGeoPoint point) { points.push_back(std::move(point)); });
    }
    return segments;
}

std::vector<std::vector<KTTrackPosition>> positionsOfTrack(TrackDatabase& database, std::int64_t track) {
    std::vector<std::vector<KTTrackPosition>> segments;
    auto find = database.statement("SELECT date, longitude, latitude FROM point "
                                   "WHERE id BETWEEN ? AND ? AND latitude IS NOT NULL ORDER BY id");
    for (PointRange range : segmentRanges(database, track)) {
        auto& positions = segments.emplace_back();
        find->reset();
        find->bind(1, range.first);
        find->bind(2, range.last);
        while (find->executeStep())
            positions.push_back({{find->getColumn(1).getDouble(), find->getColumn(2).getDouble()},
                                 instantFromColumn(find->getColumn(0))});
    }
    return segments;
}

void visitPositionsOfTrack(TrackDatabase& database, std::int64_t track,
                           const std::function<void(double longitude, double latitude, bool)>& visit) {
    // Coordinates with more digits than a double holds are texts.
    auto find = database.statement("SELECT CAST(longitude AS REAL), CAST(latitude AS REAL) FROM point "
                                   "WHERE id BETWEEN ? AND ? AND latitude IS NOT NULL ORDER BY id");
    for (PointRange range : segmentRanges(database, track)) {
        find->reset();
        find->bind(1, range.first);
        find->bind(2, range.last);
        for (bool isFirst = true; find->executeStep(); isFirst = false)
            visit(find->getColumn(0).getDouble(), find->getColumn(1).getDouble(), isFirst);
    }
    auto waypoints = database.statement("SELECT CAST(longitude AS REAL), CAST(latitude AS REAL) "
                                        "FROM waypoint WHERE track = ? AND latitude IS NOT NULL ORDER BY id");
    waypoints->bind(1, track);
    while (waypoints->executeStep())
        visit(waypoints->getColumn(0).getDouble(), waypoints->getColumn(1).getDouble(), true);
}

std::vector<std::optional<std::int64_t>> tracksOfPointsAt(TrackDatabase& database,
                                                          const std::vector<KTInstant>& times) {
    SQLite::Transaction sameState(database.connection);
    struct Segment {
        std::int64_t firstPoint, track;
    };
    std::vector<Segment> segments;
    auto list = database.statement("SELECT first_point, track FROM segment ORDER BY first_point");
    while (list->executeStep())
        segments.push_back({list->getColumn(0).getInt64(), list->getColumn(1).getInt64()});

    auto find = database.statement(
        "SELECT id FROM point WHERE date = ? AND latitude IS NOT NULL ORDER BY id DESC LIMIT 1");
    std::vector<std::optional<std::int64_t>> found;
    for (KTInstant time : times) {
        find->reset();
        find->bind(1, static_cast<std::int64_t>(time.time_since_epoch().count()));
        auto& track = found.emplace_back();
        if (!find->executeStep())
            continue;
        auto after =
            std::ranges::upper_bound(segments, find->getColumn(0).getInt64(), {}, &Segment::firstPoint);
        if (after != segments.begin())
            track = std::prev(after)->track;
    }
    return found;
}

std::vector<std::int64_t> listRecentSources(TrackDatabase& database) {
    auto find = database.statement("SELECT id FROM source WHERE imported >= "
                                   "(SELECT max(imported) FROM source) - 3600000 ORDER BY id");
    std::vector<std::int64_t> sources;
    while (find->executeStep())
        sources.push_back(find->getColumn(0).getInt64());
    return sources;
}

std::optional<std::int64_t> writeGPX(TrackDatabase& database, const std::vector<std::int64_t>& ids,
                                     std::ostream& out) {
    SQLite::Transaction sameState(database.connection);
    std::map<std::int64_t, KTTrack> byID;
    for (KTTrack& track : listTracks(database))
        byID.emplace(track.id, std::move(track));
    std::vector<const KTTrack*> chosen;
    for (std::int64_t id : ids) {
        auto found = byID.find(id);
        if (found == byID.end())
            return id;
        if (std::ranges::find(chosen, &found->second) == chosen.end())
            chosen.push_back(&found->second);
    }

    GPXWriter writer(out);
    writer.beginFile();
    for (auto kind : {KTTrack::Kind::Waypoints, KTTrack::Kind::Route, KTTrack::Kind::Track}) {
        for (const KTTrack* track : chosen) {
            if (track->kind != kind)
                continue;
            for (const KTWaypoint& waypoint : waypointsOfTrack(database, track->id))
                writer.waypoint(waypoint);
            if (kind != KTTrack::Kind::Waypoints)
                writeTrack(database, *track, writer);
        }
    }
    writer.endFile();
    return std::nullopt;
}
