#include "platform/cartography/KTMapViewState.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double kEquator = 40'075'016.686; // metres, WGS 84
constexpr double kMetresPerPixelOnPaper = 0.0254 / 96;
constexpr double kLargestView = 100'000; // logical pixels

double finiteOr(double number, double otherwise) {
    return std::isfinite(number) ? number : otherwise;
}

double soundLength(double length) {
    return std::clamp(finiteOr(length, 1), 1.0, kLargestView);
}

} // namespace

KTMapViewState::KTMapViewState(KTMapPoint centre, double zoom, double width, double height,
                               double devicePixelRatio)
    : viewWidth(soundLength(width)), viewHeight(soundLength(height)),
      pixelRatio(std::clamp(finiteOr(devicePixelRatio, 1), 0.1, 16.0)) {
    setZoom(zoom);
    setMiddle(KTProject({finiteOr(centre.x, 0), finiteOr(centre.y, 0)}));
}

void KTMapViewState::setZoom(double zoom) {
    const double smallest = std::max(0.0, std::log2(viewHeight / kTileSize));
    zoomLevel = std::max(std::min(finiteOr(zoom, 0), kMaximumZoom), smallest);
    size = kTileSize * std::exp2(zoomLevel);
}

void KTMapViewState::setMiddle(KTWorldPoint point) {
    const double half = std::min(viewHeight / 2 / size, 0.5);
    middle.x = point.x - std::floor(point.x);
    if (middle.x >= 1) // rounding
        middle.x = 0;
    middle.y = std::clamp(point.y, half, 1 - half);
}

double KTMapViewState::metresPerPixel() const {
    return kEquator * std::cos(centre().y * std::numbers::pi / 180) / size;
}

double KTMapViewState::scaleDenominator() const {
    return metresPerPixel() / kMetresPerPixelOnPaper;
}

KTWorldRect KTMapViewState::visibleRect() const {
    const double dx = viewWidth / 2 / size, dy = viewHeight / 2 / size;
    return {middle.x - dx, middle.y - dy, middle.x + dx, middle.y + dy};
}

KTMapPoint KTMapViewState::position(KTViewPoint point) const {
    const KTMapPoint position = KTUnproject(worldPoint(point));
    return {KTNormalizedLongitude(position.x), position.y};
}

KTViewPoint KTMapViewState::viewPoint(KTMapPoint position) const {
    KTWorldPoint point = KTProject(position);
    point.x += std::round(middle.x - point.x);
    return viewPoint(point);
}

KTMapViewState::Turns KTMapViewState::visibleTurns(double left, double right, double margin) const {
    const KTWorldRect visible = visibleRect();
    const double more = margin / size;
    return {static_cast<int>(std::ceil(visible.left - more - right)),
            static_cast<int>(std::floor(visible.right + more - left))};
}

KTMapViewState KTMapViewState::withCentre(KTMapPoint centre) const {
    return {centre, zoomLevel, viewWidth, viewHeight, pixelRatio};
}

KTMapViewState KTMapViewState::withSize(double width, double height, double devicePixelRatio) const {
    return {centre(), zoomLevel, width, height, devicePixelRatio};
}

KTMapViewState KTMapViewState::zoomedTo(double zoom, KTViewPoint anchor) const {
    const KTWorldPoint fixed = worldPoint(anchor);
    KTMapViewState state = *this;
    state.setZoom(zoom);
    state.setMiddle({fixed.x - (anchor.x - viewWidth / 2) / state.size,
                     fixed.y - (anchor.y - viewHeight / 2) / state.size});
    return state;
}

KTMapViewState KTMapViewState::pannedBy(double dx, double dy) const {
    KTMapViewState state = *this;
    state.setMiddle({middle.x - finiteOr(dx, 0) / size, middle.y - finiteOr(dy, 0) / size});
    return state;
}

KTMapViewState KTMapViewState::widenedBy(double margin) const {
    KTMapViewState state = *this;
    state.viewWidth += 2 * margin;
    state.viewHeight += 2 * margin;
    return state;
}
