#include "tests/platform/cartography/drawing/GoldenPicture.h"

#include <QDir>
#include <algorithm>
#include <cstdlib>

namespace {

constexpr int kShrink = 4;
constexpr int kTolerance = 40;         // of 255, for one pixel of the shrunk pictures
constexpr double kMeanTolerance = 1.5; // for all of them

QImage shrunk(const QImage& image) {
    return image
        .scaled(image.width() / kShrink, image.height() / kShrink, Qt::IgnoreAspectRatio,
                Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB32);
}

int difference(QRgb a, QRgb b) {
    return std::max(
        {std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

} // namespace

testing::AssertionResult looksLikeGolden(const QImage& picture, const char* name) {
    const QString file = QString(WAYMARK_GOLDEN_PICTURES "/") + name + ".png";
    const QImage actual = shrunk(picture);
    if (std::getenv("WAYMARK_WRITE_GOLDEN_PICTURES") != nullptr) {
        actual.save(file);
        return testing::AssertionFailure() << "wrote " << file.toStdString();
    }
    const QImage golden = QImage(file).convertToFormat(QImage::Format_RGB32);
    int worst = 255;
    double sum = 0;
    if (golden.size() == actual.size()) {
        worst = 0;
        for (int y = 0; y < golden.height(); ++y)
            for (int x = 0; x < golden.width(); ++x) {
                const int here = difference(golden.pixel(x, y), actual.pixel(x, y));
                worst = std::max(worst, here);
                sum += here;
            }
    }
    const double mean = sum / std::max(1, golden.width() * golden.height());
    if (worst <= kTolerance && mean <= kMeanTolerance)
        return testing::AssertionSuccess();
    const QString kept = QDir::temp().filePath(QString("waymark-") + name + ".png");
    picture.save(kept);
    return testing::AssertionFailure() << name << " differs by " << worst << " at worst, " << mean
                                       << " on average; see " << kept.toStdString();
}
