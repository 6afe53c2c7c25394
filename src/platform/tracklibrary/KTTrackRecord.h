#pragma once
#include "platform/tracklibrary/KTTrack.h"

#include <variant>

/// One row of a list of the library: a track or route, or a waypoint. A value type.
struct KTTrackRecord {
    std::variant<KTTrack, KTWaypoint> content;

    const KTTrack* track() const { return std::get_if<KTTrack>(&content); }
    const KTWaypoint* waypoint() const { return std::get_if<KTWaypoint>(&content); }
    /// "KTTrack" or "KTWaypoint".
    std::string_view entityName() const { return waypoint() != nullptr ? "KTWaypoint" : "KTTrack"; }
    const std::string& name() const { return waypoint() != nullptr ? waypoint()->name : track()->name; }
    /// Its number among the records of its entity.
    std::int64_t id() const { return waypoint() != nullptr ? waypoint()->id : track()->id; }
    /// The listed entry that it is or belongs to: what is deleted, exported and coloured as a whole.
    std::int64_t trackID() const { return waypoint() != nullptr ? waypoint()->track : track()->id; }

    bool isSameAs(const KTTrackRecord& other) const {
        return content.index() == other.content.index() && id() == other.id();
    }
};
