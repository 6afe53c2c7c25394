#include "platform/tracklibrary/GPXWriter.h"

#include "platform/common/KTText.h"

#include <ostream>

namespace {

/// @p text as XML character data: marked-up characters escaped, what XML 1.0 does not allow left out.
std::string escaped(std::string_view text) {
    std::string result;
    for (char c : KTValidUTF8(text)) {
        if (c == '&')
            result += "&amp;";
        else if (c == '<')
            result += "&lt;";
        else if (c == '>')
            result += "&gt;";
        else if (c == '\r')
            result += "&#13;";
        else if (static_cast<unsigned char>(c) >= 0x20 || c == '\t' || c == '\n')
            result += c;
    }
    for (std::string_view noncharacter : {"\xEF\xBF\xBE", "\xEF\xBF\xBF"}) {
        for (auto at = result.find(noncharacter); at != std::string::npos; at = result.find(noncharacter, at))
            result.erase(at, noncharacter.size());
    }
    return result;
}

} // namespace

void GPXWriter::beginFile() {
    out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<gpx version=\"1.1\" creator=\"Waymark\" xmlns=\"http://www.topografix.com/GPX/1/1\">\n";
}

void GPXWriter::textElement(const char* element, std::string_view text) {
    if (!text.empty())
        out << '<' << element << '>' << escaped(text) << "</" << element << '>';
}

bool GPXWriter::openPoint(const char* element, const KTGeoPoint& point) {
    if (!point.latitude || !point.longitude)
        return false;
    out << '<' << element << " lat=\"" << point.latitude->toText() << "\" lon=\"" << point.longitude->toText()
        << "\">";
    if (point.elevation)
        textElement("ele", point.elevation->toText());
    if (point.date)
        textElement("time", KTISO8601Text(*point.date));
    return true;
}

void GPXWriter::waypoint(const KTWaypoint& waypoint) {
    if (!openPoint("wpt", waypoint.point))
        return;
    textElement("name", waypoint.name);
    textElement("desc", waypoint.comment);
    out << "</wpt>\n";
}

void GPXWriter::beginTrack(const KTTrack& track) {
    isRoute = track.kind == KTTrack::Kind::Route;
    out << (isRoute ? "<rte>" : "<trk>");
    textElement("name", track.name);
    out << '\n';
}

void GPXWriter::beginSegment() {
    if (!isRoute)
        out << "<trkseg>\n";
}

void GPXWriter::point(const KTGeoPoint& point) {
    const char* element = isRoute ? "rtept" : "trkpt";
    if (openPoint(element, point))
        out << "</" << element << ">\n";
}

void GPXWriter::endSegment() {
    if (!isRoute)
        out << "</trkseg>\n";
}

void GPXWriter::endTrack() {
    out << (isRoute ? "</rte>\n" : "</trk>\n");
}

void GPXWriter::endFile() {
    out << "</gpx>\n";
}
