#pragma once
#include "platform/tracklibrary/KTGeoPoint.h"

/// What the library lists: a track, a route, or the waypoints of one imported file taken together.
struct KTTrack {
    enum class Kind {
        Track = 1,
        Route = 2,     ///< a plan: its points have no dates, so no search ever finds them
        Waypoints = 3, ///< all waypoints of the file
    };

    std::int64_t id = 0; ///< never used again after the track is deleted
    Kind kind = Kind::Track;
    std::string name;        ///< as in the file; the file's name for waypoints and where the file gives none
    std::int64_t source = 0; ///< the import that brought it
    std::string sourceFile;  ///< absolute path of the imported file
    std::int64_t pointCount = 0;
    std::int64_t datedPointCount = 0;
    std::int64_t waypointCount = 0;
    std::optional<KTInstant> firstDate; ///< earliest date of a point, not the date of the first one
    std::optional<KTInstant> lastDate;

    /// How many colours tell tracks apart, and which of them is this one's; the same wherever it is shown.
    static constexpr int kColors = 8;
    int colorIndex() const { return static_cast<int>(id % kColors); }
};

struct KTWaypoint {
    std::int64_t id = 0;
    std::int64_t track = 0; ///< the listed entry that it belongs to
    std::string name;
    std::string comment; ///< the file's description
    KTGeoPoint point;
};
