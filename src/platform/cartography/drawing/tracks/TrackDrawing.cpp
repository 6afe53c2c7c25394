#include "platform/cartography/drawing/tracks/TrackDrawing.h"

#include "platform/cartography/drawing/LineClipper.h"
#include "platform/cartography/drawing/tracks/TrackColours.h"

#include <QPainter>
#include <cmath>

namespace {

constexpr double kWidth = 2.6, kCasingWidth = 5; // logical pixels
constexpr double kDotsApart = 2.4;               // widths of the line
constexpr double kMargin = 8;                    // around the view, for what a symbol's width brings into it

/// One track in one repetition of the world.
class TrackPainter {
public:
    TrackPainter(QPainter& thePainter, const KTMapViewState& viewState, int turn,
                 const std::atomic<bool>& cancelled)
        : painter(thePainter), state(viewState), shift(turn), isCancelled(cancelled),
          area(-kMargin, -kMargin, viewState.width() + 2 * kMargin, viewState.height() + 2 * kMargin) {
        const KTMapViewState wide = viewState.widenedBy(kMargin);
        visible = wide.visibleRect();
        visible.left -= turn;
        visible.right -= turn;
    }

    void draw(const KTTrackLine& line, const TrackLevel& level) {
        LineClipper clipper(area, [this](const QPolygonF& points) {
            if (!isCancelled)
                painter.drawPolyline(points);
        });
        const std::uint32_t* previous = nullptr; // the last point drawn
        for (const TrackLevel::Chunk& chunk : level.chunks()) {
            if (isCancelled)
                return;
            if (!isVisible(chunk.box))
                continue;
            const std::uint32_t* indexes = level.indexes().data();
            if (previous != indexes + chunk.first)
                clipper.moveTo(viewPoint(line, indexes[chunk.first]));
            for (std::uint32_t i = chunk.first + 1; i <= chunk.last; ++i)
                clipper.lineTo(viewPoint(line, indexes[i]));
            if (chunk.first == chunk.last)
                painter.drawPoint(viewPoint(line, indexes[chunk.first]));
            previous = indexes + chunk.last;
        }
        clipper.finish();
    }

    /// The dots keep their places while the map is panned.
    void drawGaps(const KTTrackLine& line, const TrackLevel& level) {
        QPen pen = painter.pen();
        pen.setDashPattern({0.001, kDotsApart});
        for (const TrackLevel::Chunk& chunk : level.chunks()) {
            if (isCancelled)
                return;
            if (!chunk.beginsRun || chunk.first == 0)
                continue;
            const QPointF from = viewPoint(line, level.indexes()[chunk.first - 1]),
                          to = viewPoint(line, level.indexes()[chunk.first]);
            const auto inside = ClippedLine::of(from, to, area);
            if (!inside)
                continue;
            const double length = std::hypot(to.x() - from.x(), to.y() - from.y());
            pen.setDashOffset(std::fmod(inside->begin * length / pen.widthF(), kDotsApart + 0.001));
            painter.setPen(pen);
            painter.drawLine(from + (to - from) * inside->begin, from + (to - from) * inside->end);
        }
    }

private:
    QPointF viewPoint(const KTTrackLine& line, std::uint32_t index) const {
        const KTWorldPoint& point = line.points()[index];
        const KTViewPoint place = state.viewPoint(KTWorldPoint{point.x + shift, point.y});
        return {place.x, place.y};
    }
    bool isVisible(const KTWorldRect& box) const {
        return box.left <= visible.right && box.right >= visible.left && box.top <= visible.bottom &&
               box.bottom >= visible.top;
    }

    QPainter& painter;
    const KTMapViewState& state;
    const double shift;
    const std::atomic<bool>& isCancelled;
    const QRectF area;
    KTWorldRect visible;
};

void drawTrack(QPainter& painter, const KTMapViewState& state, const TrackDrawing::Track& track,
               const KTMapLook& look, const std::atomic<bool>& isCancelled) {
    const TrackLevel& level = track.line->levelForZoom(TrackDrawing::zoomOf(state));
    const KTWorldRect& box = track.line->worldRect();
    const auto [first, last] = state.visibleTurns(box.left, box.right, kMargin);
    const QPen line(track.colours[look.isDark], kWidth, Qt::SolidLine, Qt::RoundCap, Qt::BevelJoin);
    QPen casing = line;
    casing.setColor(TrackColours::casing(look.isDark));
    casing.setWidthF(kCasingWidth);
    for (int turn = first; turn <= last; ++turn) {
        TrackPainter drawn(painter, state, turn, isCancelled);
        if (look.isAntialiased) {
            painter.setPen(casing);
            drawn.draw(*track.line, level);
        }
        painter.setPen(line);
        drawn.drawGaps(*track.line, level);
        painter.setPen(line);
        drawn.draw(*track.line, level);
    }
}

} // namespace

double TrackDrawing::zoomOf(const KTMapViewState& state) {
    return state.zoom() + std::log2(state.devicePixelRatio());
}

void TrackDrawing::draw(QPainter& painter, const KTMapViewState& state, const KTMapLook& look,
                        const std::atomic<bool>& isCancelled) const {
    painter.setBrush(Qt::NoBrush);
    for (const Track& track : tracks)
        if (!isCancelled && !track.line->points().empty())
            drawTrack(painter, state, track, look, isCancelled);
}
