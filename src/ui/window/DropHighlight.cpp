#include "ui/window/DropHighlight.h"

#include <QPainter>

DropHighlight::DropHighlight(QWidget& window) : QWidget(&window) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void DropHighlight::showText(const QString& text) {
    promise = text;
    setAccessibleName(text);
    setGeometry(parentWidget()->rect());
    raise();
    show();
    update();
}

void DropHighlight::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor veil = palette().color(QPalette::Highlight);
    veil.setAlphaF(0.18F);
    painter.fillRect(rect(), veil);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 4));
    painter.drawRoundedRect(QRectF(rect()).adjusted(4, 4, -4, -4), 8, 8);

    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.6);
    painter.setFont(large);
    const QRect area = QFontMetrics(large).boundingRect(rect(), Qt::AlignCenter | Qt::TextWordWrap, promise);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().highlight());
    painter.drawRoundedRect(area.adjusted(-24, -14, 24, 14), 10, 10);
    painter.setPen(palette().color(QPalette::HighlightedText));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, promise);
}
