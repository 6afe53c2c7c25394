// How quickly the main window reacts with 20,000 photos. Offscreen; prints each duration until nothing is
// left to do, that in frames at 60 Hz, and the longest time in which the event loop had no turn.

#include "app/WaymarkAppController.h"
#include "app/WaymarkAppDelegate.h"
#include "app/WaymarkWindowController.h"
#include "collection/KTPhotoManager.h"
#include "geotagging/KTTimeZoneHUDController.h"
#include "platform/defaults/KTUserDefaults.h"
#include "ui/application/ApplicationLook.h"
#include "ui/application/ApplicationUserInterface.h"
#include "ui/photos/PhotoPane.h"
#include "ui/photos/ThumbnailBrowser.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <cstdio>
#include <fstream>
#include <thread>

namespace {

constexpr int kPhotos = 20'000, kFrames = 120;
constexpr double kFrame = 1000.0 / 60, kQuiet = 400; // milliseconds

double milliseconds(const QElapsedTimer& timer) {
    return double(timer.nsecsElapsed()) / 1e6;
}

struct Turns {
    double longest = 0; ///< milliseconds
    double end = 0;     ///< when the last one that did something ended, after the begin
};

/// Runs the event loop until nothing has been left to do for a while.
Turns settle() {
    Turns turns;
    QElapsedTimer all;
    all.start();
    do {
        QElapsedTimer timer;
        timer.start();
        QCoreApplication::processEvents();
        const double turn = milliseconds(timer);
        turns.longest = std::max(turns.longest, turn);
        if (turn > 0.5)
            turns.end = milliseconds(all);
        else
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
    } while (milliseconds(all) - turns.end < kQuiet);
    return turns;
}

void report(const char* what, double duration, double longestTurn) {
    std::printf("%-34s %9.1f ms  %6.1f frames   longest turn %7.1f ms\n", what, duration, duration / kFrame,
                longestTurn);
}

void measure(const char* what, const std::function<void()>& action) {
    QElapsedTimer timer;
    timer.start();
    action();
    const double duration = milliseconds(timer);
    const Turns turns = settle();
    report(what, duration + turns.end, std::max(duration, turns.longest));
}

void measureScrolling(const char* what, QAbstractItemView& view) {
    QScrollBar& bar = *view.verticalScrollBar();
    double worst = 0, sum = 0;
    for (int frame = 0; frame < kFrames; ++frame) {
        QElapsedTimer timer;
        timer.start();
        bar.setValue(bar.maximum() * frame / kFrames);
        view.viewport()->repaint();
        const double duration = milliseconds(timer);
        worst = std::max(worst, duration);
        sum += duration;
    }
    report(what, sum / kFrames, worst);
}

/// A minute between one photo and the next, each edited once.
void fill(KTPhotoManager& manager) {
    const QDateTime begin(QDate(2014, 7, 4), QTime(8, 0));
    for (int i = 0; i < kPhotos; ++i) {
        const auto photo = KTPhoto::init();
        photo->setValueForKey("cityShown", "City " + std::to_string(i * 7919 % 1000));
        photo->setValueForKey("latitude", KTDecimal::fromDouble(i % 90));
        photo->setValueForKey("longitude", KTDecimal::fromDouble(i % 180));
        photo->setDateTimeOriginalComponents(KTDateComponents::dateComponentsWithString(
            begin.addSecs(60 * i).toString("yyyy:MM:dd hh:mm:ss").toStdString()));
        manager.insertObject(photo, manager.numberOfPhotos());
    }
}

/// A track of 5,000 points, four minutes from one to the next.
std::filesystem::path makeTrack(const QTemporaryDir& folder) {
    const std::filesystem::path file = folder.filePath("track.gpx").toStdString();
    std::ofstream gpx(file);
    gpx << "<?xml version=\"1.0\"?><gpx version=\"1.1\" "
           "xmlns=\"http://www.topografix.com/GPX/1/1\"><trk><trkseg>";
    const QDateTime begin(QDate(2014, 7, 4), QTime(8, 0), Qt::UTC);
    for (int i = 0; i < 5'000; ++i)
        gpx << "<trkpt lat=\"47\" lon=\"" << 8 + i * 1e-4 << "\"><time>"
            << begin.addSecs(240 * i).toString(Qt::ISODate).toStdString() << "</time></trkpt>";
    gpx << "</trkseg></trk></gpx>";
    return file;
}

/// What a view does alone: frames, and how long it takes to show much that is new.
void measureViews(PhotoPane& pane, KTPhotoManager& manager) {
    measureScrolling("a frame of scrolling the table", pane.table());
    measure("select all", [&] { pane.table().selectAll(); });
    measure("select one", [&] { manager.setSelectedPhotoIndexes({kPhotos / 2}); });
    measure("sort by city", [&] { manager.sortPhotosSoon({{"cityShown", true}}); });
    measure("filter by text", [&] { pane.model().setFilterText("city 12"); });
    measure("filter no more", [&] { pane.model().setFilterText({}); });
    measure("show the thumbnails", [&] { PhotoPane::setShownView(PhotoPane::Thumbnails); });
    measureScrolling("a frame of scrolling thumbnails", *pane.findChild<ThumbnailBrowser*>());
    measure("other size of thumbnails", [&] {
        KTUserDefaults::standardUserDefaults().setValue("defaultPhotoCellSize", KTDecimal::fromDouble(140));
    });
    measure("show the table again", [&] { PhotoPane::setShownView(PhotoPane::Table); });
}

void measureZoneChanges(WaymarkAppController& app, const std::filesystem::path& trackFile) {
    auto& zone = app.waymarkWindowController()->timeZoneHUDController()->photoAssumedTimeZoneController();
    const auto change = [&](const char* name) { zone.setDefaultTimeZone(*KTTimeZone::fromText(name)); };
    measure("another time zone", [&] { change("+02:00"); });
    app.photoManager().setSelectedPhotos(*app.photoManager().photos());
    settle();
    measure("another one, with all selected", [&] { change("+05:00"); });
    app.importFilesAtPaths({trackFile});
    settle();
    measure("another one, with a track", [&] { change("+04:00"); });
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    const QTemporaryDir home;
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        qputenv(variable, home.path().toLocal8Bit());
    QApplication application(argc, argv);
    applyLook(application);
    KTUserDefaults::useThrowAwayDomain();
    ApplicationUserInterface screen;
    WaymarkAppDelegate delegate(screen);
    delegate.applicationDidFinishLaunching();
    WaymarkAppController& app = *delegate.waymarkAppController();
    settle();
    fill(app.photoManager());
    std::printf("%d photos in the whole window; a frame is %.1f ms\n", kPhotos, kFrame);
    auto* const window = static_cast<QWidget*>(app.waymarkWindowController()->window()->viewHandle());
    settle();
    measureViews(*window->findChild<PhotoPane*>(), app.photoManager());
    measureZoneChanges(app, makeTrack(home));
    measure("edit every photo", [&] {
        for (const auto& photo : *app.photoManager().photos())
            photo->setValueForKey("stateShown", "x");
    });
    delegate.applicationWillTerminate();
    return 0;
}
