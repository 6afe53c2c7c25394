#pragma once
#include "platform/tracklibrary/TrackDatabase.h"
#include "platform/tracklibrary/TrackFileSink.h"

#include <array>

/// Inserts points under consecutive numbers, several with one statement, which takes SQLite two thirds of the
/// time. Inside a transaction of the caller's; every function throws SQLite::Exception.
class TrackPointInserter {
public:
    explicit TrackPointInserter(TrackDatabase& target);

    void add(TrackFilePoint&& point);
    /// Inserts what still waits; to be called once all points are added.
    void flush();
    /// The number that the next added point gets.
    std::int64_t nextID() const { return next; }

private:
    static constexpr std::size_t kRows = 16;
    static const std::string& manyRows();

    /// Binds the waiting point number @p point as row @p row of @p statement.
    void bindRow(SQLite::Statement& statement, std::size_t row, std::size_t point);

    TrackDatabase::Borrowed insertMany, insertOne;
    std::array<TrackFilePoint, kRows> waiting;
    std::size_t waitingCount = 0;
    std::int64_t next = 1;
};
