#pragma once
#include "platform/tracklibrary/TrackFileSink.h"

namespace SQLite {
class Statement;
}

/// Binds values as the store keeps them, null when absent. All throw SQLite::Exception.

/// Milliseconds since 1970.
void bindValue(SQLite::Statement& statement, int index, const std::optional<KTInstant>& date);
/// A double where it holds all digits, else text.
void bindValue(SQLite::Statement& statement, int index, const TrackNumber& number);
/// Date, latitude, longitude and elevation, from @p index on.
void bindValue(SQLite::Statement& statement, int index, const TrackFilePoint& point);
