#pragma once
#include "platform/cartography/drawing/KTMapLayer.h"

#include "platform/common/KTUnitConverter.h"

/// A bar that stands for a round distance on the ground, in the user's units, and beside it the coordinates
/// of a point, that under the pointer for instance.
class KTScaleBarLayer final : public KTMapLayer {
public:
    KTScaleBarLayer();

    /// Whose coordinates are shown, in degrees; nothing for none.
    void setShownPosition(std::optional<KTMapPoint> position);
    std::shared_ptr<const KTMapDrawing> drawing(const KTMapViewState& state) override;

    /// The longest round distance, in metres, that takes @p pixels logical pixels at most at the centre.
    static double roundDistance(const KTMapViewState& state, double pixels, KTUnitConverter::Units units);

private:
    std::optional<KTMapPoint> shownPosition;
};
