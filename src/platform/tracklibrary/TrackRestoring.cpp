#include "platform/tracklibrary/TrackRestoring.h"

#include "platform/tracklibrary/TrackDatabase.h"

namespace {

constexpr const char* kTables = R"(
CREATE TEMP TABLE IF NOT EXISTS kept_source AS SELECT 0 AS removal, * FROM main.source WHERE 0;
CREATE TEMP TABLE IF NOT EXISTS kept_track AS SELECT 0 AS removal, * FROM main.track WHERE 0;
CREATE TEMP TABLE IF NOT EXISTS kept_segment AS SELECT 0 AS removal, * FROM main.segment WHERE 0;
CREATE TEMP TABLE IF NOT EXISTS kept_point AS SELECT 0 AS removal, * FROM main.point WHERE 0;
CREATE TEMP TABLE IF NOT EXISTS kept_waypoint AS SELECT 0 AS removal, * FROM main.waypoint WHERE 0;
CREATE INDEX IF NOT EXISTS temp.kept_point_number ON kept_point(removal, id);
)";

void execute(TrackDatabase& database, const char* sql, std::initializer_list<std::int64_t> values) {
    auto statement = database.statement(sql);
    int index = 0;
    for (std::int64_t value : values)
        statement->bind(++index, value);
    statement->exec();
}

std::vector<std::int64_t> list(TrackDatabase& database, const char* sql,
                               std::initializer_list<std::int64_t> values) {
    auto statement = database.statement(sql);
    int index = 0;
    for (std::int64_t value : values)
        statement->bind(++index, value);
    std::vector<std::int64_t> found;
    while (statement->executeStep())
        found.push_back(statement->getColumn(0).getInt64());
    return found;
}

/// Whether the import @p source is there, or can be put there: unless its content has come under another
/// number.
bool restoreSource(TrackDatabase& database, std::int64_t source, std::int64_t removal) {
    execute(
        database,
        "INSERT OR IGNORE INTO main.source(id, path, imported, size, hash, complete) "
        "SELECT id, path, imported, size, hash, 0 FROM temp.kept_source WHERE removal = ? AND id = ? LIMIT 1",
        {removal, source});
    return !list(database, "SELECT id FROM main.source WHERE id = ?", {source}).empty();
}

/// Puts a segment's points back, under their former numbers where these are free, else behind all others:
/// numbers of points are used again, those of everything else are not.
void restoreSegment(TrackDatabase& database, std::int64_t track, std::int64_t first, std::int64_t last,
                    std::int64_t removal) {
    std::int64_t shift = 0;
    if (!list(database, "SELECT id FROM main.point WHERE id BETWEEN ? AND ? LIMIT 1", {first, last}).empty())
        shift = list(database, "SELECT max(id) + 1 FROM main.point", {}).front() - first;
    execute(database,
            "INSERT INTO main.point(id, date, latitude, longitude, elevation) SELECT id + ?, date, latitude, "
            "longitude, elevation FROM temp.kept_point WHERE removal = ? AND id BETWEEN ? AND ? ORDER BY id",
            {shift, removal, first, last});
    execute(database, "INSERT INTO main.segment(track, first_point, last_point) VALUES(?, ?, ?)",
            {track, first + shift, last + shift});
}

void restoreTrack(TrackDatabase& database, std::int64_t track, std::int64_t removal) {
    execute(
        database,
        "INSERT INTO main.track(id, source, kind, name, points, dated_points, waypoints, first_date, "
        "last_date) SELECT id, source, kind, name, points, dated_points, waypoints, first_date, last_date "
        "FROM temp.kept_track WHERE removal = ? AND id = ?",
        {removal, track});
    auto segments = database.statement(
        "SELECT first_point, last_point FROM temp.kept_segment WHERE removal = ? AND track = ? ORDER BY id");
    segments->bind(1, removal);
    segments->bind(2, track);
    while (segments->executeStep())
        restoreSegment(database, track, segments->getColumn(0).getInt64(), segments->getColumn(1).getInt64(),
                       removal);
    execute(
        database,
        "INSERT INTO main.waypoint(id, track, name, comment, date, latitude, longitude, elevation) SELECT "
        "id, track, name, comment, date, latitude, longitude, elevation FROM temp.kept_waypoint "
        "WHERE removal = ? AND track = ? ORDER BY id",
        {removal, track});
}

} // namespace

void prepareRestoring(TrackDatabase& database) {
    database.execute(kTables);
}

void keepTrack(TrackDatabase& database, std::int64_t track, std::int64_t removal) {
    execute(database,
            "INSERT INTO temp.kept_source SELECT ?1, * FROM main.source WHERE id = "
            "(SELECT source FROM main.track WHERE id = ?2) AND NOT EXISTS "
            "(SELECT 1 FROM temp.kept_source AS kept WHERE kept.removal = ?1 AND kept.id = source.id)",
            {removal, track});
    execute(database, "INSERT INTO temp.kept_track SELECT ?, * FROM main.track WHERE id = ?",
            {removal, track});
    execute(database, "INSERT INTO temp.kept_segment SELECT ?, * FROM main.segment WHERE track = ?",
            {removal, track});
    execute(database,
            "INSERT INTO temp.kept_point SELECT ?, point.* FROM main.segment JOIN main.point "
            "ON point.id BETWEEN first_point AND last_point WHERE track = ? ORDER BY point.id",
            {removal, track});
    execute(database, "INSERT INTO temp.kept_waypoint SELECT ?, * FROM main.waypoint WHERE track = ?",
            {removal, track});
}

void forgetKeptTracks(TrackDatabase& database, std::int64_t removal) {
    for (const char* sql :
         {"DELETE FROM temp.kept_source WHERE removal = ?", "DELETE FROM temp.kept_track WHERE removal = ?",
          "DELETE FROM temp.kept_segment WHERE removal = ?", "DELETE FROM temp.kept_point WHERE removal = ?",
          "DELETE FROM temp.kept_waypoint WHERE removal = ?"})
        execute(database, sql, {removal});
}

std::vector<std::int64_t> restoreKeptTracks(TrackDatabase& database, std::int64_t removal) {
    std::vector<std::int64_t> restored;
    for (std::int64_t source :
         list(database, "SELECT id FROM temp.kept_source WHERE removal = ? ORDER BY id", {removal})) {
        if (!restoreSource(database, source, removal))
            continue;
        for (std::int64_t track :
             list(database, "SELECT id FROM temp.kept_track WHERE removal = ? AND source = ? ORDER BY id",
                  {removal, source})) {
            restoreTrack(database, track, removal);
            restored.push_back(track);
        }
        execute(database,
                "UPDATE main.source SET complete = (SELECT complete FROM temp.kept_source WHERE removal = ?1 "
                "AND id = ?2) WHERE id = ?2",
                {removal, source});
    }
    forgetKeptTracks(database, removal);
    return restored;
}
