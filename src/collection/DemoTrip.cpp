#include "collection/DemoTrip.h"

#include "metadata/KTExifTool.h"
#include "platform/common/KTCalendar.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/desktop/KTResources.h"

#include <cmath>
#include <fstream>

namespace fs = std::filesystem;

namespace {

constexpr auto kStart =
    std::chrono::sys_days(std::chrono::year(2026) / 6 / 14) + std::chrono::hours(7); // UTC
constexpr int kSecondsBetweenPoints = 20;
constexpr int kPoints = 540; // three hours
constexpr int kGapBegin = 260, kGapEnd = 330;

// Seconds after the start at which each photo was taken; none for the one without a date.
constexpr std::optional<int> kPhotoTimes[] = {65,   430,  1000, 1777, 2500,         3333,
                                              4210, 5900, 7105, 8888, std::nullopt, 12600};

/// The walker's position at a point of the track, in degrees and metres.
struct Position {
    double latitude, longitude, elevation;
};

Position positionAt(int point) {
    const double way = double(point) / kPoints;
    return {47.0505 - 0.030 * way + 0.004 * std::sin(way * 9),
            8.3102 + 0.075 * way + 0.003 * std::cos(way * 13),
            434 + 60 * std::sin(way * 5) * std::sin(way * 5)};
}

bool writeTrack(const fs::path& file) {
    std::ofstream gpx(file);
    gpx << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<gpx version=\"1.1\" creator=\"Waymark\" xmlns=\"http://www.topografix.com/GPX/1/1\">\n"
           "<wpt lat=\"47.0505\" lon=\"8.3102\"><name>Start of the walk</name></wpt>\n"
           "<trk><name>Along the lake</name><trkseg>\n";
    for (int point = 0; point < kPoints; ++point) {
        if (point == kGapBegin)
            gpx << "</trkseg><trkseg>\n";
        if (point >= kGapBegin && point < kGapEnd)
            continue;
        const Position at = positionAt(point);
        char line[160];
        std::snprintf(line, sizeof line,
                      "<trkpt lat=\"%.6f\" lon=\"%.6f\"><ele>%.1f</ele><time>%s</time></trkpt>\n",
                      at.latitude, at.longitude, at.elevation,
                      KTISO8601Text(kStart + std::chrono::seconds(point * kSecondsBetweenPoints)).c_str());
        gpx << line;
    }
    gpx << "</trkseg></trk></gpx>\n";
    gpx.close();
    return !gpx.fail();
}

std::optional<std::string> writePhoto(const fs::path& file, const fs::path& picture,
                                      std::optional<int> seconds) {
    std::error_code error;
    if (!fs::copy_file(picture, file, error))
        return file.string() + ": " + error.message();
    fs::permissions(file, fs::perms::owner_write, fs::perm_options::add, error);
    KTTagDictionary tags{{"EXIF:Make", "Waymark"}, {"EXIF:Model", "Demo"}};
    if (seconds) {
        const KTCalendar cameraClock(*KTTimeZone::fromText(DemoTrip::kTimeZone));
        const std::string reading =
            cameraClock.componentsFromDate(kStart + std::chrono::seconds(*seconds)).exifString().value_or("");
        tags.set("EXIF:DateTimeOriginal", reading);
        tags.set("EXIF:CreateDate", reading);
    }
    KTPhotoOperation written = KTExifTool::sharedExifTool().setValuesForKeysWithDictionary(tags, file);
    return written.operationDidSucceed ? std::nullopt
                                       : std::optional(file.string() + ": " + written.resultDescription());
}

} // namespace

std::optional<std::string> DemoTrip::makeIn(const fs::path& folder) {
    std::error_code error;
    if (fs::exists(folder, error) && !fs::is_empty(folder, error))
        return KTStringWithFormat(KTLocalizedString("%@ is not empty"), {folder.string()});
    photos = folder / "photos";
    track = folder / "walk.gpx";
    if (fs::create_directories(photos, error); error)
        return photos.string() + ": " + error.message();
    if (!writeTrack(track))
        return KTStringWithFormat(KTLocalizedString("%@ could not be written."), {track.string()});
    int number = 0;
    for (const auto& seconds : kPhotoTimes) {
        ++number;
        char name[32], picture[32];
        std::snprintf(name, sizeof name, "IMG_%04d.jpg", 100 + number);
        std::snprintf(picture, sizeof picture, "demo/%02d.jpg", number);
        if (auto failure = writePhoto(photos / name, KTResourcePath(picture), seconds))
            return failure;
    }
    return std::nullopt;
}
