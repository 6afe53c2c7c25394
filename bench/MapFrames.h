#pragma once
#include "platform/cartography/drawing/KTMapCompositor.h"

#include <QCoreApplication>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cstdio>
#include <ctime>

/// Milliseconds of the processor that @p work takes on this thread: what else the machine does hardly counts.
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

inline void runUntilExact(KTMapCompositor& map) {
    while (!map.isUpToDate())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// Composes 60 frames of a motion from @p start, each with the state that @p next makes of the one before,
/// and prints what one takes on the main thread.
void benchmarkMotion(const char* name, KTMapCompositor& map, const KTMapViewState& start, const auto& next) {
    constexpr int kFrames = 60;
    constexpr double kAim = 16; // milliseconds
    map.setViewState(start, false);
    runUntilExact(map);
    QImage screen(int(start.width()), int(start.height()), QImage::Format_RGB32);
    double worst = 0, total = 0;
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
                total / kFrames / kAim, worst);
}

inline void benchmarkMotions(KTMapCompositor& map, const KTMapViewState& start) {
    benchmarkMotion("panning", map, start, [](const auto& state) { return state.pannedBy(-17, 9); });
    benchmarkMotion("zooming", map, start, [](const auto& state) {
        return state.zoomedTo(state.zoom() + 0.05, {400, 300});
    });
    benchmarkMotion("zooming out", map, start,
                    [](const auto& state) { return state.zoomedTo(state.zoom() - 0.05); });
}
