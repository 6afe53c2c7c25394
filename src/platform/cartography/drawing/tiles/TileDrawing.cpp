#include "platform/cartography/drawing/tiles/TileDrawing.h"

#include "platform/cartography/drawing/tiles/KTTileStore.h"

#include <QPainter>
#include <cmath>

namespace {

constexpr double kHighResolutionFrom = 1.5; // physical pixels a logical one
constexpr int kMostLevelsAbove = 6;

KTWorldRect rectOf(int z, std::int64_t column, std::int64_t row) {
    const double side = 1 / std::exp2(z);
    return {double(column) * side, double(row) * side, double(column + 1) * side, double(row + 1) * side};
}

} // namespace

std::vector<TileView::Place> TileView::placesIn(const KTMapViewState& state, const KTTileSource& source) {
    const double exact = std::log2(state.worldSize() / source.tileSize);
    const int z = std::min(int(std::lround(exact)), source.maximumZoom);
    if (z < source.minimumZoom || z < 0)
        return {};
    const bool isHighResolution =
        source.hasHighResolution() && state.devicePixelRatio() >= kHighResolutionFrom;
    const KTWorldRect visible = state.visibleRect();
    const std::int64_t count = std::int64_t(1) << z;
    constexpr double kTouch = 1e-6; // of a tile: what the view only touches it does not show
    const auto first = [&](double part) { return std::int64_t(std::floor(part * double(count) + kTouch)); };
    const auto last = [&](double part) { return std::int64_t(std::ceil(part * double(count) - kTouch)) - 1; };
    std::vector<Place> places;
    for (std::int64_t row = std::max<std::int64_t>(first(visible.top), 0);
         row <= std::min(last(visible.bottom), count - 1); ++row)
        for (std::int64_t column = first(visible.left); column <= last(visible.right); ++column)
            places.push_back({{z, int(((column % count) + count) % count), int(row), isHighResolution},
                              rectOf(z, column, row)});
    const KTWorldPoint middle = visible.centre();
    std::ranges::stable_sort(places, {}, [&](const Place& place) {
        return std::hypot(place.rect.centre().x - middle.x, place.rect.centre().y - middle.y);
    });
    return places;
}

TileDrawing::TileDrawing(const std::vector<TileView::Place>& places, const KTTileStore& store) {
    for (const TileView::Place& place : places)
        if (!addFromAbove(place, store))
            addFromBelow(place, store);
}

/// The tile itself, or the part of one that contains it.
bool TileDrawing::addFromAbove(const TileView::Place& place, const KTTileStore& store) {
    for (int levels = 0; levels <= std::min(kMostLevelsAbove, place.tile.z); ++levels) {
        const QImage image = store.image(place.tile.ancestor(levels));
        if (image.isNull())
            continue;
        const double side = image.width() / std::exp2(levels);
        const int among = (1 << levels) - 1; // the place's column and row in the larger tile
        pieces.push_back({image,
                          QRectF((place.tile.x & among) * side, (place.tile.y & among) * side, side, side),
                          place.rect});
        return true;
    }
    return false;
}

/// The four tiles that it contains, as far as they are there.
void TileDrawing::addFromBelow(const TileView::Place& place, const KTTileStore& store) {
    for (const int right : {0, 1})
        for (const int down : {0, 1}) {
            const KTTileAddress tile{place.tile.z + 1, 2 * place.tile.x + right, 2 * place.tile.y + down,
                                     place.tile.isHighResolution};
            const QImage image = store.image(tile);
            if (image.isNull())
                continue;
            const KTWorldPoint middle = place.rect.centre();
            pieces.push_back({image,
                              QRectF(image.rect()),
                              {right ? middle.x : place.rect.left, down ? middle.y : place.rect.top,
                               right ? place.rect.right : middle.x, down ? place.rect.bottom : middle.y}});
        }
}

void TileDrawing::draw(QPainter& painter, const KTMapViewState& state, const KTMapLook& look,
                       const std::atomic<bool>& isCancelled) const {
    painter.setRenderHint(QPainter::SmoothPixmapTransform, look.isAntialiased);
    painter.setRenderHint(QPainter::Antialiasing, false); // edges lie on pixels, so that no seams show
    const auto onPixel = [&](KTWorldPoint point) {
        const KTViewPoint place = state.viewPoint(point);
        const double ratio = state.devicePixelRatio();
        return QPointF(std::round(place.x * ratio) / ratio, std::round(place.y * ratio) / ratio);
    };
    for (const Piece& piece : pieces) {
        if (isCancelled)
            return;
        const QRectF target(onPixel({piece.rect.left, piece.rect.top}),
                            onPixel({piece.rect.right, piece.rect.bottom}));
        painter.drawImage(target, piece.image, piece.part);
    }
}
