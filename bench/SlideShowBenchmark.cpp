// Runs a slide show of two photos of 12 megapixels in a window of 1920 × 1080, with its map and without, and
// prints for each transition what a frame takes on the main thread, everything included, and how many were
// painted.
#include "MapFrames.h"
#include "metadata/KTExifTool.h"
#include "platform/concurrency/KTOperationQueue.h"
#include "platform/defaults/KTUserDefaults.h"
#include "ui/slideshow/SlideShowWindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

namespace {

constexpr double kAim = 16; // milliseconds

class PaintCounter : public QObject {
public:
    int paints = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
};

std::shared_ptr<KTPhoto> photo(const QString& file, const QColor& colour, std::int64_t latitude) {
    QImage image(4000, 3000, QImage::Format_RGB32);
    image.fill(colour);
    QPainter painter(&image);
    for (int i = 0; i < 300; ++i)
        painter.fillRect(i * 331 % 4000, i * 173 % 3000, 200, 150, QColor::fromHsv(i * 41 % 360, 150, 200));
    painter.end();
    image.save(file, "JPEG", 90);
    KTExifTool::sharedExifTool().setValuesForKeysWithDictionary(
        {{"EXIF:GPSLatitude", KTValue(latitude)},
         {"EXIF:GPSLatitudeRef", "N"},
         {"EXIF:GPSLongitude", KTValue(std::int64_t(8))},
         {"EXIF:GPSLongitudeRef", "E"}},
        file.toStdString());
    return KTPhoto::initWithFile(file.toStdString());
}

void runFor(int milliseconds) {
    QElapsedTimer time;
    for (time.start(); !time.hasExpired(milliseconds);)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
}

void benchmark(SlideShowController& show, SlideShowWindow& window, unsigned style) {
    PaintCounter counter;
    window.view().installEventFilter(&counter);
    show.setTransitionStyle(style);
    QElapsedTimer time;
    double longest = 0;
    const double used = millisecondsOf([&] {
        show.nextPhoto();
        time.start();
        do {
            longest = std::max(longest, millisecondsOf([] {
                                   QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
                               }));
        } while (window.view().isInTransition());
    });
    std::printf(
        "  style %2u: %5.1f ms a frame (%.2f of the aim), %3.0f frames a second, longest turn %5.1f ms\n",
        style, used / counter.paints, used / counter.paints / kAim,
        counter.paints * 1e3 / double(time.elapsed()), longest);
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    KTUserDefaults::useThrowAwayDomain();
    const QTemporaryDir folder;
    KTOperationQueue lines;
    SlideShowController show(0, SlideShowController::kFitPhotos, 1);
    show.setPhotos(
        {photo(folder.filePath("a.jpg"), Qt::darkCyan, 47), photo(folder.filePath("b.jpg"), Qt::darkRed, 46)},
        0);
    SlideShowWindow window(show, lines, nullptr);
    show.start();
    window.setWindowState(Qt::WindowNoState);
    window.resize(1920, 1080);
    runFor(2000);
    for (const bool hasMap : {true, false}) {
        window.map().setVisible(hasMap);
        runFor(1500);
        std::printf(hasMap ? "with the map\n" : "without the map\n");
        for (unsigned style = 1; style < kTransitionStyles; ++style) {
            benchmark(show, window, style);
            runFor(300);
        }
    }
}
