#pragma once
#include "platform/cartography/KTMapViewState.h"
#include "platform/cartography/drawing/KTBaseMapData.h"
#include "platform/cartography/drawing/LineClipper.h"

#include <QPainterPath>
#include <atomic>

/// Turns lines of the base map into what a painter draws in one view: projected into it, repeated with the
/// world, and clipped to its surroundings before anything is drawn. For one thread.
class KTBaseMapShapes {
public:
    /// @p reachBeyond: how far beyond the view, in logical pixels, ends of lines and edges must be right.
    /// Both arguments must stay.
    KTBaseMapShapes(const KTMapViewState& state, double reachBeyond, const std::atomic<bool>& isCancelled);

    /// The rings between @p top and @p bottom, in logical pixels, to be filled by the odd-even rule: a path
    /// for each repetition of the world, which overlap a little.
    std::vector<QPainterPath> areas(const std::vector<KTBaseMapData::Line>& rings, double top,
                                    double bottom) const;
    /// Hands on the edges of rings, without those that only part the world at the 180° meridian and at its
    /// ends.
    void shores(const std::vector<KTBaseMapData::Line>& rings, const LineClipper::Piece& receive) const;
    /// Hands on the lines whose rank lies in [@p lowestRank, @p highestRank].
    void lines(const std::vector<KTBaseMapData::Line>& lines, unsigned lowestRank, unsigned highestRank,
               const LineClipper::Piece& receive) const;

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
    static void addArea(QPainterPath& path, const KTBaseMapData::Line& ring, const Turn& turn,
                        const QRectF& strip);
    static void addLine(LineClipper& clipper, const KTBaseMapData::Line& line, const Turn& turn, bool isRing);

    const std::atomic<bool>& cancelled;
    const double reach; // in logical pixels, like the following
    std::vector<Turn> turns;
    QRectF clip;
};
