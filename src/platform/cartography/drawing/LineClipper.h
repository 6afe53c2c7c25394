#pragma once
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <functional>
#include <optional>

/// The part of the line from @p from to @p to that lies inside @p area, as the parts of the way at which it
/// begins and ends (0 to 1); nothing when no part does.
struct ClippedLine {
    double begin = 0, end = 1;
    static std::optional<ClippedLine> of(QPointF from, QPointF to, const QRectF& area);
};

/// Hands on a line of many points in pieces that the painter can draw: without what lies far outside the
/// view, where coordinates are too large for it, and not too long, so that a drawing can be cancelled in
/// between.
class LineClipper {
public:
    using Piece = std::function<void(const QPolygonF& points)>;

    LineClipper(const QRectF& wholeArea, Piece receivePiece)
        : area(wholeArea), receive(std::move(receivePiece)) {}

    /// Begins a line at @p point, after the end of the one before.
    void moveTo(QPointF point);
    void lineTo(QPointF point);
    /// Hands on what is left.
    void finish();

private:
    static constexpr qsizetype kLongestPiece = 1000; // points

    const QRectF area;
    const Piece receive;
    QPointF current;
    QPolygonF piece;
};
