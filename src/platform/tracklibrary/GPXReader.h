#pragma once
#include "platform/tracklibrary/TrackFileSink.h"
#include "platform/tracklibrary/XMLStream.h"

/// Reads GPX 1.0 and 1.1 piece by piece into a sink; one reader a file, on one thread.
///
/// Taken over: tracks with their segments, routes (points without dates), waypoints (those with a position);
/// names, descriptions of waypoints, elevations, times. All other elements are passed over. Names may carry
/// any namespace prefix, as long as it is the root element's.
///
/// Lenient where devices are careless: an empty or missing time or elevation is none; an elevation that reads
/// as not-a-number or lies beyond ±1,000 km is none; a point whose latitude or longitude is missing or empty
/// is kept without position; a time without zone is in UTC. Refused, with the line: anything that is no
/// number in a coordinate, latitudes beyond ±90°, longitudes beyond ±180°, texts that are no time, years
/// before 1900 or after 2199, names longer than 64 KB, and what XMLStream refuses.
class GPXReader : private XMLStreamHandler {
public:
    explicit GPXReader(TrackFileSink& target) : sink(target), xml(*this) {}

    /// Reads the next bytes of the file. False after the first problem; what the sink received must then be
    /// dropped.
    bool append(std::string_view bytes) { return xml.append(bytes); }
    /// Says that the file has ended. False when there was a problem or the file is not complete.
    bool finish() { return xml.finish(); }
    const std::optional<TrackFileProblem>& problem() const { return xml.problem(); }
    /// Whether there was any point or waypoint so far.
    bool foundSomething() const { return hasPoint; }

private:
    enum class Node : std::uint8_t {
        Document,
        Root,
        Track,
        Segment,
        TrackPoint,
        Route,
        RoutePoint,
        Waypoint,
        Name,
        Comment,
        Elevation,
        Time,
        Other,
    };
    struct Child {
        Node parent;
        std::string_view name;
        Node node;
    };
    static const Child kChildren[];

    void startElement(const char* name, const char** attributes) override;
    void endElement() override;
    void characters(std::string_view piece) override;

    void startRoot(std::string_view name);
    Node nodeFor(std::string_view name) const;
    void startPoint(const char** attributes);
    void endPoint(Node node);
    void endText(Node node, Node parent);
    TrackNumber coordinate(const char* value, double limit, std::string_view problem);
    void setElevation();
    void setTime();

    TrackFileSink& sink;
    XMLStream xml;
    std::vector<Node> path = {Node::Document};
    std::string prefix; // of the root element, colon included
    bool hasPoint = false;
    bool isCollecting = false;
    std::string text;
    std::string trackName;
    TrackFileWaypoint current; // the point or waypoint being read
};
