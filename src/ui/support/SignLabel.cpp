#include "ui/support/SignLabel.h"

#include <QPainter>

SignLabel::SignLabel(PhotoStatus::Sign sign, QWidget* parent) : QWidget(parent), mark(sign) {
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void SignLabel::setText(const QString& text) {
    heading = text;
    setAccessibleName(text);
    updateGeometry();
    update();
}

QFont SignLabel::headingFont() const {
    QFont result = font();
    result.setBold(true);
    return result;
}

int SignLabel::indent() const {
    return QFontMetrics(headingFont()).height() + 4;
}

QSize SignLabel::sizeHint() const {
    const QFontMetrics metrics(headingFont());
    return {indent() + metrics.horizontalAdvance(heading) + 2, metrics.height() + 2};
}

int SignLabel::heightForWidth(int width) const {
    return QFontMetrics(headingFont())
               .boundingRect(QRect(0, 0, std::max(40, width - indent()), 1000), Qt::TextWordWrap, heading)
               .height() +
           2;
}

void SignLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const int edge = QFontMetrics(headingFont()).height();
    PhotoStatus::paint(painter, mark, QRectF(0, 0, edge, edge), palette(), false);
    painter.setFont(headingFont());
    painter.setPen(PhotoStatus::colour(mark, palette()));
    painter.drawText(rect().adjusted(indent(), 0, 0, 0), Qt::TextWordWrap, heading);
}
