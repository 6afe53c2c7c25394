#pragma once
#include "platform/cartography/KTMapViewState.h"
#include "platform/cartography/drawing/KTBaseMapData.h"

#include <QLineF>
#include <QPainterPath>
#include <atomic>

/// Turns lines of the base map into what a painter draws in one view: projected into it, repeated with the
/// world, and clipped to its surroundings before anything is drawn. For one thread.
class KTBaseMapShapes {
public:
    /// @p reach: how far beyond the view, in logical pixels, ends of lines and edges must be right. Both
    /// arguments must stay.
    KTBaseMapShapes(const KTMapViewState& state, double reach, const std::atomic<bool>& isCancelled);

    /// The rings, to be filled by the odd-even rule: a path for each repetition of the world, which overlap a
    /// little.
    std::vector<QPainterPath> areas(const std::vector<KTBaseMapData::Line>& rings) const;
    /// The edges of rings, without those that only part the world at the 180° meridian and at its ends.
    QPainterPath shores(const std::vector<KTBaseMapData::Line>& rings) const;
    /// The lines whose rank lies in [@p lowestRank, @p highestRank].
    QPainterPath lines(const std::vector<KTBaseMapData::Line>& lines, unsigned lowestRank,
                       unsigned highestRank) const;

private:
    /// Where one repetition of the world lies: pixel = unit * scale + offset, and what of it is in reach, in
    /// units.
    struct Turn {
        double scale, dx, dy;
        double left, top, right, bottom;

        QPointF toView(KTBaseMapData::Point point) const {
            return {point.x * scale + dx, point.y * scale + dy};
        }
        bool reaches(const KTBaseMapData::Box& box) const {
            return box.left <= right && box.right >= left && box.top <= bottom && box.bottom >= top;
        }
    };
    void addArea(QPainterPath& path, const KTBaseMapData::Line& ring, const Turn& turn) const;
    void addLine(QPainterPath& path, const KTBaseMapData::Line& line, const Turn& turn, bool isRing) const;
    bool isClipped(QLineF& segment) const;

    const std::atomic<bool>& cancelled;
    std::vector<Turn> turns;
    QRectF clip; // in logical pixels
};
