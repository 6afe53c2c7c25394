#pragma once
#include "platform/cartography/drawing/KTMapLayer.h"
#include "platform/cartography/drawing/tracks/KTTrackLine.h"

#include <QColor>

/// Draws tracks: lines set off from the map, gaps dotted.
class TrackDrawing final : public KTMapDrawing {
public:
    struct Track {
        std::shared_ptr<const KTTrackLine> line;
        QColor colours[2]; ///< on the light and the dark map
    };

    /// From below.
    explicit TrackDrawing(std::vector<Track> drawnTracks) : tracks(std::move(drawnTracks)) {}

    /// The zoom by which the level of detail is chosen: that of the physical pixels.
    static double zoomOf(const KTMapViewState& state);

    void draw(QPainter& painter, const KTMapViewState& state, const KTMapLook& look,
              const std::atomic<bool>& isCancelled) const override;

private:
    const std::vector<Track> tracks;
};
