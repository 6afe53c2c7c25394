// How quickly the photo table and the thumbnail browser react with 20,000 photos. Offscreen; prints each
// duration beside that of a frame at 60 Hz, and the longest time in which the event loop had no turn.

#include "collection/KTPhotoController.h"
#include "platform/defaults/KTUserDefaults.h"
#include "ui/photos/PhotoPane.h"
#include "ui/photos/ThumbnailBrowser.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QScrollBar>
#include <QStandardPaths>
#include <cstdio>
#include <thread>

namespace {

constexpr int kPhotos = 20'000, kFrames = 120;
constexpr double kFrame = 1000.0 / 60; // milliseconds

double milliseconds(const QElapsedTimer& timer) {
    return double(timer.nsecsElapsed()) / 1e6;
}

/// Runs the event loop until nothing is left to do; the longest turn.
double settle() {
    double longest = 0;
    for (int quiet = 0; quiet < 12;) {
        QElapsedTimer timer;
        timer.start();
        QCoreApplication::processEvents();
        const double turn = milliseconds(timer);
        longest = std::max(longest, turn);
        quiet = turn < 0.5 ? quiet + 1 : 0;
        if (quiet > 0)
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return longest;
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
    report(what, duration, std::max(duration, settle()));
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

void fill(KTPhotoManager& manager) {
    for (int i = 0; i < kPhotos; ++i) {
        const auto photo = KTPhoto::init();
        photo->setValueForKey("cityShown", "City " + std::to_string(i * 7919 % 1000));
        photo->setValueForKey("latitude", KTDecimal::fromDouble(i % 90));
        photo->setValueForKey("longitude", KTDecimal::fromDouble(i % 180));
        manager.insertObject(photo, manager.numberOfPhotos());
    }
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    QApplication application(argc, argv);
    KTUserDefaults::useThrowAwayDomain();
    KTPhotoManager manager;
    fill(manager);
    KTPhotoController controller(manager);
    controller.setup();
    KTThumbnailService thumbnails;
    PhotoPane pane(controller, thumbnails, {});
    pane.resize(900, 800);
    std::printf("%d photos; a frame is %.1f ms\n", kPhotos, kFrame);
    measure("show the table", [&] { pane.show(); });
    measureScrolling("a frame of scrolling the table", pane.table());
    measure("select all", [&] { pane.table().selectAll(); });
    measure("select one", [&] { manager.setSelectedPhotoIndexes({kPhotos / 2}); });
    measure("sort by city", [&] {
        manager.setPhotoSortDescriptors({{"cityShown", true}});
        pane.model().synchronize();
    });
    measure("filter by text", [&] { pane.model().setFilterText("city 12"); });
    measure("filter no more", [&] { pane.model().setFilterText({}); });
    measure("edit every photo", [&] {
        for (const auto& photo : *manager.photos())
            photo->setValueForKey("stateShown", "x");
    });
    measure("show the thumbnails", [&] { PhotoPane::setShownView(PhotoPane::Thumbnails); });
    measureScrolling("a frame of scrolling thumbnails", *pane.findChild<ThumbnailBrowser*>());
    measure("other size of thumbnails", [&] {
        KTUserDefaults::standardUserDefaults().setValue("defaultPhotoCellSize", KTDecimal::fromDouble(140));
    });
    controller.tearDown();
    return 0;
}
