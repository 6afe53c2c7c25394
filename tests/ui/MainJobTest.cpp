#include "collection/KTBatchOperationController.h"
#include "platform/undo/KTUndoManager.h"
#include "tests/ui/WindowWorld.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QProcess>
#include <QRegularExpression>
#include <QTableView>

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
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &world.window(), key,
                        modifiers);
    }
    /// Tabs until the focus is on what @p isIt takes.
    template<class IsIt>
    bool tabTo(const IsIt& isIt) {
        for (int step = 0; step < 120; ++step) {
            if (QWidget* const focused = QApplication::focusWidget(); focused && isIt(*focused))
                return true;
            key(Qt::Key_Tab);
        }
        return false;
    }
    bool tabToButton(const QString& text) {
        return tabTo([&](QWidget& widget) {
            auto* const button = qobject_cast<QAbstractButton*>(&widget);
            return button && button->text() == text;
        });
    }
    /// Types file names into the file dialog that is open.
    void choose(const std::vector<fs::path>& files) {
        QFileDialog* dialog = nullptr;
        ASSERT_TRUE(runEventLoopUntil(
            [&] { return (dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())); }));
        QString names;
        for (const fs::path& file : files)
            names += '"' + QString::fromStdString(file.string()) + "\" ";
        auto* const field = dialog->findChild<QLineEdit*>("fileNameEdit");
        ASSERT_NE(field, nullptr);
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field,
                         files.size() == 1 ? QString::fromStdString(files[0].string()) : names.trimmed());
        QTest::keyClick(field, Qt::Key_Return);
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
    EXPECT_TRUE(world.waitForText("2 photos failed the time criteria and 1 photo does not have a stamp."));

    world.press("Geotag 9 Photos");
    ASSERT_TRUE(waitForUnsaved(9));
    EXPECT_TRUE(world.waitForText("9 photos with unsaved changes, 12 loaded photos"));
    EXPECT_EQ(world.app->undoManager()->undoActionName(), "Geotag Photos");
    key(Qt::Key_Z, Qt::ControlModifier);
    ASSERT_TRUE(waitForUnsaved(0));
    EXPECT_FALSE(world.app->undoManager()->canUndo());
    ASSERT_TRUE(world.waitForButton("Geotag 9 Photos"));
    key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
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

TEST_F(MainJobTest, WorksWithTheKeyboardAlone) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&world.window()));
    key(Qt::Key_O, Qt::ControlModifier);
    choose(photoFiles());
    key(Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
    choose({trip.track});
    ASSERT_TRUE(world.waitForTrip(12));
    ASSERT_TRUE(tabTo([](QWidget& widget) { return qobject_cast<QTableView*>(&widget) != nullptr; }));
    key(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(world.manager.selectedPhotos()->size(), 12U);
    ASSERT_TRUE(tabToButton("my computer's time zone (UTC).") || tabToButton("another time zone…"));
    for (int step = 0; step < 3 && !world.find<QLineEdit>("Search time zones"); ++step)
        key(Qt::Key_Down);
    if (world.find<QLineEdit>("Search time zones") == nullptr)
        key(Qt::Key_Space);
    chooseZoneByKeyboard();
    ASSERT_TRUE(world.waitForButton("Geotag 9 Photos"));
    ASSERT_TRUE(tabToButton("Geotag 9 Photos"));
    key(Qt::Key_Space);
    ASSERT_TRUE(waitForUnsaved(9));
    key(Qt::Key_S, Qt::ControlModifier);
    ASSERT_TRUE(waitForUnsaved(0));
    geotagCopyOnCommandLine();
    expectSameBytesAsCommandLine();
}

} // namespace
