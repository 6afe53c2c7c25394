#include "ui/datetools/StandingPicture.h"

#include <QPainter>
#include <cmath>
#include <numbers>

namespace {

constexpr double kReflectedPart = 0.28, kReflectedStrength = 0.32;
constexpr double kLargestTurn = 62 * std::numbers::pi / 180;

/// @p weight of @p b in 256 parts, for two colours' channels at a time.
inline QRgb mixed(QRgb a, QRgb b, unsigned weight) {
    const unsigned rest = 256 - weight;
    const unsigned odd = ((a & 0xff00ff) * rest + (b & 0xff00ff) * weight) >> 8 & 0xff00ff;
    const unsigned even = ((a >> 8 & 0xff00ff) * rest + (b >> 8 & 0xff00ff) * weight) & 0xff00ff00;
    return odd | even;
}

/// What one column of the view shows. Rows are counted in parts of 65536.
struct Column {
    int left, right;  // columns of the picture
    unsigned weight;  // of the right one, of 256
    int row, rowStep; // of the picture: where the first row of the view lies, and how far the next one is
    unsigned cover;   // how much of the column the picture fills, of 256
};
constexpr int kRow = 65536;

int inRowParts(double rows) {
    return int(std::lround(std::clamp(rows, -32000.0, 32000.0) * kRow));
}

} // namespace

StandingPicture StandingPicture::of(const QImage& picture) {
    const int reflected = int(picture.height() * kReflectedPart);
    StandingPicture result{
        QImage(picture.width(), picture.height() + reflected, QImage::Format_ARGB32_Premultiplied),
        picture.height()};
    result.image.fill(Qt::transparent);
    QPainter painter(&result.image);
    painter.drawImage(0, 0, picture);
    painter.drawImage(0, picture.height(), picture.mirrored(), 0, 0, -1, reflected);
    QLinearGradient fading(0, picture.height(), 0, picture.height() + reflected);
    fading.setColorAt(0, QColor::fromRgbF(0, 0, 0, kReflectedStrength));
    fading.setColorAt(1, Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(0, picture.height(), picture.width(), reflected, fading);
    return result;
}

/// A point x from the picture's middle comes to x·cos(a)·d/(d − x·sin(a)) when the picture is turned by a and
/// the eye is d away; what is there seems d/(d − x·sin(a)) times as high. So a column of the view shows one
/// column of the picture, stretched evenly.
StandingPicture::View StandingPicture::seen(double turn, double scale, int eyeLevel, double distance,
                                            bool isAtRest) const {
    const double sine = std::sin(turn * kLargestTurn), cosine = std::cos(turn * kLargestTurn);
    const double half = image.width() / 2.0, eyeRow = height - eyeLevel;
    auto factorAt = [&](double x) { return distance / (distance - x * sine) * scale; };
    const double leftEnd = -half * cosine * factorAt(-half), rightEnd = half * cosine * factorAt(half);
    const double largest = std::max(factorAt(-half), factorAt(half));
    const double smallest = std::min(factorAt(-half), factorAt(half));
    const int firstX = int(std::floor(leftEnd)), endX = int(std::ceil(rightEnd));
    const double above = -eyeRow * (eyeRow > 0 ? largest : smallest);
    const int firstY = int(std::floor(above)) - 1, endY = int(std::ceil((image.height() - eyeRow) * largest));
    // Narrowed beforehand, nothing of the picture falls between the columns.
    const QImage source = isAtRest && turn != 0
                              ? image.scaled(std::max(2, endX - firstX), image.height(),
                                             Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                              : image;

    std::vector<Column> columns;
    for (int x = firstX; x < endX; ++x) {
        const double seenAt = std::clamp(x + 0.5, leftEnd, rightEnd) / scale;
        const double inPicture = seenAt * distance / (distance * cosine + seenAt * sine);
        const double at =
            std::clamp((inPicture / half + 1) / 2 * source.width() - 0.5, 0.0, source.width() - 1.0);
        const double factor = factorAt(inPicture);
        const double cover = std::min<double>(x + 1, rightEnd) - std::max<double>(x, leftEnd);
        columns.push_back({int(at), std::min(int(at) + 1, source.width() - 1),
                           unsigned((at - std::floor(at)) * 256),
                           inRowParts((firstY + 0.5) / factor + eyeRow), inRowParts(1 / factor),
                           unsigned(std::clamp(cover, 0.0, 1.0) * 256)});
    }

    View view{QImage(endX - firstX, std::max(1, endY - firstY), QImage::Format_ARGB32_Premultiplied),
              QPoint(firstX, firstY - eyeLevel)};
    const int lastRow = source.height() - 1;
    const auto* const pixels = reinterpret_cast<const QRgb*>(source.constBits());
    const int pixelsPerRow = int(source.bytesPerLine() / qsizetype(sizeof(QRgb)));
    for (int y = 0; y < view.image.height(); ++y) {
        auto* out = reinterpret_cast<QRgb*>(view.image.scanLine(y));
        for (Column& column : columns) {
            const int row = column.row;
            column.row += column.rowStep;
            if (row <= -column.rowStep / 2 || row >= (lastRow + 1) * kRow) {
                *out++ = 0;
                continue;
            }
            const int at = std::clamp(row - kRow / 2, 0, lastRow * kRow), upper = at / kRow;
            const QRgb* const a = pixels + upper * pixelsPerRow;
            const QRgb* const b = upper < lastRow ? a + pixelsPerRow : a;
            const QRgb colour =
                mixed(mixed(a[column.left], a[column.right], column.weight),
                      mixed(b[column.left], b[column.right], column.weight), unsigned(at % kRow) >> 8);
            // The upper edge is smoothed: how much of this pixel lies below it.
            unsigned cover = column.cover;
            if (row < column.rowStep / 2)
                cover = cover * unsigned(row + column.rowStep / 2) / unsigned(column.rowStep);
            *out++ = cover >= 256 ? colour : mixed(0, colour, cover);
        }
    }
    return view;
}
