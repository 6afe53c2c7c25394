#include "platform/tracklibrary/TrackPointInserter.h"

#include "platform/tracklibrary/TrackValueBinding.h"

const std::string& TrackPointInserter::manyRows() {
    static const std::string sql = [] {
        std::string text = "INSERT INTO point VALUES(?, ?, ?, ?, ?)";
        for (std::size_t row = 1; row < kRows; ++row)
            text += ", (?, ?, ?, ?, ?)";
        return text;
    }();
    return sql;
}

TrackPointInserter::TrackPointInserter(TrackDatabase& target)
    : insertMany(target.statement(manyRows().c_str())),
      insertOne(target.statement("INSERT INTO point VALUES(?, ?, ?, ?, ?)")) {
    auto last = target.statement("SELECT COALESCE(MAX(id), 0) FROM point");
    last->executeStep();
    next = last->getColumn(0).getInt64() + 1;
}

void TrackPointInserter::add(TrackFilePoint&& point) {
    waiting[waitingCount++] = std::move(point);
    ++next;
    if (waitingCount < kRows)
        return;
    for (std::size_t row = 0; row < kRows; ++row)
        bindRow(*insertMany, row, row);
    insertMany->exec();
    insertMany->reset();
    waitingCount = 0;
}

void TrackPointInserter::flush() {
    for (std::size_t point = 0; point < waitingCount; ++point) {
        bindRow(*insertOne, 0, point);
        insertOne->exec();
        insertOne->reset();
    }
    waitingCount = 0;
}

void TrackPointInserter::bindRow(SQLite::Statement& statement, std::size_t row, std::size_t point) {
    int column = static_cast<int>(row) * 5 + 1;
    statement.bind(column, next - static_cast<std::int64_t>(waitingCount - point));
    bindValue(statement, column + 1, waiting[point]);
}
