#include "app/WaymarkMainMenu.h"
#include "collection/KTBatchOperationController.h"
#include "platform/undo/KTUndoManager.h"
#include "tests/ui/WindowWorld.h"

#include <QLineEdit>
#include <QProcess>
#include <QRegularExpression>

namespace {

namespace fs = std::filesystem;

/// The demo trip in a folder; a copy of it for the command line.
class MainJobTest : public testing::Test {
protected:
    MainJobTest() {
        EXPECT_EQ(trip.makeIn(world.folder / "trip"), std::nullopt);
        fs::copy(world.folder / "trip", world.folder / "copy", fs::copy_options::recursive);
    }

    std::size_t unsaved() { return world.manager.unsavedPhotos()->size(); }
    bool waitForUnsaved(std::size_t count) {
        return runEventLoopUntil([&] { return world.isQuiet() && unsaved() == count; });
    }
    void chooseZoneByKeyboard() {
        QLineEdit* field = nullptr;
        ASSERT_TRUE(runEventLoopUntil([&] { return (field = world.find<QLineEdit>("Search time zones")); }));
        field->setFocus();
        QTest::keyClicks(field, DemoTrip::kTimeZone);
        QTest::keyClick(field, Qt::Key_Return);
        ASSERT_TRUE(runEventLoopUntil([&] { return world.find<QLineEdit>("Search time zones") == nullptr; }));
    }
    std::vector<fs::path> photoFiles(const char* where = "trip") {
        std::vector<fs::path> files;
        for (const auto& entry : fs::directory_iterator(world.folder / where / "photos"))
            files.push_back(entry.path());
        std::ranges::sort(files);
        return files;
    }
    void geotagCopyOnCommandLine() {
        QProcess process;
        const QString copy = QString::fromStdString((world.folder / "copy").string());
        process.start(WAYMARK_CLI,
                      {"--library", ":memory:", "geotag", "--no-place", "--track", copy + "/walk.gpx",
                       "--time-zone", DemoTrip::kTimeZone, copy + "/photos"});
        ASSERT_TRUE(process.waitForFinished(120'000));
        ASSERT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    }
    /// The bytes of a file, but for the moment of writing, of which the two programs know each its own.
    static QByteArray timeless(const fs::path& file) {
        QString bytes = QString::fromLatin1(QByteArray::fromStdString(contentOf(file)));
        static const QRegularExpression moment("20[2-9]\\d([:-])\\d\\d\\1\\d\\d[T ]\\d\\d:\\d\\d:\\d\\d");
        return bytes.replace(moment, "moment").toLatin1();
    }
    void expectSameBytesAsCommandLine() {
        const auto own = photoFiles(), other = photoFiles("copy");
        ASSERT_EQ(own.size(), other.size());
        for (std::size_t i = 0; i < own.size(); ++i)
            EXPECT_EQ(timeless(own[i]), timeless(other[i])) << own[i];
    }

    WindowWorld world;
    DemoTrip trip;
};

TEST_F(MainJobTest, GivesTheSameFilesAsTheCommandLine) {
    world.drop({world.folder / "trip"});
    ASSERT_TRUE(world.waitForTrip(12));
    world.press("another time zone…");
    chooseZoneByKeyboard();
    ASSERT_TRUE(world.waitForButton("Geotag 9 Photos"));
    EXPECT_TRUE(world.shows("9 photos can be geotagged"));
    EXPECT_TRUE(
        world.waitForText("2 photos failed the time criteria and 1 photo does not have a time stamp."));

    world.press("Geotag 9 Photos");
    ASSERT_TRUE(waitForUnsaved(9));
    EXPECT_TRUE(world.waitForText("9 photos with unsaved changes, 12 loaded photos"));
    EXPECT_EQ(world.app->undoManager()->undoActionName(), "Geotag Photos");
    ASSERT_TRUE(world.app->mainMenu()->performCommand("undo"));
    ASSERT_TRUE(waitForUnsaved(0));
    EXPECT_FALSE(world.app->undoManager()->canUndo());
    ASSERT_TRUE(world.waitForButton("Geotag 9 Photos"));
    ASSERT_TRUE(world.app->mainMenu()->performCommand("redo"));
    ASSERT_TRUE(waitForUnsaved(9));
    for (const fs::path& file : photoFiles())
        EXPECT_EQ(contentOf(file), contentOf(world.folder / "copy/photos" / file.filename())) << file;

    world.press("Write Changed Tags");
    ASSERT_TRUE(waitForUnsaved(0));
    geotagCopyOnCommandLine();
    expectSameBytesAsCommandLine();

    world.manager.removePhotos(*world.manager.photos());
    world.drop({world.folder / "trip/photos"});
    ASSERT_TRUE(world.waitForTrip(12));
    EXPECT_EQ(std::ranges::count_if(*world.manager.photos(), &KTPhoto::isGeotagged), 9);
}

} // namespace
