#pragma once

namespace SQLite {
class Database;
}

/// Makes sure that @p database is a track library of the present schema and keeps a write-ahead journal; a
/// new, empty file becomes one. Any other database is left as it is. Throws std::runtime_error with a text
/// for users, or SQLite::Exception.
void prepareTrackSchema(SQLite::Database& database);
