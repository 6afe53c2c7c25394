#include "platform/cartography/drawing/features/FeatureSymbols.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <numbers>

namespace {

constexpr double kFingerLength = 7, kFingerHalfWidth = 4.5;
constexpr double kDotRadius = 2;
constexpr double kUsualFieldOfView = 50; // degrees, where a picture tells none

QColor photoColour(bool isSelected, bool isDark) {
    if (isSelected)
        return isDark ? QColor(0x4a, 0xa3, 0xff) : QColor(0x0b, 0x6b, 0xe0);
    return isDark ? QColor(0xff, 0x6a, 0x5c) : QColor(0xd8, 0x32, 0x2a);
}

QColor rimColour(bool isDark) {
    return isDark ? QColor(0x10, 0x14, 0x19) : QColor(Qt::white);
}

QColor flagColour(unsigned pointType, bool isDark) {
    static constexpr QRgb kLight[] = {0x455a64, 0xd96b00, 0x00806a, 0x7a34d6};
    static constexpr QRgb kDark[] = {0xb8c7cf, 0xffa64d, 0x45d6b8, 0xc79bff};
    const std::size_t number = pointType < std::size(kLight) ? pointType : 0;
    return QColor(isDark ? kDark[number] : kLight[number]);
}

void fillBall(QPainter& painter, double radius, QColor colour) {
    QRadialGradient shine(QPointF(-radius * 0.35, -radius * 0.4), radius * 1.5);
    shine.setColorAt(0, colour.lighter(175));
    shine.setColorAt(0.45, colour);
    shine.setColorAt(1, colour.darker(150));
    painter.setBrush(shine);
    painter.drawEllipse(QPointF(), radius, radius);
}

QPainterPath starPath(double radius) {
    QPainterPath path;
    for (int i = 0; i < 10; ++i) {
        const double angle = i * std::numbers::pi / 5, length = i % 2 == 0 ? radius : radius * 0.45;
        const QPointF point(std::sin(angle) * length, -std::cos(angle) * length);
        i == 0 ? path.moveTo(point) : path.lineTo(point);
    }
    path.closeSubpath();
    return path;
}

/// The flag itself, at the top of its pole: towards where the candidate lies in time, or round for one
/// between.
void paintFlag(QPainter& painter, unsigned pointType, double top) {
    constexpr double kLength = 15, kHeight = 11;
    if (pointType == 1 || pointType == 2) {
        const double side = pointType == 1 ? -1 : 1;
        painter.drawPolygon(
            QPolygonF({{0, -top}, {side * kLength, -top + kHeight / 2}, {0, -top + kHeight}}));
    } else {
        painter.drawEllipse(QPointF(0, -top + 6.5), 6.5, 6.5);
    }
}

} // namespace

double FeatureSymbols::clusterRadius(std::size_t count) {
    return count < 10 ? 10 : count < 100 ? 12 : count < 1000 ? 14.5 : 17;
}

/// A symbol that is drawn often, painted once about the middle of a square.
const QImage& FeatureSymbols::sprite(int kind, double radius, const auto& paint) {
    auto [entry, isNew] = sprites.try_emplace(kind);
    if (isNew) {
        const int side = 2 * int(std::ceil(radius * ratio));
        entry->second = QImage(side, side, QImage::Format_ARGB32_Premultiplied);
        entry->second.setDevicePixelRatio(ratio);
        entry->second.fill(Qt::transparent);
        QPainter painter(&entry->second);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(side / 2 / ratio, side / 2 / ratio);
        paint(painter);
    }
    return entry->second;
}

void FeatureSymbols::drawSprite(QPainter& painter, QPointF centre, const QImage& image) const {
    painter.drawImage(centre - QPointF(image.width(), image.height()) / (2 * ratio), image);
}

void FeatureSymbols::drawBall(QPainter& painter, QPointF centre, Ball ball) {
    const int kind = int(ball.isSelected) + 2 * int(ball.isProvisional);
    drawSprite(painter, centre, sprite(kind, kBallRadius + 3, [&](QPainter& own) {
                   const QColor colour = photoColour(ball.isSelected, isDark);
                   own.setPen(Qt::NoPen);
                   own.setBrush(QColor(0, 0, 0, 60));
                   own.drawEllipse(QPointF(0, 1), kBallRadius + 1.2, kBallRadius + 1.2);
                   own.setBrush(rimColour(isDark));
                   own.drawEllipse(QPointF(), kBallRadius + 0.5, kBallRadius + 0.5);
                   if (!ball.isProvisional) {
                       fillBall(own, kBallRadius - 0.8, colour);
                       return;
                   }
                   own.setBrush(isDark ? QColor(0x2a, 0x30, 0x38) : QColor(Qt::white));
                   QPen ring(colour, 2.4, Qt::CustomDashLine, Qt::FlatCap);
                   ring.setDashPattern({1.15, 0.62}); // nine dashes around
                   own.setPen(ring);
                   own.drawEllipse(QPointF(), kBallRadius - 1.6, kBallRadius - 1.6);
               }));
}

void FeatureSymbols::drawFinger(QPainter& painter, QPointF centre, double direction, Ball ball) const {
    painter.save();
    painter.translate(centre);
    painter.rotate(direction);
    painter.setPen(QPen(rimColour(isDark), 1));
    painter.setBrush(photoColour(ball.isSelected, isDark));
    const double foot = -kBallRadius + 0.5;
    painter.drawPolygon(
        QPolygonF({{-kFingerHalfWidth, foot}, {0, foot - kFingerLength}, {kFingerHalfWidth, foot}}));
    painter.restore();
}

void FeatureSymbols::drawWedge(QPainter& painter, QPointF centre, double direction,
                               double fieldOfView) const {
    const double width = fieldOfView > 0 && fieldOfView <= 360 ? fieldOfView : kUsualFieldOfView;
    QColor colour = photoColour(true, isDark);
    QRadialGradient fading(centre, kWedgeRadius);
    colour.setAlpha(150);
    fading.setColorAt(0, colour);
    colour.setAlpha(40);
    fading.setColorAt(1, colour);
    painter.setBrush(fading);
    colour.setAlpha(200);
    painter.setPen(QPen(colour, 1));
    const QRectF circle(centre - QPointF(kWedgeRadius, kWedgeRadius),
                        QSizeF(2 * kWedgeRadius, 2 * kWedgeRadius));
    painter.drawPie(circle, int(std::lround((90 - direction - width / 2) * 16)),
                    int(std::lround(width * 16)));
}

void FeatureSymbols::drawStar(QPainter& painter, QPointF centre) const {
    painter.save();
    painter.translate(centre);
    painter.setPen(QPen(photoColour(true, isDark).darker(170), 0.8));
    painter.setBrush(QColor(0xff, 0xd5, 0x4a));
    painter.drawPath(starPath(kBallRadius - 0.6));
    painter.restore();
}

void FeatureSymbols::drawDot(QPainter& painter, QPointF centre, Ball ball) {
    const int kind = 4 + int(ball.isSelected);
    drawSprite(painter, centre, sprite(kind, kDotRadius + 1, [&](QPainter& own) {
                   own.setPen(QPen(rimColour(isDark), 0.7));
                   own.setBrush(photoColour(ball.isSelected, isDark));
                   own.drawEllipse(QPointF(), kDotRadius, kDotRadius);
               }));
}

void FeatureSymbols::drawCluster(QPainter& painter, QPointF centre, std::size_t count,
                                 std::size_t selected) const {
    const double radius = clusterRadius(count);
    QColor halo = photoColour(selected > 0, isDark);
    halo.setAlpha(90);
    painter.setPen(Qt::NoPen);
    painter.setBrush(halo);
    painter.drawEllipse(centre, radius + 3, radius + 3);
    painter.setPen(QPen(rimColour(isDark), 1.2));
    painter.setBrush(photoColour(selected > 0, isDark).darker(isDark ? 150 : 115));
    painter.drawEllipse(centre, radius, radius);
    drawCount(painter, centre, count, selected);
}

void FeatureSymbols::drawStack(QPainter& painter, QPointF centre, std::size_t count,
                               std::size_t selected) const {
    const double half = clusterRadius(count) - 1;
    const QColor colour = photoColour(selected > 0, isDark).darker(isDark ? 150 : 115);
    painter.setPen(QPen(rimColour(isDark), 1.2));
    for (const double offset : {4.0, 2.0, 0.0}) {
        painter.setBrush(offset == 0 ? colour : colour.darker(100 + int(offset) * 12));
        painter.drawRoundedRect(
            QRectF(centre.x() - half + offset, centre.y() - half * 0.8 - offset, 2 * half, 1.6 * half), 2.5,
            2.5);
    }
    drawCount(painter, centre, count, selected);
}

/// "14", or "2/14" when some are selected.
void FeatureSymbols::drawCount(QPainter& painter, QPointF centre, std::size_t count,
                               std::size_t selected) const {
    QString text = QString::number(count);
    if (selected > 0 && selected < count)
        text.prepend(QString::number(selected) + '/');
    QFont font = painter.font();
    const double room = 2 * clusterRadius(count) - 4;
    font.setPixelSize(text.size() * 7 > room ? std::max(7, int(room * 1.6 / double(text.size()))) : 11);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRectF(centre.x() - 40, centre.y() - 10, 80, 20), Qt::AlignCenter, text);
}

void FeatureSymbols::drawFlag(QPainter& painter, QPointF foot, unsigned pointType, double rotation) {
    const int kind = 8 + int(std::min(pointType, 3u));
    drawSprite(painter, foot, sprite(kind, kFlagHeight + 4, [&](QPainter& own) {
                   own.rotate(rotation * 180 / std::numbers::pi);
                   const QColor colour = flagColour(pointType, isDark);
                   for (const bool isRim : {true, false}) { // the rim sets the flag off from the map
                       own.setPen(QPen(isRim ? rimColour(isDark) : colour, isRim ? 4.5 : 1.8, Qt::SolidLine,
                                       Qt::RoundCap, Qt::RoundJoin));
                       own.setBrush(isRim ? rimColour(isDark) : colour);
                       own.drawLine(QPointF(0, 0), QPointF(0, -kFlagHeight));
                       paintFlag(own, pointType, kFlagHeight);
                       own.drawEllipse(QPointF(), 1.6, 1.6); // the tack
                   }
                   if (pointType == 3) { // between two
                       own.setPen(Qt::NoPen);
                       own.setBrush(rimColour(isDark));
                       own.drawEllipse(QPointF(0, -kFlagHeight + 6.5), 2.6, 2.6);
                   }
               }));
}

void FeatureSymbols::setLinePen(QPainter& painter) const {
    painter.setPen(QPen(photoColour(true, isDark), 1.6, Qt::DashLine, Qt::RoundCap));
    painter.setBrush(Qt::NoBrush);
}
