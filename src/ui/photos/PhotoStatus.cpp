#include "ui/photos/PhotoStatus.h"

#include "ui/application/ApplicationLook.h"
#include "ui/support/UIText.h"

#include <QPainterPath>

namespace PhotoStatus {

namespace {

QPainterPath flag(const QRectF& in) {
    QPainterPath path;
    path.addRect(in.left() + in.width() * 0.15, in.top(), in.width() * 0.12, in.height());
    path.moveTo(in.left() + in.width() * 0.27, in.top());
    path.lineTo(in.right(), in.top() + in.height() * 0.28);
    path.lineTo(in.left() + in.width() * 0.27, in.top() + in.height() * 0.56);
    path.closeSubpath();
    return path;
}

QPainterPath triangle(const QRectF& in) {
    QPainterPath path;
    path.moveTo(in.center().x(), in.top());
    path.lineTo(in.right(), in.bottom());
    path.lineTo(in.left(), in.bottom());
    path.closeSubpath();
    path.addRect(in.center().x() - in.width() * 0.06, in.top() + in.height() * 0.38, in.width() * 0.12,
                 in.height() * 0.28);
    path.addRect(in.center().x() - in.width() * 0.06, in.top() + in.height() * 0.74, in.width() * 0.12,
                 in.height() * 0.12);
    path.setFillRule(Qt::OddEvenFill);
    return path;
}

} // namespace

QColor colour(Sign sign, const QPalette& palette) {
    const bool isDark = isDarkPalette(palette);
    switch (sign) {
    case Unsaved:
        return isDark ? QColor(253, 155, 75) : QColor(180, 86, 0);
    case Geotagged:
        return isDark ? QColor(84, 209, 138) : QColor(22, 134, 66);
    default:
        return isDark ? QColor(240, 104, 88) : QColor(197, 48, 32);
    }
}

unsigned signsOf(const KTPhoto& photo) {
    unsigned signs = None;
    if (photo.hasUnsavedChanges())
        signs |= Unsaved;
    if (photo.isGeotagged())
        signs |= Geotagged;
    if (const auto last = photo.lastPhotoOperation()) {
        if (last->resultType() == KTPhotoOperation::Failure)
            signs |= Failed;
        else if (last->resultType() == KTPhotoOperation::Warning)
            signs |= Warned;
    }
    return signs;
}

QString describe(unsigned signs) {
    QStringList parts;
    if (signs & Failed)
        parts << uiText("failed");
    if (signs & Warned)
        parts << uiText("with a warning");
    if (signs & Unsaved)
        parts << uiText("unsaved changes");
    parts << (signs & Geotagged ? uiText("geotagged") : uiText("not geotagged"));
    return parts.join(", ");
}

void paint(QPainter& painter, Sign sign, const QRectF& square, const QPalette& palette, bool isSelected) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isSelected ? palette.color(QPalette::HighlightedText) : colour(sign, palette));
    const qreal inset = square.width() * (sign == Unsaved ? 0.22 : 0.08);
    const QRectF inner = square.adjusted(inset, inset, -inset, -inset);
    if (sign == Unsaved)
        painter.drawEllipse(inner);
    else
        painter.drawPath(sign == Geotagged ? flag(inner) : triangle(inner));
    painter.restore();
}

} // namespace PhotoStatus
