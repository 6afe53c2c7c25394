// Draws the offline base map in several views into an image of 1600 × 1000, and composes frames of a pan and
// a zoom at 1920 × 1080. Prints the times and their ratios to what is aimed at. With a folder as argument it
// writes what it has drawn there, light and dark.
#include "platform/cartography/drawing/KTBaseMapLayer.h"
#include "platform/cartography/drawing/KTMapCompositor.h"
#include "platform/defaults/KTUserDefaults.h"

#include <QGuiApplication>
#include <QPainter>
#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {

constexpr int kRounds = 5;
constexpr double kAimQuick = 15, kAimFine = 60, kAimFrame = 16; // milliseconds

struct View {
    const char* name;
    KTMapPoint centre;
    double zoom;
};
constexpr View kViews[] = {
    {"world", {10, 20}, 2},       {"europe", {12, 50}, 4.5},   {"alps", {9, 46.5}, 7},
    {"basel", {7.59, 47.56}, 10}, {"walk", {7.59, 47.56}, 13}, {"fiji", {179.5, -17}, 7},
    {"nordic", {20, 72}, 3.9},    {"japan", {138, 36}, 5.5},   {"antarctica", {0, -85}, 3},
    {"indonesia", {118, -3}, 5},  {"usa", {-95, 39}, 4.3},     {"canada", {-90, 70}, 4},
};

/// Of the processor, on this thread: what else the machine does hardly counts.
double millisecondsOf(const auto& work) {
    const auto now = [] {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
    };
    const double start = now();
    work();
    return now() - start;
}

double bestOf(const auto& work) {
    double best = 1e9;
    for (int round = 0; round < kRounds; ++round)
        best = std::min(best, millisecondsOf(work));
    return best;
}

void benchmarkBaseMap(const QString& folder) {
    KTBaseMapLayer layer;
    std::printf("reading the data: %.0f ms\n", millisecondsOf([] { KTBaseMapStore::sharedStore()->data(); }));
    for (const View& view : kViews) {
        const KTMapViewState state(view.centre, view.zoom, 1600, 1000);
        const auto draw = [&](bool isAntialiased, bool isDark) {
            return KTMapPicture({&layer}, state, {isDark, isAntialiased});
        };
        const double first = millisecondsOf([&] { draw(false, false); });
        const double quick = bestOf([&] { draw(false, false); }), fine = bestOf([&] { draw(true, false); });
        std::printf("%-11s first %5.1f ms, plain %5.1f ms (%.2f of the aim), antialiased %5.1f ms (%.2f of "
                    "the aim)\n",
                    view.name, first, quick, quick / kAimQuick, fine, fine / kAimFine);
        if (folder.isEmpty())
            continue;
        draw(true, false).save(folder + "/" + view.name + ".png");
        draw(true, true).save(folder + "/" + view.name + "-dark.png");
    }
}

void runUntilExact(KTMapCompositor& map) {
    while (!map.isUpToDate())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void benchmarkFrames() {
    KTBaseMapLayer layer;
    KTMapCompositor map;
    map.addLayer(layer);
    const KTMapViewState start({9, 46.5}, 6, 1920, 1080);
    QImage screen(1920, 1080, QImage::Format_RGB32);
    const auto frames = [&](const char* name, const auto& next) {
        map.setViewState(start, false);
        runUntilExact(map);
        double worst = 0, total = 0;
        constexpr int kFrames = 60;
        KTMapViewState state = start;
        for (int frame = 0; frame < kFrames; ++frame) {
            state = next(state);
            const double time = millisecondsOf([&] {
                QCoreApplication::processEvents();
                map.setViewState(state, true);
                QPainter painter(&screen);
                map.paint(painter);
            });
            worst = std::max(worst, time);
            total += time;
        }
        std::printf("%-11s mean %5.1f ms (%.2f of the aim), longest %5.1f ms\n", name, total / kFrames,
                    total / kFrames / kAimFrame, worst);
    };
    frames("panning", [](const KTMapViewState& state) { return state.pannedBy(-17, 9); });
    frames("zooming", [](const KTMapViewState& state) {
        return state.zoomedTo(state.zoom() + 0.05, {400, 300});
    });
    frames("zooming out", [](const KTMapViewState& state) { return state.zoomedTo(state.zoom() - 0.05); });
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    KTUserDefaults::useThrowAwayDomain();
    benchmarkBaseMap(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString());
    benchmarkFrames();
}
