#pragma once
#include "platform/tracklibrary/KTTrack.h"

#include <iosfwd>

/// Writes GPX 1.1 to a stream, element by element. Routes come after waypoints and tracks after routes, as
/// the format wants it; the caller keeps that order. Points without position, which the format does not know,
/// are left out.
class GPXWriter {
public:
    explicit GPXWriter(std::ostream& stream) : out(stream) {}

    void beginFile();
    void waypoint(const KTWaypoint& waypoint);
    void beginTrack(const KTTrack& track);
    void beginSegment();
    void point(const KTGeoPoint& point);
    void endSegment();
    void endTrack();
    void endFile();

private:
    bool openPoint(const char* element, const KTGeoPoint& point);
    void textElement(const char* element, std::string_view text);

    std::ostream& out;
    bool isRoute = false;
};
