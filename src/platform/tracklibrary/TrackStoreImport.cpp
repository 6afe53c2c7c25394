#include "platform/tracklibrary/TrackStoreImport.h"

#include "platform/common/KTText.h"
#include "platform/tracklibrary/TrackRemoval.h"
#include "platform/tracklibrary/TrackValueBinding.h"

namespace {

void bindHash(SQLite::Statement& statement, int index, const std::string& hash) {
    statement.bind(index, static_cast<const void*>(hash.data()), static_cast<int>(hash.size()));
}

} // namespace

TrackStoreImport::TrackStoreImport(TrackDatabase& target, const std::filesystem::path& path,
                                   std::stop_token stopToken)
    : database(target), stop(std::move(stopToken)), points(target),
      fileName(KTValidUTF8(path.filename().string())) {
    auto insert = database.statement("INSERT INTO source(path, imported) VALUES(?, ?)");
    insert->bind(1, KTValidUTF8(path.string()));
    bindValue(*insert, 2, KTInstantNow());
    insert->exec();
    source = database.lastRowID();
}

void TrackStoreImport::beginTrack(KTTrack::Kind kind) {
    track = {};
    track.kind = kind;
    currentTrack.reset();
    segmentStart = points.nextID();
}

void TrackStoreImport::beginSegment() {
    endSegment();
}

void TrackStoreImport::endSegment() {
    if (currentTrack && points.nextID() > segmentStart) {
        auto insert =
            database.statement("INSERT INTO segment(track, first_point, last_point) VALUES(?, ?, ?)");
        insert->bind(1, *currentTrack);
        insert->bind(2, segmentStart);
        insert->bind(3, points.nextID() - 1);
        insert->exec();
    }
    segmentStart = points.nextID();
}

std::int64_t TrackStoreImport::insertTrack(KTTrack::Kind kind) {
    auto insert = database.statement("INSERT INTO track(source, kind, name) VALUES(?, ?, ?)");
    insert->bind(1, source);
    insert->bind(2, static_cast<int>(kind));
    insert->bind(3, fileName);
    insert->exec();
    imported.trackIDs.push_back(database.lastRowID());
    return imported.trackIDs.back();
}

void TrackStoreImport::addPoint(TrackFilePoint&& point) {
    if (stop.stop_requested())
        throw TrackImportStopped();
    if (!currentTrack)
        currentTrack = insertTrack(track.kind);
    ++track.pointCount;
    if (point.date) {
        ++track.datedPointCount;
        track.firstDate = std::min(track.firstDate.value_or(*point.date), *point.date);
        track.lastDate = std::max(track.lastDate.value_or(*point.date), *point.date);
    }
    points.add(std::move(point));
}

void TrackStoreImport::endTrack(std::string name) {
    if (!currentTrack)
        return;
    endSegment();
    auto update =
        database.statement("UPDATE track SET name = ?, points = ?, dated_points = ?, first_date = ?, "
                           "last_date = ? WHERE id = ?");
    update->bind(1, name.empty() ? fileName : name);
    update->bind(2, track.pointCount);
    update->bind(3, track.datedPointCount);
    bindValue(*update, 4, track.firstDate);
    bindValue(*update, 5, track.lastDate);
    update->bind(6, *currentTrack);
    update->exec();
    (track.kind == KTTrack::Kind::Route ? imported.routeCount : imported.trackCount) += 1;
    imported.pointCount += track.pointCount;
    imported.datedPointCount += track.datedPointCount;
    currentTrack.reset();
}

void TrackStoreImport::addWaypoint(TrackFileWaypoint&& waypoint) {
    if (stop.stop_requested())
        throw TrackImportStopped();
    if (waypointsTrack == 0)
        waypointsTrack = insertTrack(KTTrack::Kind::Waypoints);
    ++imported.waypointCount;
    auto insert =
        database.statement("INSERT INTO waypoint(track, name, comment, date, latitude, longitude, elevation) "
                           "VALUES(?, ?, ?, ?, ?, ?, ?)");
    insert->bind(1, waypointsTrack);
    insert->bind(2, waypoint.name);
    insert->bind(3, waypoint.comment);
    bindValue(*insert, 4, waypoint.point);
    insert->exec();
}

bool TrackStoreImport::finish(std::int64_t size, const std::string& hash) {
    if (imported.trackIDs.empty())
        return false;
    imported.source = source;
    points.flush();
    if (auto earlier = trackSourceWithHash(database, hash))
        removeSource(database, earlier->source);
    auto updateTrack = database.statement("UPDATE track SET waypoints = ? WHERE id = ?");
    updateTrack->bind(1, imported.waypointCount);
    updateTrack->bind(2, waypointsTrack);
    updateTrack->exec();
    auto updateSource = database.statement("UPDATE source SET size = ?, hash = ? WHERE id = ?");
    updateSource->bind(1, size);
    bindHash(*updateSource, 2, hash);
    updateSource->bind(3, source);
    updateSource->exec();
    return true;
}

std::optional<TrackSourceMatch> trackSourceWithHash(TrackDatabase& database, const std::string& hash) {
    auto find = database.statement("SELECT id, complete FROM source WHERE hash = ?");
    bindHash(*find, 1, hash);
    if (!find->executeStep())
        return std::nullopt;
    return TrackSourceMatch{find->getColumn(0).getInt64(), find->getColumn(1).getInt() != 0};
}

KTTrackImportResult existingImport(TrackDatabase& database, std::int64_t source) {
    KTTrackImportResult result;
    result.alreadyImported = true;
    result.source = source;
    auto find = database.statement(
        "SELECT id, kind, points, dated_points, waypoints FROM track WHERE source = ? ORDER BY id");
    find->bind(1, source);
    while (find->executeStep()) {
        result.trackIDs.push_back(find->getColumn(0).getInt64());
        auto kind = static_cast<KTTrack::Kind>(find->getColumn(1).getInt());
        result.trackCount += kind == KTTrack::Kind::Track;
        result.routeCount += kind == KTTrack::Kind::Route;
        result.pointCount += find->getColumn(2).getInt64();
        result.datedPointCount += find->getColumn(3).getInt64();
        result.waypointCount += find->getColumn(4).getInt64();
    }
    return result;
}
