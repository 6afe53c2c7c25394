// Draws the offline base map in several views into an image of 1600 × 1000, and composes frames of a pan and
// a zoom at 1920 × 1080. Prints the times and their ratios to what is aimed at. With a folder as argument it
// writes what it has drawn there, light and dark.
#include "MapFrames.h"
#include "platform/cartography/drawing/KTBaseMapLayer.h"
#include "platform/defaults/KTUserDefaults.h"

#include <QGuiApplication>

namespace {

constexpr int kRounds = 5;
constexpr double kAimQuick = 15, kAimFine = 60; // milliseconds

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

void benchmarkFrames() {
    KTBaseMapLayer layer;
    KTMapCompositor map;
    map.addLayer(layer);
    benchmarkMotions(map, KTMapViewState({9, 46.5}, 6, 1920, 1080));
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    KTUserDefaults::useThrowAwayDomain();
    benchmarkBaseMap(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString());
    benchmarkFrames();
}
