#include "platform/cartography/drawing/KTMapBoard.h"

#include "platform/cartography/drawing/KTMapText.h"

namespace {

constexpr double kPaddingX = 8, kPaddingY = 3, kRounding = 3;

} // namespace

QFont KTMapBoard::font() {
    return KTMapFont(11);
}

QRectF KTMapBoard::draw(QPainter& painter, const QSizeF& viewSize, Corner corner, const QSizeF& size,
                        const KTMapPalette& palette) {
    QRectF board(0, 0, size.width() + 2 * kPaddingX, size.height() + 2 * kPaddingY);
    board.moveBottom(viewSize.height() - kDistance);
    if (corner == Corner::LowerLeft)
        board.moveLeft(kDistance);
    else
        board.moveRight(viewSize.width() - kDistance);
    painter.setPen(palette.plateEdge);
    painter.setBrush(palette.plate);
    painter.drawRoundedRect(board.adjusted(0.5, 0.5, -0.5, -0.5), kRounding, kRounding);
    painter.setFont(font());
    painter.setPen(palette.plateText);
    return board.adjusted(kPaddingX, kPaddingY, -kPaddingX, -kPaddingY);
}
