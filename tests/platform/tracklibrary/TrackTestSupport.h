#pragma once
#include "platform/tracklibrary/GPXReader.h"
#include "platform/tracklibrary/KTTrackManager.h"
#include "tests/support/TestSupport.h"

#include <gtest/gtest.h>

/// Qt starts programs by a clone that shares memory, after which ThreadSanitizer takes this process for a
/// forked one.
#ifdef __SANITIZE_THREAD__
#define SKIP_UNDER_THREAD_SANITIZER() GTEST_SKIP()
#else
#define SKIP_UNDER_THREAD_SANITIZER() static_cast<void>(0)
#endif

inline KTInstant instant(std::int64_t milliseconds) {
    return KTInstantFromMilliseconds(milliseconds);
}

inline KTDecimal decimal(std::string_view text) {
    return KTDecimal::fromText(text).value();
}

/// Keeps what a reader reads.
struct CollectingSink : TrackFileSink {
    struct Track {
        KTTrack::Kind kind;
        std::string name;
        std::vector<std::vector<KTGeoPoint>> segments;
    };

    static KTGeoPoint geoPoint(const TrackFilePoint& point) {
        return {point.date, point.latitude.toDecimal(), point.longitude.toDecimal(),
                point.elevation.toDecimal()};
    }
    void beginTrack(KTTrack::Kind kind) override { tracks.push_back({kind, {}, {}}); }
    void beginSegment() override { tracks.back().segments.emplace_back(); }
    void addPoint(TrackFilePoint&& point) override {
        if (tracks.back().segments.empty())
            beginSegment();
        tracks.back().segments.back().push_back(geoPoint(point));
    }
    void endTrack(std::string name) override { tracks.back().name = std::move(name); }
    void addWaypoint(TrackFileWaypoint&& waypoint) override {
        waypoints.push_back({0, 0, waypoint.name, waypoint.comment, geoPoint(waypoint.point)});
    }

    std::vector<Track> tracks;
    std::vector<KTWaypoint> waypoints;
};

/// A GPX 1.1 file around @p content.
inline std::string gpx(std::string_view content) {
    return "<?xml version=\"1.0\"?>\n<gpx version=\"1.1\" xmlns=\"http://www.topografix.com/GPX/1/1\">\n" +
           std::string(content) + "</gpx>\n";
}

/// A track of one segment around @p points.
inline std::string gpxTrack(std::string_view points) {
    return gpx("<trk><trkseg>\n" + std::string(points) + "</trkseg></trk>\n");
}

inline std::string trackPoint(std::string_view latitude, std::string_view longitude, std::string_view time) {
    return "<trkpt lat=\"" + std::string(latitude) + "\" lon=\"" + std::string(longitude) + "\"><time>" +
           std::string(time) + "</time></trkpt>\n";
}

inline std::unique_ptr<KTTrackStore> openStore(const std::filesystem::path& file = ":memory:") {
    auto opened = KTTrackStore::open(file);
    EXPECT_EQ(opened.error, "");
    return std::move(opened.store);
}

/// Imports a track of @p points, without going through a file.
inline KTTrackImportResult importPoints(KTTrackStore& store, const std::vector<KTGeoPoint>& points,
                                        const std::string& hash = "hash") {
    auto number = [](const std::optional<KTDecimal>& value) {
        return value ? TrackNumber::fromText(value->toText()).value() : TrackNumber();
    };
    return store.importTracks("test.gpx", [&](TrackFileSink& sink) {
        sink.beginTrack(KTTrack::Kind::Track);
        for (const KTGeoPoint& point : points)
            sink.addPoint(
                {point.date, number(point.latitude), number(point.longitude), number(point.elevation)});
        sink.endTrack("test");
        return TrackFileContent{{}, hash, 1};
    });
}
