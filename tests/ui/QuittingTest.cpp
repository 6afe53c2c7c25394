#include "collection/KTBatchOperationController.h"
#include "platform/cartography/KTMapController.h"
#include "tests/support/LoopbackServer.h"
#include "tests/ui/WindowWorld.h"

#include <QNetworkProxy>
#include <condition_variable>
#include <set>

namespace {

namespace fs = std::filesystem;

/// Ends the application in the midst of work. What is tested is that it ends at all, without a fault, and
/// what it leaves on the disk.
class QuittingTest : public testing::Test {
protected:
    QuittingTest() {
        fs::create_directory(folder / "photos");
        for (int i = 0; i < kPhotos; ++i)
            makePhoto(folder, "photos/" + std::to_string(100 + i) + ".jpg",
                      {{"EXIF:DateTimeOriginal", "2014:07:04 10:00:00"}});
    }

    std::set<std::string> names() const {
        std::set<std::string> found;
        for (const auto& entry : fs::recursive_directory_iterator(folder / "photos"))
            found.insert(entry.path().filename());
        return found;
    }

    static constexpr int kPhotos = 60;
    TemporaryFolder folder;
    std::unique_ptr<WindowWorld> world = std::make_unique<WindowWorld>();
};

TEST_F(QuittingTest, InAnImportHarmsNothing) {
    const auto before = names();
    for (const std::size_t loaded : {std::size_t(0), std::size_t(1), std::size_t(7)}) {
        if (!world)
            world = std::make_unique<WindowWorld>();
        world->drop({folder / "photos"});
        ASSERT_TRUE(runEventLoopUntil([&] { return world->manager.numberOfPhotos() >= loaded; }));
        world.reset();
    }
    EXPECT_EQ(names(), before);
}

TEST_F(QuittingTest, WhileThumbnailsAreMadeHarmsNothing) {
    world->drop({folder / "photos"});
    ASSERT_TRUE(runEventLoopUntil([&] { return world->manager.numberOfPhotos() == kPhotos; }));
    KTUserDefaults::standardUserDefaults().setValue("defaultPhotoView", std::int64_t(0));
    QApplication::processEvents();
    world.reset();
    EXPECT_EQ(names().size(), std::size_t(kPhotos));
}

TEST_F(QuittingTest, InABatchLeavesEachFileOldOrNew) {
    const auto before = names();
    world->drop({folder / "photos"});
    ASSERT_TRUE(runEventLoopUntil(
        [&] { return world->manager.numberOfPhotos() == kPhotos && !world->manager.importInProgress(); }));
    for (const auto& photo : *world->manager.photos())
        photo->setValueForKey("title", "New title");
    world->press("Write Changed Tags");
    ASSERT_TRUE(runEventLoopUntil([&] { return world->manager.unsavedPhotos()->size() < kPhotos - 2; }));
    const std::size_t unsaved = world->manager.unsavedPhotos()->size();
    EXPECT_GT(unsaved, 0U); // else it was no quitting in the midst
    world.reset();
    EXPECT_EQ(names(), before); // and no hidden folder is left
    std::size_t written = 0;
    for (const std::string& name : before) {
        const KTTagDictionary tags = tagsOf(folder / "photos" / name);
        EXPECT_TRUE(tags.hasValue("EXIF:DateTimeOriginal")) << name;
        written += tags.hasValue("XMP:Title");
    }
    EXPECT_GE(written, kPhotos - unsaved);
    EXPECT_LT(written, std::size_t(kPhotos));
}

/// A tile server that lets every request wait until it may answer, or gives up after a while.
class SlowTileServer {
public:
    ~SlowTileServer() { answer(); }
    void answer() {
        std::lock_guard guard(mutex);
        mayAnswer = true;
        changed.notify_all();
    }
    bool hasGivenUp() const { return gaveUp; }

private:
    std::string wait() {
        std::unique_lock lock(mutex);
        if (!changed.wait_for(lock, std::chrono::seconds(30), [this] { return mayAnswer; }))
            gaveUp = true;
        return LoopbackServer::answer(404, "");
    }

    std::mutex mutex;
    std::condition_variable changed;
    bool mayAnswer = false;
    std::atomic<bool> gaveUp = false;

public:
    LoopbackServer server{[this](const auto&) { return wait(); }}; // ends first
};

TEST_F(QuittingTest, AmidADownloadOfTilesWaitsForNoServer) {
    QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
    const auto slow = std::make_unique<SlowTileServer>();
    KTUserDefaults::standardUserDefaults().setValue("mapTilesPattern",
                                                    "http://" + slow->server.hostAndPort() + "/{z}/{x}/{y}");
    world->app->waymarkWindowController()->mapController()->setMapDataSource("custom");
    ASSERT_TRUE(runEventLoopUntil([&] { return !slow->server.requests().empty(); }));
    world.reset();
    EXPECT_FALSE(slow->hasGivenUp());
    slow->answer();
    QApplication::processEvents();
}

} // namespace
