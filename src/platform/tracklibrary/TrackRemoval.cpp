#include "platform/tracklibrary/TrackRemoval.h"

#include "platform/tracklibrary/TrackDatabase.h"

namespace {

void execute(TrackDatabase& database, const char* sql, std::int64_t id) {
    auto statement = database.statement(sql);
    statement->bind(1, id);
    statement->exec();
}

} // namespace

bool removeTrack(TrackDatabase& database, std::int64_t track) {
    auto find = database.statement("SELECT source FROM track WHERE id = ?");
    find->bind(1, track);
    if (!find->executeStep())
        return false;
    std::int64_t source = find->getColumn(0).getInt64();

    auto segments = database.statement("SELECT first_point, last_point FROM segment WHERE track = ?");
    segments->bind(1, track);
    while (segments->executeStep()) {
        auto points = database.statement("DELETE FROM point WHERE id BETWEEN ? AND ?");
        points->bind(1, segments->getColumn(0).getInt64());
        points->bind(2, segments->getColumn(1).getInt64());
        points->exec();
    }
    execute(database, "DELETE FROM segment WHERE track = ?", track);
    execute(database, "DELETE FROM waypoint WHERE track = ?", track);
    execute(database, "DELETE FROM track WHERE id = ?", track);
    execute(database, "UPDATE source SET complete = 0 WHERE id = ?", source);
    execute(database,
            "DELETE FROM source WHERE id = ?1 AND NOT EXISTS (SELECT 1 FROM track WHERE source = ?1)",
            source);
    return true;
}

void removeSource(TrackDatabase& database, std::int64_t source) {
    std::vector<std::int64_t> tracks;
    {
        auto find = database.statement("SELECT id FROM track WHERE source = ?");
        find->bind(1, source);
        while (find->executeStep())
            tracks.push_back(find->getColumn(0).getInt64());
    }
    for (std::int64_t track : tracks)
        removeTrack(database, track);
}
