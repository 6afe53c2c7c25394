#include "platform/tracklibrary/TrackSchema.h"

#include "platform/common/KTLocalizedString.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <stdexcept>

namespace {

constexpr int kApplicationID = 0x574D544C; // "WMTL"
constexpr int kVersion = 1;

// Points are numbered in the order in which they are imported, so each segment, and with it each track, is a
// run of point numbers: appending is fast, and no index from track to point is needed. The other index serves
// the two searches by time.
//
// Dates are milliseconds since 1970 UTC. Coordinates (degrees) and elevations (metres) are REAL while they
// have at most 15 digits, which a double gives back exactly, else TEXT with all digits; the columns have no
// type, so that SQLite converts neither.
constexpr const char* kSchema = R"(
CREATE TABLE source(
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    path TEXT NOT NULL,
    imported INTEGER NOT NULL,           -- when
    size INTEGER,                        -- of the file, in bytes
    hash BLOB UNIQUE,                    -- BLAKE2b-256 of the file
    complete INTEGER NOT NULL DEFAULT 1  -- 0 once something of it was deleted
);
CREATE TABLE track(
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    source INTEGER NOT NULL REFERENCES source(id),
    kind INTEGER NOT NULL,               -- 1 track, 2 route, 3 the waypoints of the file
    name TEXT NOT NULL,
    points INTEGER NOT NULL DEFAULT 0,
    dated_points INTEGER NOT NULL DEFAULT 0,
    waypoints INTEGER NOT NULL DEFAULT 0,
    first_date INTEGER,
    last_date INTEGER
);
CREATE INDEX track_source ON track(source);
CREATE TABLE segment(
    id INTEGER PRIMARY KEY,
    track INTEGER NOT NULL REFERENCES track(id),
    first_point INTEGER NOT NULL,
    last_point INTEGER NOT NULL
);
CREATE INDEX segment_track ON segment(track);
CREATE TABLE point(id INTEGER PRIMARY KEY, date INTEGER, latitude, longitude, elevation);
CREATE INDEX point_date ON point(date) WHERE latitude IS NOT NULL AND date IS NOT NULL;
CREATE TABLE waypoint(
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    track INTEGER NOT NULL REFERENCES track(id),
    name TEXT NOT NULL,
    comment TEXT NOT NULL,
    date INTEGER, latitude, longitude, elevation
);
CREATE INDEX waypoint_track ON waypoint(track);
)";

int number(SQLite::Database& database, const char* query) {
    return database.execAndGet(query).getInt();
}

bool isNew(SQLite::Database& database) {
    return number(database, "PRAGMA application_id") == 0 && number(database, "PRAGMA user_version") == 0 &&
           number(database, "SELECT count(*) FROM sqlite_master") == 0;
}

void create(SQLite::Database& database) {
    database.exec("BEGIN IMMEDIATE");
    if (isNew(database)) { // another process may have been faster
        database.exec(kSchema);
        database.exec("PRAGMA application_id = " + std::to_string(kApplicationID));
        database.exec("PRAGMA user_version = " + std::to_string(kVersion));
    }
    database.exec("COMMIT");
}

} // namespace

void prepareTrackSchema(SQLite::Database& database) {
    if (isNew(database)) {
        database.exec("PRAGMA journal_mode = WAL");
        create(database);
    }
    if (number(database, "PRAGMA application_id") != kApplicationID)
        throw std::runtime_error(KTLocalizedString("it is a database of another program"));
    if (number(database, "PRAGMA user_version") > kVersion)
        throw std::runtime_error(KTLocalizedString("it was made by a newer version of Waymark"));
    database.exec("PRAGMA journal_mode = WAL");
}
