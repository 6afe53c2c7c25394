#include "platform/tracklibrary/TrackFileFormat.h"

#include "platform/common/KTText.h"

#include <fstream>

namespace {

constexpr std::size_t kHeadLength = 4096;

/// Whether @p head holds the start tag of @p element, with or without namespace prefix.
bool hasElement(std::string_view head, std::string_view element) {
    for (auto at = head.find(element); at != std::string_view::npos; at = head.find(element, at + 1)) {
        auto end = at + element.size();
        bool isWhole = end < head.size() && (head[end] == '>' || head[end] == ' ' || head[end] == '\t' ||
                                             head[end] == '\r' || head[end] == '\n');
        if (at > 0 && (head[at - 1] == '<' || head[at - 1] == ':') && isWhole)
            return true;
    }
    return false;
}

bool isGPX(std::string_view head) {
    return hasElement(head, "gpx");
}
bool isKML(std::string_view head) {
    return hasElement(head, "kml");
}
bool isTCX(std::string_view head) {
    return hasElement(head, "TrainingCenterDatabase");
}
bool isNMEA(std::string_view head) {
    head = KTTrimmed(head);
    return head.starts_with("$GP") || head.starts_with("$GN") || head.starts_with("$GL");
}
bool isZip(std::string_view head) {
    return head.starts_with("PK\x03\x04");
}
bool isFIT(std::string_view head) {
    return head.size() > 12 && head.substr(8, 4) == ".FIT";
}
bool isIGC(std::string_view head) {
    return head.starts_with("A") && head.find("\nHFDTE") != std::string_view::npos;
}
bool neverTells(std::string_view) {
    return false;
}

struct FormatRow {
    TrackFileFormat format;
    std::vector<std::string_view> extensions;
    bool (*hasContent)(std::string_view head);
};

const std::vector<FormatRow>& formats() {
    using Kind = TrackFileFormat::Kind;
    static const std::vector<FormatRow> rows = {
        {{Kind::GPX, "GPX", ""}, {".gpx"}, isGPX},
        {{Kind::GPSBabel, "NMEA", "nmea"}, {".nmea", ".nma", ".nme"}, isNMEA},
        {{Kind::GPSBabel, "KML", "kml"}, {".kml"}, isKML},
        {{Kind::KMZ, "KMZ", ""}, {".kmz"}, isZip},
        {{Kind::GPSBabel, "TCX", "gtrnctr"}, {".tcx"}, isTCX},
        {{Kind::GPSBabel, "FIT", "garmin_fit"}, {".fit"}, isFIT},
        {{Kind::GPSBabel, "IGC", "igc"}, {".igc"}, isIGC},
        {{Kind::GPSBabel, "CSV", "unicsv"}, {".csv"}, neverTells},
    };
    return rows;
}

/// The first bytes of @p file, without zero bytes, so that markup can be found in UTF-16 too.
std::string headOf(const std::filesystem::path& file, bool withZeros) {
    std::string head(kHeadLength, '\0');
    std::ifstream stream(file, std::ios::binary);
    stream.read(head.data(), static_cast<std::streamsize>(head.size()));
    head.resize(static_cast<std::size_t>(stream.gcount()));
    if (!withZeros)
        std::erase(head, '\0');
    return head;
}

} // namespace

const TrackFileFormat* trackFileFormat(const std::filesystem::path& file) {
    std::string extension = KTLowercase(file.extension().string());
    for (const FormatRow& row : formats()) {
        if (std::ranges::find(row.extensions, extension) != row.extensions.end())
            return &row.format;
    }
    std::string head = headOf(file, true), text = headOf(file, false);
    for (const FormatRow& row : formats()) {
        if (row.hasContent(row.hasContent == isFIT ? head : text))
            return &row.format;
    }
    return nullptr;
}

std::vector<std::string> trackFileExtensions() {
    std::vector<std::string> extensions;
    for (const FormatRow& row : formats())
        extensions.insert(extensions.end(), row.extensions.begin(), row.extensions.end());
    return extensions;
}

std::string trackFileFormatNames() {
    std::vector<std::string> names;
    for (const FormatRow& row : formats())
        names.emplace_back(row.format.name);
    return KTJoin(names, ", ");
}
