#include "platform/cartography/drawing/tracks/KTTrackLayer.h"

#include "platform/cartography/drawing/tracks/KTShownTracks.h"
#include "platform/tracklibrary/KTTrackManager.h"
#include "tests/support/EventLoop.h"
#include "tests/support/TestSupport.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>
#include <set>

namespace {

using namespace std::chrono_literals;

KTInstant at(std::chrono::seconds time) {
    return KTInstant(std::chrono::sys_days(std::chrono::year(2020) / 6 / 1)) + time;
}

KTMapTrack track(std::int64_t id, std::vector<std::vector<KTTrackPosition>> segments, QColor colour = {}) {
    return {id, "track", std::make_shared<KTTrackLine>(segments), colour};
}

QImage drawn(KTTrackLayer& layer, const KTMapViewState& state, const KTMapLook& look = {}) {
    QImage image(int(state.width()), int(state.height()), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    if (const auto drawing = layer.drawing(state)) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing, look.isAntialiased);
        drawing->draw(painter, state, look, false);
    }
    return image;
}

/// The painted stretches along a row of pixels.
std::vector<std::pair<int, int>> stretches(const QImage& image, int y) {
    std::vector<std::pair<int, int>> found;
    for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, y).saturation() < 100)
            continue;
        if (found.empty() || found.back().second < x - 1)
            found.push_back({x, x});
        found.back().second = x;
    }
    return found;
}

TEST(TrackLayerTest, DrawsGapsDotted) {
    KTTrackLayer layer;
    const KTMapViewState state({0, 0}, 2, 300, 100); // 2.84 pixels a degree
    layer.setTracks(
        {track(1, {{{{-50, 0}, at(0s)}, {{-20, 0}, at(9s)}}, {{{20, 0}, at(99s)}, {{50, 0}, at(108s)}}})});
    const auto row = stretches(drawn(layer, state), 50);
    ASSERT_GT(row.size(), 10u);
    EXPECT_LT(row.size(), 25u);
    EXPECT_NEAR(row.front().first, 7, 2);
    EXPECT_NEAR(row.back().second, 292, 2);
    EXPECT_GT(row.front().second, 80);
    EXPECT_LT(row.back().first, 220);
    // The dots stay with the map while it is panned.
    const auto panned = stretches(drawn(layer, state.pannedBy(-40, 0)), 50);
    std::set<int> dots, pannedDots;
    for (const auto& [left, right] : row)
        if (left > 100 && right < 200)
            dots.insert((left + right) / 2);
    for (const auto& [left, right] : panned)
        if (left > 60 && right < 160)
            pannedDots.insert((left + right) / 2 + 40);
    EXPECT_EQ(dots, pannedDots);
}

TEST(TrackLayerTest, DrawsAndFindsTracksAcrossTheDateLine) {
    KTTrackLayer layer;
    layer.setTracks({track(1, {{{{170, 0}, at(0s)}, {{-170, 0}, at(200s)}}})});
    const KTMapViewState here({180, 0}, 2, 400, 100), world({0, 0}, 1, 1100, 300);
    EXPECT_EQ(stretches(drawn(layer, here), 50).size(), 1u);
    EXPECT_EQ(stretches(drawn(layer, world), 150).size(), 2u); // at both repetitions in the view
    const KTMapPoint places[] = {{175, 0}, {-175, 0}};
    for (const KTMapPoint place : places) {
        const auto hit = layer.hitTest(here.viewPoint(place), here);
        ASSERT_TRUE(hit);
        EXPECT_NEAR(hit->position.x, place.x, 0.01);
        EXPECT_NEAR(std::chrono::duration<double>(*hit->instant - at(0s)).count(), place.x > 0 ? 50 : 150,
                    0.1);
    }
    EXPECT_FALSE(layer.hitTest({200, 70}, here));
}

TEST(TrackLayerTest, DrawsLinesThatReachFarBeyondTheView) {
    KTTrackLayer layer;
    layer.setTracks({track(1, {{{{-80, 0.0001}, {}}, {{80, 0.0001}, {}}}, {{{-80, -0.0001}, {}}}})});
    const KTMapViewState state({0, 0}, 20, 200, 200);
    const QImage image = drawn(layer, state);
    const int above = int(state.viewPoint(KTMapPoint{0, 0.0001}).y),
              below = int(state.viewPoint(KTMapPoint{0, 0}).y);
    EXPECT_EQ(stretches(image, above).size(), 1u);
    EXPECT_GT(stretches(image, below).size(), 10u); // the gap from one end back to the other
}

TEST(TrackLayerTest, TracksKeepTheirColours) {
    KTTrackLayer layer;
    std::vector<KTMapTrack> tracks;
    for (int id = 0; id < 10; ++id)
        tracks.push_back(track(id, {{{{0, double(id)}, {}}, {{10, double(id)}, {}}}}));
    layer.setTracks(tracks);
    for (const bool isDark : {false, true}) {
        std::set<QRgb> colours;
        for (int id = 0; id < 10; ++id)
            colours.insert(layer.colourOfTrack(id, isDark).rgb());
        EXPECT_EQ(colours.size(), 10u);
    }
    const QColor third = layer.colourOfTrack(3, false);
    tracks.erase(tracks.begin(), tracks.begin() + 3);
    tracks.push_back(track(20, {}, Qt::magenta));
    tracks.push_back(track(21, {}));
    layer.setTracks(tracks);
    EXPECT_EQ(layer.colourOfTrack(3, false), third);
    EXPECT_EQ(layer.colourOfTrack(20, true), QColor(Qt::magenta));
    EXPECT_NE(layer.colourOfTrack(21, false), third); // one of those that are free
    EXPECT_FALSE(layer.colourOfTrack(1, false).isValid());
    EXPECT_EQ(drawn(layer, KTMapViewState({5, 3}, 6, 100, 100)).pixelColor(50, 50), third);
    layer.setTracks({});
    EXPECT_EQ(layer.drawing({}), nullptr);
}

TEST(ShownTracksTest, ReadsTracksOfALibraryAndKeepsTheirOrder) {
    const TemporaryFolder folder;
    auto opened = KTTrackStore::open(":memory:");
    ASSERT_TRUE(opened.store) << opened.error;
    KTTrackManager manager(std::move(opened.store));
    std::string gpx = "<gpx version=\"1.1\">";
    for (int i = 0; i < 3; ++i)
        gpx += "<trk><name>" + std::to_string(i) + "</name><trkseg><trkpt lat=\"47\" lon=\"" +
               std::to_string(i) + "\"/><trkpt lat=\"48\" lon=\"8\"/></trkseg></trk>";
    const auto imported = manager.importFile(folder.file("a.gpx", gpx + "</gpx>"));
    ASSERT_EQ(imported.trackIDs.size(), 3u) << imported.error;
    const auto& ids = imported.trackIDs;
    KTTrackLayer layer;
    {
        KTShownTracks shown(manager.store(), layer);
        shown.show({{ids[2], "c"}, {ids[0], "a"}, {999, "gone"}});
        EXPECT_FALSE(shown.isComplete());
        EXPECT_TRUE(runEventLoopUntil([&] { return shown.isComplete(); }));
        ASSERT_EQ(layer.tracks().size(), 3u);
        EXPECT_EQ(layer.tracks()[0].id, ids[2]);
        EXPECT_NEAR(layer.tracks()[0].line->bounds()->west, 2, 1e-9);
        EXPECT_EQ(layer.tracks()[1].name, "a");
        EXPECT_TRUE(layer.tracks()[2].line->points().empty());
        shown.show({{ids[0], "a"}});
        EXPECT_TRUE(shown.isComplete()); // known already
        shown.show({{ids[1], "b"}});
    } // a reading may be under way
    EXPECT_TRUE(layer.tracks().empty());
}

} // namespace
