#pragma once
#include "platform/cartography/KTMapProjection.h"

/// A position in a view, in logical pixels from its upper left corner.
struct KTViewPoint {
    double x = 0, y = 0;
    bool operator==(const KTViewPoint&) const = default;
};

/// What part of the map a view of some size shows, at which scale. A value type; every state is sound: the
/// centre's longitude lies within [-180, 180), the view shows nothing beyond the map's ends in the north and
/// south (the map is drawn large enough to fill its height), numbers that are not finite are replaced.
///
/// The zoom is the binary logarithm of the scale: at 0 the world is 256 logical pixels wide, at each further
/// 1 twice as much. It need not be whole.
class KTMapViewState {
public:
    static constexpr double kTileSize = 256; ///< width of the world at zoom 0, in logical pixels
    static constexpr double kMaximumZoom = 20;

    /// @p width and @p height in logical pixels, at least 1 each; @p devicePixelRatio physical pixels a
    /// logical one.
    KTMapViewState(KTMapPoint centre, double zoom, double width, double height, double devicePixelRatio = 1);
    KTMapViewState() : KTMapViewState({}, 0, 1, 1) {}

    KTMapPoint centre() const { return KTUnproject(middle); }
    KTWorldPoint worldCentre() const { return middle; } ///< x within [0, 1)
    double zoom() const { return zoomLevel; }
    double width() const { return viewWidth; }
    double height() const { return viewHeight; }
    double devicePixelRatio() const { return pixelRatio; }
    /// Width and height of the world in logical pixels.
    double worldSize() const { return size; }
    /// N where the map's scale at the centre is 1 : N, with 96 logical pixels an inch.
    double scaleDenominator() const;
    /// Metres on the ground that a logical pixel at the centre stands for.
    double metresPerPixel() const;
    /// The part of the world that the view shows; the left edge may be below 0, the right one above 1.
    KTWorldRect visibleRect() const;

    // Both ways between the world and the view, in logical pixels. World points are taken as they are: one a
    // turn away is a turn away.
    KTViewPoint viewPoint(KTWorldPoint point) const {
        return {(point.x - middle.x) * size + viewWidth / 2, (point.y - middle.y) * size + viewHeight / 2};
    }
    KTWorldPoint worldPoint(KTViewPoint point) const {
        return {middle.x + (point.x - viewWidth / 2) / size, middle.y + (point.y - viewHeight / 2) / size};
    }
    /// The position under a point of the view, its longitude within [-180, 180).
    KTMapPoint position(KTViewPoint point) const;
    /// Where a position is in the view; of its repetitions the one nearest to the middle.
    KTViewPoint viewPoint(KTMapPoint position) const;

    /// The world repeats itself from west to east. What lies within [0, 1) of the first world is visible as
    /// often as there are whole numbers from first to last: add each to x.
    struct Turns {
        int first = 0, last = -1;
    };
    /// Those repetitions of the part of the world from x = @p left to @p right that may be in the view,
    /// widened by @p margin logical pixels on every side.
    Turns visibleTurns(double left = 0, double right = 1, double margin = 0) const;

    KTMapViewState withCentre(KTMapPoint centre) const;
    KTMapViewState withSize(double width, double height, double devicePixelRatio) const;
    /// The same place under @p anchor at another zoom.
    KTMapViewState zoomedTo(double zoom, KTViewPoint anchor) const;
    KTMapViewState zoomedTo(double zoom) const { return zoomedTo(zoom, {viewWidth / 2, viewHeight / 2}); }
    /// What was at (0, 0) is at (@p dx, @p dy) afterwards, in logical pixels.
    KTMapViewState pannedBy(double dx, double dy) const;
    /// The same middle and scale in a view larger by @p margin logical pixels on every side. Where that would
    /// show something beyond the map's ends it is nevertheless shown.
    KTMapViewState widenedBy(double margin) const;

    bool operator==(const KTMapViewState&) const = default;

private:
    void setZoom(double zoom);
    void setMiddle(KTWorldPoint point);

    KTWorldPoint middle;
    double zoomLevel = 0, size = kTileSize;
    double viewWidth = 1, viewHeight = 1, pixelRatio = 1;
};
