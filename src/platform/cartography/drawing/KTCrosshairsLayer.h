#pragma once
#include "platform/cartography/drawing/KTMapLayer.h"

/// A cross that marks the map's centre, while it is shown.
class KTCrosshairsLayer final : public KTMapLayer {
public:
    KTCrosshairsLayer() : KTMapLayer(Place::Crosshairs) {}

    void setShown(bool isShown);
    std::shared_ptr<const KTMapDrawing> drawing(const KTMapViewState& state) override;

private:
    bool shown = false;
};
