#include "platform/cartography/drawing/tiles/KTTileLayer.h"

#include "platform/cartography/drawing/tiles/TileDrawing.h"
#include "tests/support/EventLoop.h"
#include "tests/support/LoopbackServer.h"

#include <QBuffer>
#include <QNetworkProxy>
#include <QPainter>
#include <gtest/gtest.h>
#include <set>

namespace {

std::string tileOf(QColor colour) {
    QImage image(256, 256, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "png");
    return LoopbackServer::answer(200, bytes.toStdString());
}

TEST(TileViewTest, ChoosesTheTilesOfAView) {
    const auto places = [](KTMapPoint centre, double zoom, KTTileSource source, double ratio = 1) {
        return TileView::placesIn(KTMapViewState(centre, zoom, 512, 300, ratio), source);
    };
    const auto zoomOf = [&](double zoom, KTTileSource source) {
        const auto found = places({8, 47}, zoom, source);
        return found.empty() ? -1 : found.front().tile.z;
    };
    EXPECT_EQ(zoomOf(5.4, {}), 5);
    EXPECT_EQ(zoomOf(5.6, {}), 6);
    EXPECT_EQ(zoomOf(20, {}), 19); // drawn larger
    EXPECT_EQ(zoomOf(5, {.tileSize = 512}), 4);
    EXPECT_EQ(zoomOf(5, {.minimumZoom = 6}), -1);
    EXPECT_FALSE(places({8, 47}, 5, {.pattern = "{r}"}, 1.25).front().tile.isHighResolution);
    EXPECT_TRUE(places({8, 47}, 5, {.pattern = "{r}"}, 2).front().tile.isHighResolution);
    EXPECT_FALSE(places({8, 47}, 5, {}, 2).front().tile.isHighResolution);

    const auto dateLine = places({180, 0}, 4, {});
    std::set<int> columns;
    for (const auto& place : dateLine) {
        EXPECT_TRUE(place.tile.exists());
        columns.insert(place.tile.x);
    }
    EXPECT_EQ(columns, (std::set<int>{15, 0}));
    EXPECT_TRUE(dateLine.front().tile.x == 15 || dateLine.front().tile.x == 0); // the middle first
    for (const auto& place : places({0, 89}, 3, {}))
        EXPECT_TRUE(place.tile.exists());
}

class TileLayerTest : public testing::Test {
protected:
    static void SetUpTestSuite() { QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy); }

    void use(const LoopbackServer& server, int maximumZoom = 19) {
        layer.setStore(std::make_shared<KTTileStore>(
            KTTileSource{.name = "t",
                         .pattern = "http://" + server.hostAndPort() + "/{z}/{x}/{y}",
                         .maximumZoom = maximumZoom,
                         .attribution = "© T"},
            KTTileStore::Options()));
    }
    QImage drawn() {
        QImage image(int(state.width()), int(state.height()), QImage::Format_RGB32);
        image.fill(Qt::white);
        if (const auto drawing = layer.drawing(state)) {
            QPainter painter(&image);
            drawing->draw(painter, state, {}, false);
        }
        return image;
    }
    void settle() {
        layer.willShow(state);
        EXPECT_TRUE(runEventLoopUntil([&] { return layer.store()->isSettled(); }));
    }

    KTMapViewState state{{11.25, 0}, 4, 256, 256}; // the middle of tile column 8, between rows 7 and 8
    KTTileLayer layer;
};

TEST_F(TileLayerTest, ShowsTilesAsTheyArriveAndNothingElse) {
    LoopbackServer server([](const auto& request) {
        return request.target == "/4/8/7" ? tileOf(Qt::red) : LoopbackServer::answer(404, "");
    });
    int changes = 0;
    layer.setChangeHandler([&] { ++changes; });
    EXPECT_EQ(layer.drawing(state), nullptr);
    use(server);
    EXPECT_EQ(layer.attribution(), "© T");
    layer.drawing(state.widenedBy(500)); // of more than is shown nothing is fetched
    EXPECT_EQ(drawn().pixelColor(128, 64), QColor(Qt::white));
    changes = 0;
    settle();
    EXPECT_TRUE(runEventLoopUntil([&] { return changes > 0; }));
    const QImage image = drawn();
    EXPECT_EQ(image.pixelColor(128, 64), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(128, 127), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(128, 128), QColor(Qt::white)); // the offline map
    for (const auto& request : server.requests())             // only what is viewed
        EXPECT_TRUE(request.target == "/4/8/7" || request.target == "/4/8/8") << request.target;

    state = state.zoomedTo(6, {128, 64}); // until more arrives: a part of the larger tile
    layer.store()->want({});
    EXPECT_EQ(drawn().pixelColor(128, 64), QColor(Qt::red));
    layer.setStore(nullptr);
    EXPECT_EQ(layer.drawing(state), nullptr);
    EXPECT_EQ(layer.attribution(), "");
}

TEST_F(TileLayerTest, DrawsTheLargestZoomStillLarger) {
    LoopbackServer server(
        [](const auto& request) { return tileOf(request.target == "/3/4/3" ? Qt::red : Qt::blue); });
    use(server, 3);
    settle();
    const QImage image = drawn();
    EXPECT_EQ(image.pixelColor(20, 20), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(20, 200), QColor(Qt::blue));
    EXPECT_EQ(server.requests().size(), 2u);
}

TEST_F(TileLayerTest, TellsTroubleOnTheMainThread) {
    LoopbackServer server([](const auto&) { return LoopbackServer::answer(403, ""); });
    std::optional<std::string> problem;
    const auto main = std::this_thread::get_id();
    layer.setChangeHandler([&] {
        problem = layer.problem();
        EXPECT_EQ(std::this_thread::get_id(), main);
    });
    use(server);
    EXPECT_EQ(problem, std::nullopt);
    settle();
    EXPECT_TRUE(runEventLoopUntil([&] { return problem.has_value(); }));
    EXPECT_NE(problem->find("refuses"), std::string::npos);
    EXPECT_EQ(layer.attribution(), ""); // nothing of it is shown
    EXPECT_EQ(layer.drawing(state), nullptr);
}

TEST_F(TileLayerTest, IsOffUntilASourceIsChosen) {
    layer.setDataSource("");
    EXPECT_EQ(layer.store(), nullptr);
    EXPECT_EQ(layer.problem(), std::nullopt);
    layer.setDataSource("openstreetmap"); // without contact: asked for it, and nothing is sent
    EXPECT_NE(layer.problem().value_or("").find("mapTilesContact"), std::string::npos);
    EXPECT_EQ(layer.drawing(state), nullptr);
}

} // namespace
