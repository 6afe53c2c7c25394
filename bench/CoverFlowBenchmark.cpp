// What a frame of the strip of photos costs while it moves through 500 photos. Offscreen; prints the
// processor time of the frames, the longest beside the time of a frame at 60 Hz. QT_SCALE_FACTOR=2 for a fine
// screen.
//
// CoverFlowBenchmark PHOTO…: the strip shows these, again and again.
#include "ui/datetools/CoverFlowView.h"

#include "platform/defaults/KTUserDefaults.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QStandardPaths>
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <thread>

namespace {

constexpr int kPhotos = 500, kFrames = 240, kFramesPerStep = 6;
constexpr double kFrame = 1000.0 / 60; // milliseconds

/// Of this thread, in milliseconds: others may be busy beside it.
double processorTime() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

class Strip : public CoverFlowView {
public:
    using CoverFlowView::CoverFlowView;
    std::vector<double> times;

protected:
    void paintEvent(QPaintEvent* event) override {
        const double start = processorTime();
        CoverFlowView::paintEvent(event);
        times.push_back(processorTime() - start);
    }
};

void runFor(int milliseconds) {
    QElapsedTimer timer;
    for (timer.start(); timer.elapsed() < milliseconds;) {
        QCoreApplication::processEvents();
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
}

void report(const char* what, std::vector<double> times) {
    std::ranges::sort(times);
    const auto at = [&](double part) { return times[std::size_t(part * double(times.size() - 1))]; };
    std::printf("%-34s %4zu frames: median %5.1f ms, 95%% within %5.1f ms, longest %5.1f ms (%.2f frames)\n",
                what, times.size(), at(0.5), at(0.95), at(1), at(1) / kFrame);
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    QApplication application(argc, argv);
    KTUserDefaults::useThrowAwayDomain();
    auto photos = std::make_shared<CoverFlowView::Photos>();
    for (int i = 1; i < argc && photos->size() < kPhotos; i = i + 1 == argc ? 1 : i + 1)
        if (auto photo = KTPhoto::initWithFile(argv[i]))
            photos->push_back(std::move(photo));
    if (photos->empty()) {
        std::fprintf(stderr, "usage: CoverFlowBenchmark PHOTO…\n");
        return 2;
    }
    KTThumbnailService thumbnails;
    Strip strip(thumbnails);
    strip.resize(strip.sizeHint());
    strip.setPhotos(photos, 0);
    strip.show();
    runFor(2000);
    for (const char* what : {"moving, pictures new to the strip", "moving back, the same way"}) {
        strip.times.clear();
        const int direction = strip.front() == 0U ? 1 : -1;
        for (int step = 0; step < kFrames / kFramesPerStep; ++step) {
            strip.step(direction);
            runFor(int(kFrame * kFramesPerStep));
        }
        report(what, strip.times);
    }
    strip.times.clear();
    for (int frame = 0; frame < 60; ++frame)
        strip.repaint();
    report("at rest", strip.times);
    return 0;
}
