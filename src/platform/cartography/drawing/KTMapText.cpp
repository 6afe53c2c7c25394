#include "platform/cartography/drawing/KTMapText.h"

#include <array>

QFont KTMapFont(double pixelSize, bool isBold, bool isItalic) {
    QFont font;
    font.setPixelSize(static_cast<int>(pixelSize + 0.5));
    font.setBold(isBold);
    font.setItalic(isItalic);
    return font;
}

void KTDrawMapText(QPainter& painter, const QPointF& start, const QString& text, const QColor& colour,
                   const QColor& halo) {
    // Shifted copies of the text cost a tenth of what stroking its outline does.
    static constexpr std::array kShifts = {QPointF(-1, -1), QPointF(1, -1), QPointF(-1, 1), QPointF(1, 1)};
    painter.setPen(halo);
    for (const QPointF& shift : kShifts)
        painter.drawText(start + shift, text);
    painter.setPen(colour);
    painter.drawText(start, text);
}
