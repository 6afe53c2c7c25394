#pragma once
#include "platform/common/KTInstant.h"
#include "platform/tracklibrary/KTTrack.h"
#include "platform/tracklibrary/TrackNumber.h"

/// A point as a track file gives it; latitude and longitude are both there or both absent.
struct TrackFilePoint {
    std::optional<KTInstant> date;
    TrackNumber latitude, longitude, elevation;
};

struct TrackFileWaypoint {
    std::string name, comment;
    TrackFilePoint point;
};

/// Receives what a track file holds, in the file's order, on one thread. Tracks do not nest; points come
/// between beginTrack and endTrack.
class TrackFileSink {
public:
    virtual ~TrackFileSink() = default;
    virtual void beginTrack(KTTrack::Kind kind) = 0;
    /// The points that follow are a new stretch of the current track.
    virtual void beginSegment() = 0;
    virtual void addPoint(TrackFilePoint&& point) = 0;
    virtual void endTrack(std::string name) = 0;
    virtual void addWaypoint(TrackFileWaypoint&& waypoint) = 0;
    /// True when nobody wants the rest any more; reading may stop.
    virtual bool isClosed() const { return false; }
};
