// Makes the pictures of the documents: the main window with the demo trip, in light and dark. Takes the
// folder that they are written into.

#include "geotagging/KTTimeZoneHUDController.h"
#include "tests/ui/WindowWorld.h"
#include "ui/application/ApplicationLook.h"

#include <QIcon>
#include <QPalette>
#include <QStandardPaths>
#include <cstdio>

namespace {

QPalette darkPalette() {
    QPalette palette(QColor(49, 54, 59), QColor(42, 46, 50));
    palette.setColor(QPalette::Base, QColor(27, 30, 32));
    palette.setColor(QPalette::AlternateBase, QColor(49, 54, 59));
    palette.setColor(QPalette::Highlight, QColor(61, 174, 233));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

void wait(int milliseconds) {
    QTest::qWait(milliseconds);
}

/// Packed as tightly as possible: the pictures are kept in the project's history.
bool save(QWidget& window, const QString& file) {
    return window.grab().toImage().convertToFormat(QImage::Format_RGB888).save(file, "PNG", 0);
}

bool takePictures(const QString& folder, const QString& kind) {
    WindowWorld world;
    if (DemoTrip().makeIn(world.folder / "trip"))
        return false;
    world.window().setWindowState(Qt::WindowNoState);
    world.window().resize(1280, 800);
    world.drop({world.folder / "trip"});
    auto& clock = *world.app->waymarkWindowController()->timeZoneHUDController();
    clock.setTimeZoneOptionsSelectedIndex(2);
    clock.photoAssumedTimeZoneController().setDefaultTimeZone(*KTTimeZone::fromText(DemoTrip::kTimeZone));
    if (!world.waitForTrip(12) || !world.waitForButton("Geotag 9 Photos"))
        return false;
    wait(3000); // map and thumbnails
    if (!save(world.window(), folder + "/proposed-" + kind + ".png"))
        return false;
    world.press("Geotag 9 Photos");
    wait(1500);
    world.app->zoomToFit();
    wait(2500);
    return save(world.window(), folder + "/geotagged-" + kind + ".png");
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: waymark-screenshots FOLDER\n", stderr);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    QApplication application(argc, argv);
    QIcon::setThemeSearchPaths(QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, "icons",
                                                         QStandardPaths::LocateDirectory));
    applyLook(application);
    const QString folder = QString::fromLocal8Bit(argv[1]);
    if (!takePictures(folder, "light"))
        return 1;
    QApplication::setPalette(darkPalette());
    applyLook(application);
    return takePictures(folder, "dark") ? 0 : 1;
}
