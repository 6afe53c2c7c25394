#include "platform/tracklibrary/TrackDatabase.h"

#include "platform/tracklibrary/TrackSchema.h"

#include <sqlite3.h>

namespace {

constexpr int kBusyTimeout = 10000; // milliseconds that another process may hold the file
constexpr int kReadWrite = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;

std::optional<KTDecimal> decimalFromColumn(const SQLite::Column& column) {
    if (column.isFloat())
        return KTDecimal::fromDouble(column.getDouble());
    if (column.isInteger())
        return KTDecimal::fromInteger(column.getInt64());
    return column.isText() ? KTDecimal::fromText(column.getText()) : std::nullopt;
}

} // namespace

TrackDatabase::TrackDatabase(const std::string& file, Access access)
    : connection(file, kReadWrite, kBusyTimeout) {
    // The file may come from anywhere: nothing in its schema may call functions with side effects, and
    // damaged pages are noticed.
    execute("PRAGMA trusted_schema = OFF; PRAGMA cell_size_check = ON");
    if (access == Access::ReadOnly) {
        execute("PRAGMA query_only = ON; PRAGMA cache_size = -8000");
        return;
    }
    prepareTrackSchema(connection);
    execute("PRAGMA synchronous = NORMAL; PRAGMA cache_size = -32000; PRAGMA journal_size_limit = 16777216");
}

TrackDatabase::Borrowed TrackDatabase::statement(const char* sql) {
    auto& prepared = statements[sql];
    if (!prepared)
        prepared = std::make_unique<SQLite::Statement>(connection, sql);
    return Borrowed(prepared.get());
}

std::optional<KTInstant> instantFromColumn(const SQLite::Column& column) {
    return column.isNull() ? std::nullopt : std::optional(KTInstantFromMilliseconds(column.getInt64()));
}

KTGeoPoint geoPointFromRow(SQLite::Statement& row, int firstColumn) {
    return {instantFromColumn(row.getColumn(firstColumn)), decimalFromColumn(row.getColumn(firstColumn + 1)),
            decimalFromColumn(row.getColumn(firstColumn + 2)),
            decimalFromColumn(row.getColumn(firstColumn + 3))};
}
