#include "platform/cartography/drawing/KTBaseMapDrawing.h"

#include "platform/cartography/drawing/KTBaseMapShapes.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace {

constexpr double kReach = 8;          // logical pixels; wider than half of any line
constexpr double kStripRows = 128;    // device pixels, whole
constexpr double kDivisionZoom = 3.5; // from which divisions within countries are drawn

/// A pen that is a hair line where the map is small. Wider lines are slow to draw and clutter it.
QPen linePen(const QColor& colour, double width) {
    QPen pen(colour, width);
    pen.setCapStyle(Qt::RoundCap);
    pen.setJoinStyle(Qt::RoundJoin);
    return pen;
}

/// Grows from @p least at zoom @p from by half each zoom, to @p most.
double widthAt(double zoom, double from, double least, double most) {
    return std::min(most, least * std::max(1.0, std::pow(1.5, zoom - from)));
}

class Painting {
public:
    Painting(QPainter& onto, const KTMapViewState& view, const KTMapLook& look, const KTBaseMapData& data,
             const std::atomic<bool>& isCancelled)
        : painter(onto), state(view), palette(KTMapPalette::forMap(look.isDark)),
          level(data.levelForZoom(view.zoom() + std::log2(view.devicePixelRatio()))),
          shapes(view, kReach, isCancelled) {}

    void drawAll() {
        fillLand();
        const double zoom = state.zoom();
        if (zoom >= kDivisionZoom)
            stroke(KTBaseMapData::Divisions, 0, shown(zoom), linePen(palette.division, 1));
        stroke(KTBaseMapData::Rivers, 0, shown(zoom), linePen(palette.river, widthAt(zoom, 7, 1, 3)));
        painter.setPen(linePen(palette.shore, 1));
        shapes.shores(level.lines[KTBaseMapData::Land], drawPiece);
        QPen disputed = linePen(palette.border, 1);
        disputed.setDashPattern({4, 3});
        stroke(KTBaseMapData::Borders, 0, 0, linePen(palette.border, widthAt(zoom, 5, 1, 1.6)));
        stroke(KTBaseMapData::Borders, 1, 1, disputed);
    }

private:
    static unsigned shown(double zoom) { return static_cast<unsigned>(zoom * 10); }

    /// In strips, because a painter that antialiases goes through the whole of a path for each few rows of
    /// pixels, which are many for a continent's shore.
    void fillLand() {
        const double height = kStripRows / state.devicePixelRatio();
        for (double top = 0; top < state.height(); top += height) {
            painter.setClipRect(QRectF(0, top, state.width(), height));
            for (const QPainterPath& land : shapes.areas(level.lines[KTBaseMapData::Land], top, top + height))
                painter.fillPath(land, palette.land);
        }
        painter.setClipping(false);
    }

    void stroke(KTBaseMapData::Kind kind, unsigned lowestRank, unsigned highestRank, const QPen& pen) {
        painter.setPen(pen);
        shapes.lines(level.lines[kind], lowestRank, highestRank, drawPiece);
    }

    QPainter& painter;
    const KTMapViewState& state;
    const KTMapPalette& palette;
    const KTBaseMapData::Level& level;
    const KTBaseMapShapes shapes;
    const LineClipper::Piece drawPiece = [this](const QPolygonF& points) { painter.drawPolyline(points); };
};

} // namespace

void KTBaseMapDrawing::draw(QPainter& painter, const KTMapViewState& state, const KTMapLook& look,
                            const std::atomic<bool>& isCancelled) const {
    const KTMapPalette& palette = KTMapPalette::forMap(look.isDark);
    painter.fillRect(QRectF(0, 0, state.width(), state.height()), palette.water);
    const KTBaseMapData* data = store->data();
    if (data == nullptr)
        return;
    Painting(painter, state, look, *data, isCancelled).drawAll();
    drawLabels(painter, state, palette, *data, isCancelled);
}

void KTBaseMapDrawing::drawLabels(QPainter& painter, const KTMapViewState& state, const KTMapPalette& palette,
                                  const KTBaseMapData& data, const std::atomic<bool>& isCancelled) const {
    painter.setRenderHint(QPainter::Antialiasing); // dots and letters are few
    std::call_once(hasLabels, [&] { labels = std::make_unique<KTBaseMapLabels>(data); });
    const int zoom = static_cast<int>(state.zoom());
    const auto step = labels->step(zoom);
    if (zoom >= KTGazetteerLabels::kFirstZoom) {
        std::call_once(hasVillages, [&] { villages = std::make_unique<const KTGazetteerLabels>(data); });
        for (const KTBaseMapLabels::Label& label : villages->labels(state, step->taken))
            KTBaseMapLabels::draw(painter, state, label, palette);
    }
    for (const KTBaseMapLabels::Label& label : step->labels)
        if (!isCancelled)
            KTBaseMapLabels::draw(painter, state, label, palette);
}
