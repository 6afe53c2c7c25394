#include "ui/photos/ThumbnailPainter.h"

namespace {

constexpr double kBoardProportions = 1.5;

QRect centred(const QSize& size, const QRect& area) {
    const QSize fitted = size.scaled(area.size(), Qt::KeepAspectRatio);
    return {area.x() + (area.width() - fitted.width()) / 2, area.y() + (area.height() - fitted.height()) / 2,
            fitted.width(), fitted.height()};
}

void paintBoard(QPainter& painter, const QRect& board, const QPalette& palette, bool isBroken) {
    QColor ground = palette.color(QPalette::Text);
    ground.setAlphaF(0.08F);
    painter.fillRect(board, ground);
    if (!isBroken)
        return;
    QColor line = palette.color(QPalette::Text);
    line.setAlphaF(0.55F);
    painter.setPen(QPen(line, 1.5));
    painter.drawRect(QRectF(board).adjusted(1, 1, -1, -1));
    painter.drawLine(board.topLeft(), board.bottomRight());
    painter.drawLine(board.topRight(), board.bottomLeft());
}

} // namespace

QRect paintThumbnail(QPainter& painter, KTThumbnailService& service, const std::filesystem::path& file,
                     const QRect& area, const QPalette& palette) {
    const qreal ratio = painter.device()->devicePixelRatioF();
    const int edge = int(std::max(area.width(), area.height()) * ratio + 0.5);
    const KTThumbnailService::Thumbnail thumbnail = service.thumbnail(file, edge);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QRect place;
    if (thumbnail.image.isNull()) {
        place = centred(QSize(int(100 * kBoardProportions), 100), area);
        paintBoard(painter, place, palette, !thumbnail.problem.empty());
    } else {
        place = centred(thumbnail.image.size(), area);
        painter.drawImage(place, thumbnail.image);
        QColor frame = palette.color(QPalette::Text);
        frame.setAlphaF(0.18F);
        painter.setPen(frame);
        painter.drawRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5));
    }
    painter.restore();
    return place;
}
