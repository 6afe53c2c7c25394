#include "collection/KTBatchOperationController.h"
#include "platform/undo/KTUndoManager.h"
#include "tests/ui/WindowWorld.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QTableView>

namespace {

namespace fs = std::filesystem;

/// No pointer touches the windows here: keys go to where the keyboard is.
class KeyboardJobTest : public testing::Test {
protected:
    KeyboardJobTest() { EXPECT_EQ(trip.makeIn(world.folder / "trip"), std::nullopt); }

    /// A window that the key closes gets no release of it.
    static void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QWidget* const whereTheKeyboardIs = nullptr;
        ASSERT_TRUE(QGuiApplication::focusWindow());
        QTest::keyPress(whereTheKeyboardIs, Qt::Key(key), modifiers);
        if (QGuiApplication::focusWindow())
            QTest::keyRelease(whereTheKeyboardIs, Qt::Key(key), modifiers);
    }
    static void type(const QString& text) { QTest::keyClicks(static_cast<QWidget*>(nullptr), text); }
    /// As a window manager does when a sheet has gone.
    bool waitForWindow() {
        world.window().activateWindow();
        return runEventLoopUntil([&] { return QApplication::activeWindow() == &world.window(); });
    }

    /// Goes on by Tab until the keyboard is in what answers @p isWanted; null if it never gets there.
    template<class Widget>
    Widget* tabTo(const std::function<bool(const Widget&)>& isWanted) {
        for (int presses = 0; presses < 300; ++presses) {
            if (auto* const reached = qobject_cast<Widget*>(QApplication::focusWidget());
                reached && isWanted(*reached))
                return reached;
            press(Qt::Key_Tab);
        }
        return nullptr;
    }
    QAbstractButton* tabToButton(const QString& text) {
        return tabTo<QAbstractButton>([&](const QAbstractButton& each) { return each.text() == text; });
    }

    /// Types files into the file dialog that stands open, or is about to.
    void chooseFiles(const std::vector<fs::path>& files) {
        QPointer<QFileDialog> dialog; // ends when it is closed
        ASSERT_TRUE(runEventLoopUntil([&] {
            dialog = qobject_cast<QFileDialog*>(QApplication::activeWindow());
            return dialog && dialog->isModal();
        }));
        QStringList quoted;
        for (const fs::path& file : files)
            quoted << '"' + QString::fromStdString(file) + '"';
        ASSERT_TRUE(qobject_cast<QLineEdit*>(QApplication::focusWidget())); // of the file name
        type(quoted.join(' '));
        // The list of completions takes the first one, if it is there by then.
        for (int presses = 0; presses < 3 && dialog && dialog->isVisible(); ++presses) {
            dialog->activateWindow(); // which the list took
            press(Qt::Key_Return);
            QTest::qWait(50);
        }
        ASSERT_TRUE(runEventLoopUntil([&] { return !dialog; }));
        ASSERT_TRUE(waitForWindow());
    }
    std::vector<fs::path> photoFiles() {
        std::vector<fs::path> files;
        for (const auto& entry : fs::directory_iterator(world.folder / "trip/photos"))
            files.push_back(entry.path());
        return files;
    }
    bool waitForUnsaved(std::size_t count) {
        return runEventLoopUntil(
                   [&] { return world.isQuiet() && world.manager.unsavedPhotos()->size() == count; }) &&
               waitForWindow();
    }
    /// Chooses an entry of the menu bar as a reader of the letters that are underlined does.
    void chooseFromMenu(const QString& menu, const QString& entry) {
        auto* const bar = world.window().findChild<QMenuBar*>();
        const auto keyOf = [](const QList<QAction*>& actions, const QString& title) {
            for (const QAction* const action : actions)
                if (action->text().remove('&') == title)
                    return QKeySequence::mnemonic(action->text());
            return QKeySequence();
        };
        const QKeySequence menuKey = keyOf(bar->actions(), menu);
        ASSERT_FALSE(menuKey.isEmpty()) << menu.toStdString();
        press(menuKey[0].key(), menuKey[0].keyboardModifiers());
        auto* const shown = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(shown);
        const QKeySequence entryKey = keyOf(shown->actions(), entry);
        ASSERT_FALSE(entryKey.isEmpty()) << entry.toStdString();
        press(entryKey[0].key());
        ASSERT_FALSE(QApplication::activePopupWidget());
    }

    WindowWorld world;
    DemoTrip trip;
};

TEST_F(KeyboardJobTest, DoesTheWholeMainJob) {
    ASSERT_TRUE(waitForWindow());
    press(Qt::Key_O, Qt::ControlModifier);
    chooseFiles(photoFiles());
    ASSERT_TRUE(runEventLoopUntil(
        [&] { return world.manager.numberOfPhotos() == 12 && !world.manager.importInProgress(); }));
    chooseFromMenu("File", "Add Tracks…");
    chooseFiles({world.folder / "trip/walk.gpx"});
    ASSERT_TRUE(world.waitForTrip(12));

    auto* const table = tabTo<QTableView>([](const QTableView& each) { return each.isVisible(); });
    ASSERT_TRUE(table);
    press(Qt::Key_Home);
    press(Qt::Key_Down);
    ASSERT_TRUE(runEventLoopUntil([&] { return world.manager.selectedPhotos()->size() == 1; }));
    press(Qt::Key_A, Qt::ControlModifier);
    ASSERT_TRUE(runEventLoopUntil([&] { return world.manager.selectedPhotos()->size() == 12; }));
    EXPECT_TRUE(tabTo<QWidget>([](const QWidget& each) { return each.accessibleName() == "Map"; }));

    ASSERT_TRUE(tabTo<QAbstractButton>([](const QAbstractButton& each) {
        return each.isCheckable() && each.toolTip() == "The time zone to which the camera's clock was set";
    }));
    for (int presses = 0; presses < 3 && QApplication::activeWindow() == &world.window(); ++presses)
        press(Qt::Key_Down);
    QLineEdit* field = nullptr;
    ASSERT_TRUE(runEventLoopUntil([&] {
        field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        return field && field->accessibleName() == "Search time zones";
    }));
    type(DemoTrip::kTimeZone);
    press(Qt::Key_Return);
    ASSERT_TRUE(waitForWindow());

    ASSERT_TRUE(world.waitForButton("Geotag 9 Photos"));
    ASSERT_TRUE(tabToButton("Geotag 9 Photos"));
    press(Qt::Key_Space);
    ASSERT_TRUE(waitForUnsaved(9));
    press(Qt::Key_Z, Qt::ControlModifier);
    ASSERT_TRUE(waitForUnsaved(0));
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_TRUE(waitForUnsaved(9));
    ASSERT_TRUE(tabToButton("Write Changed Tags"));
    press(Qt::Key_Space);
    ASSERT_TRUE(waitForUnsaved(0));

    std::size_t geotagged = 0;
    for (const fs::path& file : photoFiles())
        geotagged += tagsOf(file).hasValue("EXIF:GPSLatitude");
    EXPECT_EQ(geotagged, 9U);
}

} // namespace
