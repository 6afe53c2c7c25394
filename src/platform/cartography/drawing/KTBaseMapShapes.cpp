#include "platform/cartography/drawing/KTBaseMapShapes.h"

#include <algorithm>

namespace {

using Point = KTBaseMapData::Point;
constexpr std::int32_t kWorld = KTBaseMapData::kWorld;
constexpr double kOverlap = 2; // logical pixels by which areas overlap at the 180° meridian, against a seam

/// Clips a polygon at one edge: keeps what @p depth gives at least 0 for (Sutherland and Hodgman).
template<class Depth>
void clipAtEdge(std::vector<QPointF>& polygon, std::vector<QPointF>& scratch, Depth depth) {
    scratch.clear();
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const QPointF& from = polygon[i == 0 ? polygon.size() - 1 : i - 1];
        const QPointF& to = polygon[i];
        const double before = depth(from), after = depth(to);
        if ((before >= 0) != (after >= 0))
            scratch.push_back(from + (to - from) * (before / (before - after)));
        if (after >= 0)
            scratch.push_back(to);
    }
    polygon.swap(scratch);
}

void clipPolygon(std::vector<QPointF>& polygon, const QRectF& rect) {
    std::vector<QPointF> scratch;
    clipAtEdge(polygon, scratch, [&](const QPointF& point) { return point.x() - rect.left(); });
    clipAtEdge(polygon, scratch, [&](const QPointF& point) { return rect.right() - point.x(); });
    clipAtEdge(polygon, scratch, [&](const QPointF& point) { return point.y() - rect.top(); });
    clipAtEdge(polygon, scratch, [&](const QPointF& point) { return rect.bottom() - point.y(); });
}

bool isEdgeOfWorld(Point from, Point to) {
    return (from.x == to.x && (from.x == 0 || from.x == kWorld)) || (from.y == to.y && from.y == kWorld);
}

} // namespace

KTBaseMapShapes::KTBaseMapShapes(const KTMapViewState& state, double reachBeyond,
                                 const std::atomic<bool>& isCancelled)
    : cancelled(isCancelled), reach(reachBeyond),
      clip(-reach, -reach, state.width() + 2 * reach, state.height() + 2 * reach) {
    const KTWorldRect visible = state.visibleRect();
    const double more = reach / state.worldSize();
    const auto range = state.visibleTurns(0, 1, reach);
    for (int turn = range.first; turn <= range.last; ++turn) {
        const KTViewPoint origin = state.viewPoint(KTWorldPoint{static_cast<double>(turn), 0});
        turns.push_back({state.worldSize() / kWorld, origin.x, origin.y,
                         (visible.left - more - turn) * kWorld, (visible.top - more) * kWorld,
                         (visible.right + more - turn) * kWorld, (visible.bottom + more) * kWorld});
    }
}

std::vector<QPainterPath> KTBaseMapShapes::areas(const std::vector<KTBaseMapData::Line>& rings, double top,
                                                 double bottom) const {
    QRectF strip = clip;
    strip.setTop(top - reach);
    strip.setBottom(bottom + reach);
    std::vector<QPainterPath> paths;
    for (Turn turn : turns) {
        turn.top = (strip.top() - turn.dy) / turn.scale;
        turn.bottom = (strip.bottom() - turn.dy) / turn.scale;
        QPainterPath& path = paths.emplace_back();
        path.setFillRule(Qt::OddEvenFill);
        for (const KTBaseMapData::Line& ring : rings)
            if (turn.reaches(ring.box) && !cancelled)
                addArea(path, ring, turn, strip);
    }
    return paths;
}

/// Where a stretch of the ring lies wholly on one side of what is in reach, only its ends count.
void KTBaseMapShapes::addArea(QPainterPath& path, const KTBaseMapData::Line& ring, const Turn& turn,
                              const QRectF& strip) {
    std::vector<QPointF> polygon;
    const auto add = [&](Point point) {
        QPointF corner = turn.toView(point);
        if (point.x == 0)
            corner.rx() -= kOverlap;
        else if (point.x == kWorld)
            corner.rx() += kOverlap;
        polygon.push_back(corner);
    };
    for (std::size_t chunk = 0; chunk < ring.chunks.size(); ++chunk) {
        const std::size_t first = chunk * KTBaseMapData::kChunk;
        const std::size_t end = std::min(first + KTBaseMapData::kChunk, ring.points.size());
        if (turn.reaches(ring.chunks[chunk])) {
            for (std::size_t i = first; i < end; ++i)
                add(ring.points[i]);
        } else {
            add(ring.points[first]);
        }
    }
    const KTBaseMapData::Box& box = ring.box;
    if (box.left < turn.left || box.right > turn.right || box.top < turn.top || box.bottom > turn.bottom)
        clipPolygon(polygon, strip);
    if (polygon.size() < 3)
        return;
    path.moveTo(polygon.front());
    for (std::size_t i = 1; i < polygon.size(); ++i)
        path.lineTo(polygon[i]);
    path.closeSubpath();
}

void KTBaseMapShapes::shores(const std::vector<KTBaseMapData::Line>& rings,
                             const LineClipper::Piece& receive) const {
    LineClipper clipper(clip, receive);
    for (const Turn& turn : turns)
        for (const KTBaseMapData::Line& ring : rings)
            if (turn.reaches(ring.box) && !cancelled)
                addLine(clipper, ring, turn, true);
    clipper.finish();
}

void KTBaseMapShapes::lines(const std::vector<KTBaseMapData::Line>& lines, unsigned lowestRank,
                            unsigned highestRank, const LineClipper::Piece& receive) const {
    LineClipper clipper(clip, receive);
    for (const Turn& turn : turns)
        for (const KTBaseMapData::Line& line : lines)
            if (line.rank >= lowestRank && line.rank <= highestRank && turn.reaches(line.box) && !cancelled)
                addLine(clipper, line, turn, false);
    clipper.finish();
}

void KTBaseMapShapes::addLine(LineClipper& clipper, const KTBaseMapData::Line& line, const Turn& turn,
                              bool isRing) {
    const std::size_t edges = line.points.size() - (isRing ? 0 : 1);
    std::size_t next = edges; // the edge that would go on where the clipper stands, none at first
    for (std::size_t chunk = 0; chunk < line.chunks.size(); ++chunk) {
        if (!turn.reaches(line.chunks[chunk]))
            continue;
        const std::size_t first = chunk * KTBaseMapData::kChunk;
        for (std::size_t i = first; i < std::min(first + KTBaseMapData::kChunk, edges); ++i) {
            const Point from = line.points[i], to = line.points[i + 1 < line.points.size() ? i + 1 : 0];
            if (isRing && isEdgeOfWorld(from, to))
                continue;
            if (next != i)
                clipper.moveTo(turn.toView(from));
            clipper.lineTo(turn.toView(to));
            next = i + 1;
        }
    }
}
