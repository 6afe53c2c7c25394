#pragma once
#include "platform/tracklibrary/KTGeoPoint.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <mutex>
#include <unordered_map>

/// One connection to a track library file, its schema in place, with the statements prepared on it. For this
/// folder only. Whoever uses it holds its mutex; every function throws SQLite::Exception, the constructor
/// also std::runtime_error with a text for users.
class TrackDatabase {
public:
    enum class Access {
        ReadWrite, ///< makes the file, or brings it to the present schema, where needed
        ReadOnly,  ///< of a file that has been opened for writing before
    };
    struct Reset {
        void operator()(SQLite::Statement* statement) const { statement->tryReset(); }
    };
    /// A prepared statement that is reset when let go, so that it holds no read transaction open.
    using Borrowed = std::unique_ptr<SQLite::Statement, Reset>;

    TrackDatabase(const std::string& file, Access access);

    /// The statement @p sql, a literal, prepared at its first use. One borrower at a time.
    Borrowed statement(const char* sql);
    void execute(const char* sql) { connection.exec(sql); }
    std::int64_t lastRowID() const { return connection.getLastInsertRowid(); }

    std::mutex mutex;
    SQLite::Database connection;

private:
    std::unordered_map<const char*, std::unique_ptr<SQLite::Statement>> statements;
};

/// Four columns of a row (date, latitude, longitude, elevation), from @p firstColumn on.
KTGeoPoint geoPointFromRow(SQLite::Statement& row, int firstColumn);
/// The instant in a column of milliseconds since 1970, none for null.
std::optional<KTInstant> instantFromColumn(const SQLite::Column& column);
