#include "platform/pictures/PictureResizer.h"

#include <QColorSpace>
#include <QPainter>
#include <cmath>
#include <cstring>
#include <numbers>
#include <vector>

namespace {

constexpr double kLobes = 3;

using Lanes = float __attribute__((vector_size(16)));
using Numbers = int __attribute__((vector_size(16)));
using Bytes = unsigned char __attribute__((vector_size(4)));
using Words = unsigned short __attribute__((vector_size(8)));

struct Pixel {
    Lanes lanes;
};
using Row = std::vector<Pixel>;

double lanczos(double x) {
    x = std::abs(x);
    if (x >= kLobes)
        return 0;
    const double angle = std::numbers::pi * x;
    return x < 1e-9 ? 1 : kLobes * std::sin(angle) * std::sin(angle / kLobes) / (angle * angle);
}

/// The source pixels that make up one pixel, with their weights.
struct Taps {
    int first = 0;
    std::vector<float> weights; // they add up to 1
};

std::vector<Taps> tapsFor(int from, int to) {
    const double step = double(from) / to, stretch = std::max(step, 1.0);
    std::vector<Taps> all(static_cast<std::size_t>(to));
    for (int i = 0; i < to; ++i) {
        const double centre = (i + 0.5) * step - 0.5;
        Taps& taps = all[static_cast<std::size_t>(i)];
        taps.first = std::max(0, int(std::ceil(centre - kLobes * stretch)));
        const int last = std::min(from - 1, int(std::floor(centre + kLobes * stretch)));
        double sum = 0;
        for (int source = taps.first; source <= last; ++source)
            sum += lanczos((source - centre) / stretch);
        for (int source = taps.first; source <= last; ++source)
            taps.weights.push_back(float(lanczos((source - centre) / stretch) / sum));
    }
    return all;
}

/// Components from 0 to 255, of 8 or 16 bits in the image.
void readRow(const QImage& image, int y, Row& into) {
    const uchar* bytes = image.constScanLine(y);
    if (image.format() == QImage::Format_RGB32) {
        for (Pixel& pixel : into) {
            Bytes packed;
            std::memcpy(&packed, bytes, sizeof packed);
            pixel.lanes = __builtin_convertvector(packed, Lanes);
            bytes += sizeof packed;
        }
        return;
    }
    for (Pixel& pixel : into) {
        Words packed;
        std::memcpy(&packed, bytes, sizeof packed);
        pixel.lanes = __builtin_convertvector(packed, Lanes) * (255.0f / 65535.0f);
        bytes += sizeof packed;
    }
}

void scaleRow(const Row& from, const std::vector<Taps>& taps, Row& into) {
    for (std::size_t x = 0; x < taps.size(); ++x) {
        Lanes sum = {};
        const Pixel* source = from.data() + taps[x].first;
        for (const float weight : taps[x].weights)
            sum += (source++)->lanes * weight;
        into[x].lanes = sum;
    }
}

void writeRow(const Row& row, uchar* bytes) {
    constexpr Lanes kNothing = {}, kFull = {255, 255, 255, 255}, kHalf = {0.5f, 0.5f, 0.5f, 0.5f};
    for (const Pixel& pixel : row) {
        Lanes value = pixel.lanes;
        value = value < kNothing ? kNothing : value;
        value = value > kFull ? kFull : value;
        const Bytes packed = __builtin_convertvector(__builtin_convertvector(value + kHalf, Numbers), Bytes);
        std::memcpy(bytes, &packed, sizeof packed);
        bytes += sizeof packed;
    }
}

/// Rows are scaled as the rows below come to need them; as many are kept as one row is made of.
void resize(const QImage& from, QImage& to, bool isWide) {
    const auto across = tapsFor(from.width(), to.width()), down = tapsFor(from.height(), to.height());
    std::size_t kept = 0;
    for (const Taps& taps : down)
        kept = std::max(kept, taps.weights.size());
    Row source(static_cast<std::size_t>(from.width())), sum(static_cast<std::size_t>(to.width()));
    std::vector<Row> rows(kept, sum);
    int done = 0; // rows of the source
    for (int y = 0; y < to.height(); ++y) {
        const Taps& taps = down[static_cast<std::size_t>(y)];
        const int end = taps.first + int(taps.weights.size());
        for (done = std::max(done, taps.first); done < end; ++done) {
            readRow(from, done, source);
            scaleRow(source, across, rows[static_cast<std::size_t>(done) % kept]);
        }
        std::ranges::fill(sum, Pixel{});
        for (std::size_t i = 0; i < taps.weights.size(); ++i) {
            const Row& row = rows[(static_cast<std::size_t>(taps.first) + i) % kept];
            const float weight = taps.weights[i];
            for (std::size_t x = 0; x < sum.size(); ++x)
                sum[x].lanes += row[x].lanes * weight;
        }
        if (isWide) // red comes first there, blue in the result
            for (Pixel& pixel : sum)
                pixel.lanes = __builtin_shuffle(pixel.lanes, Numbers{2, 1, 0, 3});
        writeRow(sum, to.scanLine(y));
    }
}

bool isWide(const QImage& image) {
    return image.format() == QImage::Format_Grayscale16 || image.depth() == 64;
}

} // namespace

QImage opaquePicture(const QImage& image) {
    if (!image.hasAlphaChannel())
        return image;
    QImage result(image.size(), isWide(image) ? QImage::Format_RGBX64 : QImage::Format_RGB32);
    if (result.isNull())
        return result;
    result.fill(Qt::white);
    QPainter(&result).drawImage(0, 0, image);
    result.setColorSpace(image.colorSpace());
    return result;
}

QImage resizedPicture(const QImage& image, const QSize& size) {
    const bool wide = isWide(image), isGrey = image.isGrayscale() && image.depth() <= 16;
    const QImage source =
        opaquePicture(image).convertToFormat(wide ? QImage::Format_RGBX64 : QImage::Format_RGB32);
    QImage result(size, QImage::Format_RGB32);
    if (source.isNull() || result.isNull())
        return {};
    resize(source, result, wide);
    if (isGrey)
        result.convertTo(QImage::Format_Grayscale8);
    result.setColorSpace(image.colorSpace());
    return result;
}
