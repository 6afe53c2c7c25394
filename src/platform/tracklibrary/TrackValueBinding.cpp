#include "platform/tracklibrary/TrackValueBinding.h"

#include <SQLiteCpp/SQLiteCpp.h>

void bindValue(SQLite::Statement& statement, int index, const std::optional<KTInstant>& date) {
    if (date)
        statement.bind(index, static_cast<std::int64_t>(date->time_since_epoch().count()));
    else
        statement.bind(index);
}

void bindValue(SQLite::Statement& statement, int index, const TrackNumber& number) {
    if (number.longDigits())
        statement.bind(index, *number.longDigits());
    else if (!number.isAbsent())
        statement.bind(index, number.toDouble());
    else
        statement.bind(index);
}

void bindValue(SQLite::Statement& statement, int index, const TrackFilePoint& point) {
    bindValue(statement, index, point.date);
    bindValue(statement, index + 1, point.latitude);
    bindValue(statement, index + 2, point.longitude);
    bindValue(statement, index + 3, point.elevation);
}
