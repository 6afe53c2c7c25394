#pragma once
#include "platform/cartography/drawing/features/FeatureLayer.h"

#include <optional>

/// Candidate locations on the map, as flags: those before and after a photo point to either side, the one
/// between them is round. Main thread.
class KTLinkablePointLayer {
public:
    using Objects = KTSpatialObjectController::Objects;

    /// A flag under the pointer.
    struct Hit {
        std::shared_ptr<KTSpatialObject> object;
        KTViewPoint foot; ///< in the view: the candidate's place
    };

    /// @p points must stay until the layer is gone.
    explicit KTLinkablePointLayer(KTSpatialObjectController& points);

    KTMapLayer& layer() { return flags; }
    /// Radians, clockwise from upright, about the foot; one that is not finite counts as 0.
    void setFlagRotation(double radians);
    double flagRotation() const { return rotation; }
    /// The topmost flag whose foot or cloth is at @p point.
    std::optional<Hit> hitTest(KTViewPoint point, const KTMapViewState& state);

private:
    KTFeatureSource features;
    double rotation = 0;
    FeatureLayer flags;
};
