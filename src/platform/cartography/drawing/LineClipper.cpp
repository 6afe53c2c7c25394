#include "platform/cartography/drawing/LineClipper.h"

/// Liang and Barsky, 1984.
std::optional<ClippedLine> ClippedLine::of(QPointF from, QPointF to, const QRectF& area) {
    ClippedLine line;
    if (area.contains(from) && area.contains(to))
        return line;
    const QPointF way = to - from;
    const auto clip = [&](double speed, double distance) { // one side; the speed is that towards it
        if (speed == 0)
            return distance >= 0;
        const double part = distance / speed;
        if (speed > 0)
            line.end = std::min(line.end, part);
        else
            line.begin = std::max(line.begin, part);
        return line.begin <= line.end;
    };
    if (clip(-way.x(), from.x() - area.left()) && clip(way.x(), area.right() - from.x()) &&
        clip(-way.y(), from.y() - area.top()) && clip(way.y(), area.bottom() - from.y()))
        return line;
    return std::nullopt;
}

void LineClipper::moveTo(QPointF point) {
    finish();
    current = point;
}

void LineClipper::lineTo(QPointF point) {
    const QPointF from = std::exchange(current, point);
    const auto inside = ClippedLine::of(from, point, area);
    if (!inside || (inside->begin > 0 && !piece.isEmpty()))
        finish();
    if (!inside)
        return;
    if (piece.isEmpty())
        piece << from + (point - from) * inside->begin;
    piece << from + (point - from) * inside->end;
    if (inside->end < 1)
        finish();
    if (piece.size() >= kLongestPiece) {
        const QPointF joint = piece.back();
        finish();
        piece << joint;
    }
}

void LineClipper::finish() {
    if (piece.size() > 1)
        receive(piece);
    piece.clear();
}
