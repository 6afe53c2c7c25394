#include "platform/tracklibrary/GPXReader.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/tracklibrary/GPXTime.h"

namespace {

using namespace std::chrono_literals;

constexpr std::size_t kLongestText = 1 << 16;
constexpr std::size_t kLongestQuote = 80;
constexpr double kLargestLatitude = 90, kLargestLongitude = 180, kLargestElevation = 1e6;
constexpr KTInstant kEarliestTime = std::chrono::sys_days(1900y / 1 / 1);
constexpr KTInstant kEndOfTimes = std::chrono::sys_days(2200y / 1 / 1);

/// A message about @p text, which may be of any length.
std::string quoting(const std::string& format, std::string_view text) {
    text = KTTrimmed(text);
    bool isCut = text.size() > kLongestQuote;
    return KTStringWithFormat(format, {KTValidUTF8(text.substr(0, kLongestQuote)) + (isCut ? "…" : "")});
}

/// Whether @p text is one of the ways in which programs print a height that they do not know.
bool meansNoNumber(std::string_view text) {
    std::string lower = KTLowercase(text);
    constexpr std::string_view ways[] = {"nan", "inf", "#ind", "null"};
    return std::ranges::any_of(ways, [&](auto way) { return lower.find(way) != std::string::npos; });
}

} // namespace

const GPXReader::Child GPXReader::kChildren[] = {
    {Node::TrackPoint, "time", Node::Time},     {Node::TrackPoint, "ele", Node::Elevation},
    {Node::Segment, "trkpt", Node::TrackPoint}, {Node::Track, "trkseg", Node::Segment},
    {Node::Track, "name", Node::Name},          {Node::RoutePoint, "ele", Node::Elevation},
    {Node::Route, "rtept", Node::RoutePoint},   {Node::Route, "name", Node::Name},
    {Node::Waypoint, "time", Node::Time},       {Node::Waypoint, "ele", Node::Elevation},
    {Node::Waypoint, "name", Node::Name},       {Node::Waypoint, "desc", Node::Comment},
    {Node::Root, "trk", Node::Track},           {Node::Root, "rte", Node::Route},
    {Node::Root, "wpt", Node::Waypoint},
};

GPXReader::Node GPXReader::nodeFor(std::string_view name) const {
    Node parent = path.back();
    if (parent == Node::Other || !name.starts_with(prefix))
        return Node::Other;
    name.remove_prefix(prefix.size());
    for (const Child& child : kChildren) {
        if (child.parent == parent && child.name == name)
            return child.node;
    }
    return Node::Other;
}

void GPXReader::startRoot(std::string_view name) {
    auto colon = name.find(':');
    prefix = colon == std::string_view::npos ? std::string() : std::string(name.substr(0, colon + 1));
    if (name.substr(prefix.size()) != "gpx")
        xml.fail(quoting(KTLocalizedString("this is not a GPX file: it begins with <%@>"), name));
}

void GPXReader::startElement(const char* name, const char** attributes) {
    if (path.back() == Node::Document) {
        startRoot(name);
        path.push_back(Node::Root);
        return;
    }
    Node node = nodeFor(name);
    path.push_back(node);
    isCollecting = false;
    switch (node) {
    case Node::Track:
    case Node::Route:
        trackName.clear();
        sink.beginTrack(node == Node::Track ? KTTrack::Kind::Track : KTTrack::Kind::Route);
        break;
    case Node::Segment:
        sink.beginSegment();
        break;
    case Node::TrackPoint:
    case Node::RoutePoint:
    case Node::Waypoint:
        startPoint(attributes);
        break;
    case Node::Name:
    case Node::Comment:
    case Node::Elevation:
    case Node::Time:
        isCollecting = true;
        text.clear();
        break;
    default:
        break;
    }
}

void GPXReader::endElement() {
    Node node = path.back();
    path.pop_back();
    isCollecting = false;
    switch (node) {
    case Node::Track:
    case Node::Route:
        sink.endTrack(std::move(trackName));
        break;
    case Node::TrackPoint:
    case Node::RoutePoint:
    case Node::Waypoint:
        endPoint(node);
        break;
    case Node::Name:
    case Node::Comment:
    case Node::Elevation:
    case Node::Time:
        endText(node, path.back());
        break;
    default:
        break;
    }
}

void GPXReader::characters(std::string_view piece) {
    if (!isCollecting)
        return;
    text.append(piece);
    if (text.size() > kLongestText)
        xml.fail(KTLocalizedString("a name, height or time is too long"));
}

void GPXReader::startPoint(const char** attributes) {
    current = {};
    const char *latitude = "", *longitude = "";
    for (; *attributes; attributes += 2) {
        std::string_view name = attributes[0];
        if (name == "lat")
            latitude = attributes[1];
        else if (name == "lon")
            longitude = attributes[1];
    }
    TrackFilePoint& point = current.point;
    point.latitude =
        coordinate(latitude, kLargestLatitude, KTLocalizedString("“%@” is not a latitude from -90 to 90"));
    point.longitude = coordinate(longitude, kLargestLongitude,
                                 KTLocalizedString("“%@” is not a longitude from -180 to 180"));
    if (point.latitude.isAbsent() || point.longitude.isAbsent()) {
        point.latitude = {};
        point.longitude = {};
    }
}

TrackNumber GPXReader::coordinate(const char* value, double limit, std::string_view problem) {
    if (KTTrimmed(value).empty())
        return {};
    auto number = TrackNumber::fromText(value);
    if (number && std::abs(number->toDouble()) <= limit)
        return std::move(*number);
    xml.fail(quoting(std::string(problem), value));
    return {};
}

void GPXReader::endPoint(Node node) {
    hasPoint = true;
    if (node != Node::Waypoint)
        sink.addPoint(std::move(current.point));
    else if (!current.point.latitude.isAbsent())
        sink.addWaypoint(std::move(current));
}

void GPXReader::endText(Node node, Node parent) {
    if (node == Node::Elevation)
        setElevation();
    else if (node == Node::Time)
        setTime();
    else if (node == Node::Comment)
        current.comment = KTTrimmed(text);
    else if (parent == Node::Waypoint)
        current.name = KTTrimmed(text);
    else
        trackName = KTTrimmed(text);
}

void GPXReader::setElevation() {
    auto number = TrackNumber::fromText(text);
    if (!number && !KTTrimmed(text).empty() && !meansNoNumber(text))
        xml.fail(quoting(KTLocalizedString("“%@” is not a height in metres"), text));
    if (number && std::abs(number->toDouble()) <= kLargestElevation)
        current.point.elevation = std::move(*number);
}

void GPXReader::setTime() {
    if (KTTrimmed(text).empty())
        return;
    auto instant = GPXInstantFromText(text);
    if (!instant)
        xml.fail(quoting(KTLocalizedString("“%@” is not a date and time"), text));
    else if (*instant < kEarliestTime || *instant >= kEndOfTimes)
        xml.fail(quoting(KTLocalizedString("the date %@ is not between the years 1900 and 2199"), text));
    else
        current.point.date = instant;
}
