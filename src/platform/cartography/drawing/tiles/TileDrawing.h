#pragma once
#include "platform/cartography/drawing/KTMapLayer.h"
#include "platform/cartography/drawing/tiles/KTTileAddress.h"

#include <QImage>

class KTTileStore;
struct KTTileSource;

/// The tiles that a view shows.
struct TileView {
    /// A tile in one repetition of the world.
    struct Place {
        KTTileAddress tile;
        KTWorldRect rect;
    };

    /// The places of tiles of @p source that cover @p state, those in the middle first: of the zoom whose
    /// tiles come nearest to their size, or of the source's largest zoom beyond it. None below its smallest.
    static std::vector<Place> placesIn(const KTMapViewState& state, const KTTileSource& source);
};

/// The images of tiles that had arrived at one moment; for those that had not, a part of a larger one or
/// smaller ones.
class TileDrawing final : public KTMapDrawing {
public:
    TileDrawing(const std::vector<TileView::Place>& places, const KTTileStore& store);
    bool isEmpty() const { return pieces.empty(); }

    void draw(QPainter& painter, const KTMapViewState& state, const KTMapLook& look,
              const std::atomic<bool>& isCancelled) const override;

private:
    struct Piece {
        QImage image;
        QRectF part; ///< of the image, in its pixels
        KTWorldRect rect;
    };

    bool addFromAbove(const TileView::Place& place, const KTTileStore& store);
    void addFromBelow(const TileView::Place& place, const KTTileStore& store);

    std::vector<Piece> pieces;
};
