// Draws frames of every transition between two pictures of 1920 × 1080 and prints what one takes, beside the
// same crossfade made by a painter with opacity. With a folder as argument it writes one frame of each there.
#include "MapFrames.h"
#include "platform/transitions/KTTransition.h"

#include <QGuiApplication>

namespace {

constexpr QSize kSize(1920, 1080);
constexpr int kFrames = 40;
constexpr double kAim = 16; // milliseconds
constexpr const char* kNames[kTransitionStyles] = {"none",      "fade",         "move in",  "push",  "reveal",
                                                   "copy",      "disintegrate", "dissolve", "flash", "mod",
                                                   "page curl", "ripple",       "swipe"};

QImage picture(QRgb upper, QRgb lower) {
    QImage image(kSize, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient sky(0, 0, kSize.width() / 3.0, kSize.height());
    sky.setColorAt(0, QColor(upper));
    sky.setColorAt(1, QColor(lower));
    painter.fillRect(image.rect(), sky);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int i = 0; i < 60; ++i) {
        painter.setBrush(QColor::fromHsv(i * 41 % 360, 120, 80 + i * 37 % 170));
        painter.drawEllipse(QPoint(i * 331 % kSize.width(), i * 173 % kSize.height()), 40 + i % 60,
                            40 + i % 60);
    }
    return image;
}

double crossfadeOfPainter(const QImage& from, const QImage& to) {
    QImage onto(kSize, QImage::Format_RGB32);
    double total = 0;
    for (int frame = 1; frame <= kFrames; ++frame)
        total += millisecondsOf([&] {
            QPainter painter(&onto);
            painter.drawImage(0, 0, from);
            painter.setOpacity(double(frame) / (kFrames + 1));
            painter.drawImage(0, 0, to);
        });
    return total / kFrames;
}

void benchmark(unsigned style, const QImage& from, const QImage& to, double reference,
               const QString& folder) {
    QImage onto(kSize, QImage::Format_RGB32);
    double total = 0, worst = 0;
    for (int frame = 1; frame <= kFrames; ++frame) {
        const double time = millisecondsOf([&] {
            KTDrawTransition(KTTransitionStyle(style), from, to, double(frame) / (kFrames + 1), onto);
        });
        total += time;
        worst = std::max(worst, time);
        if (!folder.isEmpty() && frame == kFrames * 2 / 5)
            onto.save(folder + "/" + kNames[style] + ".png");
    }
    std::printf("%-13s %5.1f ms a frame (%.2f of a painter's crossfade), worst %5.1f ms (%.2f of the aim)\n",
                kNames[style], total / kFrames, total / kFrames / reference, worst, worst / kAim);
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const QImage from = picture(0xff204080, 0xffe0a060), to = picture(0xff90c0e0, 0xff305020);
    const double reference = crossfadeOfPainter(from, to);
    std::printf("a painter's crossfade: %.1f ms a frame\n", reference);
    for (unsigned style = 1; style < kTransitionStyles; ++style)
        benchmark(style, from, to, reference, argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString());
}
