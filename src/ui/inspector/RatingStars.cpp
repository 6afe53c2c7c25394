#include "ui/inspector/RatingStars.h"

#include "app/editor/KTRating.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionFocusRect>
#include <cmath>

namespace {

constexpr int kGap = 3, kMargin = 3;

QPainterPath starIn(const QRectF& square) {
    constexpr double kInner = 0.42; // of the outer radius
    QPainterPath path;
    for (int corner = 0; corner < 10; ++corner) {
        const double radius = square.width() / 2 * (corner % 2 == 0 ? 1 : kInner);
        const double angle = corner * M_PI / 5 - M_PI / 2;
        const QPointF at = square.center() + QPointF(radius * std::cos(angle), radius * std::sin(angle));
        corner == 0 ? path.moveTo(at) : path.lineTo(at);
    }
    path.closeSubpath();
    return path;
}

} // namespace

RatingStars::RatingStars(QWidget* parent) : QAbstractSlider(parent) {
    setRange(0, kKTMostStars);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(this, &QAbstractSlider::valueChanged, this, qOverload<>(&QWidget::update));
}

void RatingStars::setPlaceholder(const QString& text) {
    placeholder = text;
    setAccessibleDescription(text);
    update();
}

QSize RatingStars::sizeHint() const {
    return {2 * kMargin + kKTMostStars * (edge() + kGap), edge() + 2 * kMargin};
}

QRectF RatingStars::starPlace(int star) const {
    return {double(kMargin + (star - 1) * (edge() + kGap)), (height() - edge()) / 2.0, double(edge()),
            double(edge())};
}

void RatingStars::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(0.55F);
    for (int star = 1; star <= kKTMostStars; ++star) {
        const bool isShining = isEnabled() && star <= value();
        const QColor fill = palette().color(QPalette::Highlight);
        painter.setPen(QPen(isShining ? fill : line, 1));
        painter.setBrush(isShining ? QBrush(fill) : QBrush(Qt::NoBrush));
        painter.drawPath(starIn(starPlace(star).adjusted(1, 1, -1, -1)));
    }
    if (value() == 0 && !placeholder.isEmpty()) {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(rect().adjusted(sizeHint().width() + kGap, 0, 0, 0),
                         Qt::AlignVCenter | Qt::AlignLeft, placeholder);
    }
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect = QRect(QPoint(0, 0), QSize(sizeHint().width(), height()));
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void RatingStars::keyPressEvent(QKeyEvent* event) {
    const auto typed =
        event->text().size() == 1 ? KTStarsForKey(event->text().front().unicode()) : std::nullopt;
    if (typed)
        emit chosen(*typed);
    else if (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace)
        emit chosen(0);
    else if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right)
        emit chosen(std::clamp(value() + (event->key() == Qt::Key_Right ? 1 : -1), 0, kKTMostStars));
    else
        event->ignore();
}

void RatingStars::mousePressEvent(QMouseEvent* event) {
    for (int star = 1; event->button() == Qt::LeftButton && star <= kKTMostStars; ++star)
        if (starPlace(star).adjusted(-1, -kMargin, kGap - 1, kMargin).contains(event->position()))
            return emit chosen(KTStarsAfterClick(star, value()));
}

/// Whoever scrolls past must not change photos.
void RatingStars::wheelEvent(QWheelEvent* event) {
    event->ignore();
}
