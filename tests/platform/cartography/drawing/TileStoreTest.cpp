#include "platform/cartography/drawing/tiles/KTTileStore.h"

#include "tests/support/LoopbackServer.h"
#include "tests/support/TestSupport.h"

#include <QBuffer>
#include <QNetworkProxy>
#include <atomic>
#include <fstream>
#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

constexpr KTTileAddress kTile{3, 4, 5}, kOther{3, 5, 5};

std::string encoded(const QImage& image, const char* format = "png") {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes.toStdString();
}

std::string tileOf(QColor colour, int width = 256, int height = 256, const char* format = "png") {
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(colour);
    return encoded(image, format);
}

/// A picture of one pixel whose header says that it has many.
std::string pictureThatClaims(int side) {
    std::string bytes = tileOf(Qt::red, 1, 1);
    for (int at : {16, 20}) // width and height, in front of the checksum, which is not looked at first
        for (int byte = 0; byte < 4; ++byte)
            bytes[std::size_t(at + byte)] = char(side >> (8 * (3 - byte)));
    return bytes;
}

/// Gives one answer a request, and goes on with the last.
LoopbackServer::Responder inTurn(std::vector<std::string> answers) {
    return [answers = std::move(answers), next = std::size_t(0)](const auto&) mutable {
        return answers.at(std::min(next++, answers.size() - 1));
    };
}

class TileStoreTest : public testing::Test {
protected:
    static void SetUpTestSuite() { QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy); }
    void SetUp() override { clock = 1'700'000'000'000; }

    static KTInstant now() { return KTInstantFromMilliseconds(clock); }
    static void pass(std::chrono::milliseconds time) { clock += time.count(); }

    std::unique_ptr<KTTileStore> storeFor(const LoopbackServer& server,
                                          KTTileStore::Options options = {}) const {
        options.now = now;
        if (options.folder.empty())
            options.folder = folder / "tiles";
        return std::make_unique<KTTileStore>(
            KTTileSource{.name = "test", .pattern = "http://" + server.hostAndPort() + "/{z}/{x}/{y}{r}.png"},
            options);
    }
    /// Waits until nothing more arrives.
    static void settle(KTTileStore& store, std::vector<KTTileAddress> tiles) {
        store.want(std::move(tiles));
        const auto deadline = std::chrono::steady_clock::now() + 30s;
        while (!store.isSettled() && std::chrono::steady_clock::now() < deadline)
            std::this_thread::sleep_for(2ms);
        EXPECT_TRUE(store.isSettled());
    }
    static QColor colourOf(const KTTileStore& store, const KTTileAddress& tile) {
        const QImage image = store.image(tile);
        return image.isNull() ? QColor() : image.pixelColor(image.width() / 2, image.height() / 2);
    }
    static void expectProblems(const KTTileStore& store, const std::vector<std::string>& parts) {
        const auto problems = store.problems();
        ASSERT_EQ(problems.size(), parts.size());
        for (std::size_t i = 0; i < parts.size(); ++i)
            EXPECT_NE(problems[i].find(parts[i]), std::string::npos) << problems[i];
    }

    inline static std::atomic<std::int64_t> clock;
    TemporaryFolder folder;
};

TEST_F(TileStoreTest, FetchesWhatIsWantedAndTellsNothingElse) {
    LoopbackServer server(
        [](const auto&) { return LoopbackServer::answer(200, tileOf(Qt::green), "Set-Cookie: user=1\r\n"); });
    auto store = storeFor(server);
    std::atomic<int> arrivals = 0;
    const auto observation =
        store->observe([&](const KTChange& change) { arrivals += change.key == "tiles"; });
    EXPECT_TRUE(store->image(kTile).isNull());
    settle(*store, {kTile, {3, 4, 5, true}, {25, 0, 0}, {20, 0, 0}, {3, -1, 0}, {3, 8, 0}});
    EXPECT_EQ(colourOf(*store, kTile), QColor(Qt::green));
    EXPECT_EQ(arrivals, 2);

    const auto requests = server.requests();
    ASSERT_EQ(requests.size(), 2u);
    std::set<std::string> targets;
    for (const auto& request : requests) {
        targets.insert(request.target);
        EXPECT_TRUE(request.headers.at("user-agent").starts_with("Waymark/" WAYMARK_VERSION " ("));
        for (const char* header : {"cookie", "referer", "authorization", "from", "cache-control", "pragma"})
            EXPECT_FALSE(request.headers.contains(header)) << header;
    }
    EXPECT_EQ(targets, (std::set<std::string>{"/3/4/5.png", "/3/4/5@2x.png"}));
}

TEST_F(TileStoreTest, HonoursTheExpiryAndAsksWhetherAnOldTileHolds) {
    LoopbackServer server(inTurn({
        LoopbackServer::answer(200, tileOf(Qt::green),
                               "Cache-Control: max-age=3600\r\nETag: \"one\"\r\n"
                               "Last-Modified: Sun, 06 Nov 1994 08:49:37 GMT\r\n"),
        LoopbackServer::answer(304, "", "Cache-Control: max-age=7200\r\n"),
        LoopbackServer::answer(200, tileOf(Qt::blue)), // without expiry: seven days
        LoopbackServer::answer(500, ""),               // an old tile is better than none
    }));
    const auto ask = [&] { // in a new run of the program
        auto store = storeFor(server);
        settle(*store, {kTile});
        return colourOf(*store, kTile);
    };
    EXPECT_EQ(ask(), QColor(Qt::green));
    pass(59min);
    EXPECT_EQ(ask(), QColor(Qt::green));
    EXPECT_EQ(server.requests().size(), 1u);

    pass(2min);
    EXPECT_EQ(ask(), QColor(Qt::green));
    ASSERT_EQ(server.requests().size(), 2u);
    EXPECT_EQ(server.requests()[1].headers.at("if-none-match"), "\"one\"");
    EXPECT_EQ(server.requests()[1].headers.at("if-modified-since"), "Sun, 06 Nov 1994 08:49:37 GMT");
    pass(119min);
    EXPECT_EQ(ask(), QColor(Qt::green));
    EXPECT_EQ(server.requests().size(), 2u);

    pass(2min);
    EXPECT_EQ(ask(), QColor(Qt::blue));
    EXPECT_EQ(server.requests()[2].headers.at("if-none-match"), "\"one\"");
    pass(7 * 24h - 1min);
    EXPECT_EQ(ask(), QColor(Qt::blue));
    EXPECT_EQ(server.requests().size(), 3u);

    pass(2min);
    EXPECT_EQ(ask(), QColor(Qt::blue));
    EXPECT_EQ(server.requests().size(), 4u);
    EXPECT_FALSE(server.requests()[3].headers.contains("if-none-match"));
}

TEST_F(TileStoreTest, IsARareGuestOfServersThatWantNothingKept) {
    LoopbackServer server([](const auto&) {
        return LoopbackServer::answer(200, tileOf(Qt::green), "Cache-Control: no-store\r\n");
    });
    auto store = storeFor(server);
    settle(*store, {kTile});
    pass(4min);
    settle(*store, {kTile});
    EXPECT_EQ(server.requests().size(), 1u);
    pass(2min);
    settle(*store, {kTile});
    EXPECT_EQ(server.requests().size(), 2u);
    EXPECT_FALSE(std::filesystem::exists(folder / "tiles"));
}

TEST_F(TileStoreTest, LeavesAServerThatRefusesAlone) {
    LoopbackServer server(
        inTurn({LoopbackServer::answer(200, tileOf(Qt::green)), LoopbackServer::answer(403, tileOf(Qt::red)),
                LoopbackServer::answer(200, tileOf(Qt::blue))}));
    auto store = storeFor(server);
    settle(*store, {kTile});
    settle(*store, {kTile, kOther});
    settle(*store, {kTile, kOther, {3, 6, 5}});
    EXPECT_EQ(server.requests().size(), 2u);
    EXPECT_TRUE(store->image(kTile).isNull()); // the offline map returns
    EXPECT_TRUE(store->image(kOther).isNull());
    expectProblems(*store, {"refuses to give map tiles (HTTP status 403)"});

    store = storeFor(server); // the refusal was not kept as a tile
    settle(*store, {kOther});
    EXPECT_EQ(colourOf(*store, kOther), QColor(Qt::blue));
}

TEST_F(TileStoreTest, SaysOnceThatTilesAreMissingOrBroken) {
    const auto status = [](int code) { return LoopbackServer::answer(code, "<html>"); };
    const auto content = [](const std::string& body) { return LoopbackServer::answer(200, body); };
    std::string cut = tileOf(Qt::red, 256, 256);
    cut.resize(cut.size() / 2);
    const struct {
        std::string answer, problem;
    } cases[] = {
        {status(404), "no tiles for some of the places shown (HTTP status 404)"},
        {status(418), "unexpected answer"},
        {status(429), "wants a pause"},
        {status(503), "cannot give map tiles at the moment"},
        {content("<html>Welcome</html>"), "is not a map tile"},
        {content("<svg xmlns='http://www.w3.org/2000/svg' width='256' height='256'/>"), "is not a map tile"},
        {content(cut), "is not a map tile"},
        {content(tileOf(Qt::red, 256, 128)), "is not a map tile"},
        {content(tileOf(Qt::red, 2049, 2049)), "is not a map tile"},
        {content(pictureThatClaims(1'000'000)), "is not a map tile"},
        {content(pictureThatClaims(2000)), "is not a map tile"},
        {content(std::string(4'100'000, 'x')), "far larger"},
        {"HTTP/1.1 200 OK\r\nContent-Length: 1000\r\n\r\nabc", "broke off"},
        {"220 mail.example.org\r\n", "broke off"},
    };
    std::atomic<std::size_t> current = 0;
    LoopbackServer server([&](const auto&) { return cases[current].answer; });
    for (; current < std::size(cases); ++current) {
        SCOPED_TRACE(cases[current].problem);
        const std::size_t before = server.requests().size();
        auto store = storeFor(server, {.connections = 1});
        settle(*store, {kTile, kOther});
        settle(*store, {kTile, kOther});
        if (cases[current].problem != "broke off") { // else Qt tries again by itself
            EXPECT_LE(server.requests().size() - before, 2u);
        }
        EXPECT_TRUE(store->image(kTile).isNull());
        expectProblems(*store, {cases[current].problem});
    }
    EXPECT_FALSE(std::filesystem::exists(folder / "tiles")); // nothing of it was kept
    current = 0;
    LoopbackServer empty([](const auto&) { return LoopbackServer::answer(204, ""); });
    auto store = storeFor(empty);
    settle(*store, {kTile});
    EXPECT_TRUE(store->problems().empty());
}

TEST_F(TileStoreTest, WaitsForASlowServerAndThenLeavesItAloneForAWhile) {
    LoopbackServer server([](const auto&) { return std::string(); });
    auto store = storeFor(server, {.timeout = 200ms, .shortestPause = 1h, .connections = 1});
    settle(*store, {kTile, kOther});
    EXPECT_EQ(server.requests().size(), 1u);
    expectProblems(*store, {"did not answer within 0.2 seconds"});

    std::atomic<bool> isWell = false;
    LoopbackServer recovering([&](const auto&) {
        return isWell ? LoopbackServer::answer(200, tileOf(Qt::green))
                      : LoopbackServer::answer(503, "", "Retry-After: 1\r\n");
    });
    store = storeFor(recovering);
    settle(*store, {kTile});
    isWell = true;
    for (int i = 0; i < 5000 && store->image(kTile).isNull(); ++i)
        std::this_thread::sleep_for(2ms);
    EXPECT_EQ(colourOf(*store, kTile), QColor(Qt::green));
}

TEST_F(TileStoreTest, GivesUpWhatIsNoLongerShown) {
    std::atomic<bool> isSlow = true, hasArrived = false;
    LoopbackServer server([&](const auto& request) {
        hasArrived = true;
        return isSlow && request.target == "/3/4/5.png" ? std::string()
                                                        : LoopbackServer::answer(200, tileOf(Qt::green));
    });
    {
        auto store = storeFor(server, {.timeout = 1h, .connections = 1});
        store->want({kTile, {3, 0, 0}, {3, 0, 1}});
        while (!hasArrived)
            std::this_thread::sleep_for(1ms);
        settle(*store, {kOther});
        EXPECT_EQ(colourOf(*store, kOther), QColor(Qt::green));
        EXPECT_EQ(server.requests().size(), 2u);
        EXPECT_TRUE(store->problems().empty());
        isSlow = false;
        settle(*store, {kTile});
        EXPECT_EQ(colourOf(*store, kTile), QColor(Qt::green));
        isSlow = true;
        hasArrived = false;
        pass(30 * 24h);
        store->want({kTile});
        while (!hasArrived)
            std::this_thread::sleep_for(1ms);
    } // ends at once
}

TEST_F(TileStoreTest, KeepsNoMoreOnDiskThanItMay) {
    LoopbackServer server([](const auto& request) {
        std::string bytes = tileOf(request.target.size() % 2 ? Qt::green : Qt::blue);
        return LoopbackServer::answer(200, bytes + std::string(10'000, ' '));
    });
    auto store = storeFor(server, {.largestCache = 100'000, .largestMemory = 1});
    for (int x = 0; x < 8; ++x)
        settle(*store, {{3, x, 0}, {3, x, 1}, {3, x, 2}});
    std::uintmax_t sum = 0;
    int files = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder / "tiles"))
        if (entry.is_regular_file()) {
            sum += entry.file_size();
            ++files;
        }
    EXPECT_LE(sum, 100'000u);
    EXPECT_GE(files, 5);
    const std::size_t before = server.requests().size();
    settle(*storeFor(server), {{3, 7, 2}});
    EXPECT_EQ(server.requests().size(), before); // the one used last is still there
}

TEST_F(TileStoreTest, AsksAgainForWhatIsDamagedOnDisk) {
    LoopbackServer server([](const auto&) { return LoopbackServer::answer(200, tileOf(Qt::green)); });
    settle(*storeFor(server), {kTile});
    std::filesystem::path file;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder / "tiles"))
        if (entry.is_regular_file())
            file = entry.path();
    const std::string whole = contentOf(file);
    std::size_t requests = 1;
    for (const std::string& damaged :
         {std::string(), std::string("\n\n\n"), whole.substr(0, whole.size() - 1), whole.substr(0, 20),
          "waymark tile 1\nbytes 3\n\nabc" + std::string(),
          std::string("waymark tile 1\nfresh-until x\nbytes 99999999999999999999\n\n")}) {
        std::ofstream(file, std::ios::binary | std::ios::trunc) << damaged;
        auto store = storeFor(server);
        settle(*store, {kTile});
        EXPECT_EQ(colourOf(*store, kTile), QColor(Qt::green));
        EXPECT_EQ(server.requests().size(), ++requests);
    }
    std::filesystem::remove_all(folder / "tiles");
    std::ofstream(folder / "tiles") << "no folder";
    auto store = storeFor(server);
    settle(*store, {kTile});
    EXPECT_EQ(colourOf(*store, kTile), QColor(Qt::green));
}

TEST_F(TileStoreTest, SendsNothingForASourceThatCannotBeAsked) {
    KTTileStore store({.name = "t", .pattern = "ftp://t.org/{z}/{x}/{y}"}, {});
    settle(store, {kTile});
    expectProblems(store, {"not the address of a web server"});
}

} // namespace
