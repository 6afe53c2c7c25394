#include "platform/cartography/drawing/features/PhotoDrawings.h"

#include "platform/cartography/KTGeodesicGeometry.h"
#include "platform/cartography/drawing/LineClipper.h"
#include "platform/cartography/drawing/features/PhotoMarks.h"
#include "platform/geodesy/KTGeodesy.h"

#include <QPainter>
#include <cmath>
#include <unordered_set>

namespace {

QPointF pointOf(KTViewPoint point) {
    return {point.x, point.y};
}

FeatureSymbols::Ball ballOf(const MapFeature& feature) {
    return {feature.isSelected, feature.values.isProvisional};
}

/// The points of the geodesic on the flat map, as many as its length on the screen wants.
std::vector<KTWorldPoint> geodesic(KTMapPoint from, KTMapPoint to, const KTMapViewState& state) {
    constexpr double kStep = 12, kShort = 60; // logical pixels
    constexpr double kMostSteps = 400;
    const double metres = KTEarthDistance(from.x, from.y, to.x, to.y);
    const double pixels = metres / state.metresPerPixel();
    const double steps = std::clamp(pixels / kStep, pixels < kShort ? 1.0 : 8.0, kMostSteps);
    const KTGeodesicGeometry line(from, to, std::max(metres / steps, 1e-3));
    std::vector<KTWorldPoint> points;
    for (const KTMapPoint& point : line.points())
        points.push_back(KTProject(point));
    return points;
}

/// In one repetition of the world. Where the line leaves the map at a pole there is nothing to be drawn.
void drawLine(QPainter& painter, const KTMapViewState& state, const std::vector<KTWorldPoint>& points,
              double turn) {
    LineClipper clipper(QRectF(-8, -8, state.width() + 16, state.height() + 16),
                        [&](const QPolygonF& piece) { painter.drawPolyline(piece); });
    const auto isAtEnd = [](const KTWorldPoint& point) { return point.y < 1e-9 || point.y > 1 - 1e-9; };
    for (std::size_t i = 0; i < points.size(); ++i) {
        const QPointF place = pointOf(state.viewPoint(KTWorldPoint{points[i].x + turn, points[i].y}));
        if (i == 0 || (isAtEnd(points[i]) && isAtEnd(points[i - 1])) ||
            std::abs(points[i].x - points[i - 1].x) > 0.5)
            clipper.moveTo(place);
        else
            clipper.lineTo(place);
    }
    clipper.finish();
}

void drawGeodesic(QPainter& painter, const KTMapViewState& state, const MapFeature& feature) {
    const std::vector<KTWorldPoint> points = geodesic(feature.position, *feature.values.placeShown, state);
    if (points.empty())
        return;
    const auto [west, east] = std::ranges::minmax(points, {}, &KTWorldPoint::x);
    const auto [first, last] = state.visibleTurns(west.x, east.x, 8);
    for (int turn = first; turn <= last; ++turn)
        drawLine(painter, state, points, turn);
}

/// Calls @p visit with the place of a feature in the view, in every repetition of the world in it.
void forEachPlace(const FeatureSnapshot& snapshot, std::uint32_t number, const KTMapViewState& state,
                  double margin, const auto& visit) {
    const KTWorldPoint place = snapshot.places().points()[number];
    const auto [first, last] = state.visibleTurns(place.x, place.x, margin);
    for (int turn = first; turn <= last; ++turn) {
        const QPointF point = pointOf(state.viewPoint(KTWorldPoint{place.x + turn, place.y}));
        if (point.y() > -margin && point.y() < state.height() + margin)
            visit(point);
    }
}

void drawFeature(QPainter& painter, FeatureSymbols& symbols, QPointF centre, const MapFeature& feature,
                 SymbolSet wanted) {
    if (wanted.has<KTCompassFingerSymbolizer>() && feature.values.imageDirection)
        symbols.drawFinger(painter, centre, *feature.values.imageDirection, ballOf(feature));
    if (wanted.has<KTShinyBallSymbolizer>())
        symbols.drawBall(painter, centre, ballOf(feature));
    if (wanted.has<KTStarSymbolizer>())
        symbols.drawStar(painter, centre);
}

/// The true places of what is drawn as one sign; of those on one pixel, one.
class Dots {
public:
    Dots(QPainter& thePainter, FeatureSymbols& theSymbols, const KTMapViewState& viewState)
        : painter(thePainter), symbols(theSymbols), state(viewState) {}

    void draw(const PhotoMarks::Group& group, const FeatureSnapshot& snapshot) {
        for (const std::uint32_t number : group.members) {
            const KTWorldPoint place = snapshot.places().points()[number];
            KTViewPoint point = state.viewPoint(place);
            point.x -= std::round((point.x - group.centre.x) / state.worldSize()) * state.worldSize();
            const auto column = std::int64_t(std::lround(point.x)), row = std::int64_t(std::lround(point.y));
            if (drawn.insert(column << 32 ^ (row & 0xffffffff)).second)
                symbols.drawDot(painter, pointOf(point), ballOf(snapshot.features()[number]));
        }
    }

private:
    QPainter& painter;
    FeatureSymbols& symbols;
    const KTMapViewState& state;
    std::unordered_set<std::int64_t> drawn;
};

} // namespace

void PhotoLineDrawing::draw(QPainter& painter, const KTMapViewState& state, const KTMapLook& look,
                            const std::atomic<bool>& isCancelled) const {
    FeatureSymbols symbols(look.isDark, state.devicePixelRatio());
    const double scale = state.scaleDenominator();
    const auto& features = snapshot->features();
    for (std::uint32_t number = 0; number < features.size() && !isCancelled; ++number) {
        const MapFeature& feature = features[number];
        if (!feature.isSelected)
            continue;
        const SymbolSet wanted = snapshot->symbolsOf(feature, scale);
        if (wanted.has<KTPieWedgeSymbolizer>() && feature.values.imageDirection)
            forEachPlace(*snapshot, number, state, FeatureSymbols::kWedgeRadius, [&](QPointF place) {
                symbols.drawWedge(painter, place, *feature.values.imageDirection,
                                  feature.values.fieldOfView.value_or(0));
            });
        if (wanted.has<KTGeodesicLineSymbolizer>() && feature.values.placeShown) {
            symbols.setLinePen(painter);
            drawGeodesic(painter, state, feature);
        }
    }
}

void PhotoMarkerDrawing::draw(QPainter& painter, const KTMapViewState& state, const KTMapLook& look,
                              const std::atomic<bool>& isCancelled) const {
    painter.setRenderHint(QPainter::Antialiasing); // signs are few, and ugly without
    FeatureSymbols symbols(look.isDark, state.devicePixelRatio());
    const PhotoMarks marks(*snapshot, state);
    const double scale = state.scaleDenominator();
    Dots dots(painter, symbols, state);
    for (const PhotoMarks::Group& group : marks.groups())
        if (!group.isSingle() && !group.isStack && !isCancelled)
            dots.draw(group, *snapshot);
    for (const PhotoMarks::Group& group : marks.groups()) {
        if (isCancelled)
            return;
        const QPointF centre = pointOf(group.centre);
        const MapFeature& first = snapshot->features()[group.members.front()];
        if (group.isSingle())
            drawFeature(painter, symbols, centre, first, snapshot->symbolsOf(first, scale));
        else if (group.isStack)
            symbols.drawStack(painter, centre, group.members.size(), group.selected);
        else
            symbols.drawCluster(painter, centre, group.members.size(), group.selected);
    }
}

void PhotoSelectionDrawing::draw(QPainter& painter, const KTMapViewState& state, const KTMapLook& look,
                                 const std::atomic<bool>& isCancelled) const {
    painter.setRenderHint(QPainter::Antialiasing);
    FeatureSymbols symbols(look.isDark, state.devicePixelRatio());
    const PhotoMarks marks(*snapshot, state);
    const double scale = state.scaleDenominator();
    for (const PhotoMarks::Group& group : marks.groups())
        if (group.selected > 0) { // the star beside the number
            const double side = group.radius() * 0.75;
            symbols.drawStar(painter, pointOf(group.centre) + QPointF(side, -side));
        }
    for (const PhotoMarks::Selected& selected : marks.selected()) {
        if (isCancelled)
            return;
        const MapFeature& feature = snapshot->features()[selected.feature];
        drawFeature(painter, symbols, pointOf(selected.centre), feature, snapshot->symbolsOf(feature, scale));
    }
}
