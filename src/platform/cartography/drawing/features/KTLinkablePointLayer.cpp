#include "platform/cartography/drawing/features/KTLinkablePointLayer.h"

#include "platform/cartography/drawing/features/FlagDrawing.h"

#include <cmath>

KTLinkablePointLayer::KTLinkablePointLayer(KTSpatialObjectController& points)
    : features(points, [this] { flags.setNeedsDisplay(); }),
      flags(KTMapLayer::Place::LinkablePoints, features,
            [this](const FeatureLayer::Snapshot& snapshot) -> std::shared_ptr<const KTMapDrawing> {
                if (snapshot->features().empty())
                    return nullptr;
                return std::make_shared<FlagDrawing>(snapshot, rotation);
            }) {}

void KTLinkablePointLayer::setFlagRotation(double radians) {
    const double wanted = std::isfinite(radians) ? radians : 0;
    if (std::exchange(rotation, wanted) != wanted)
        flags.setNeedsDisplay();
}

std::optional<KTLinkablePointLayer::Hit> KTLinkablePointLayer::hitTest(KTViewPoint point,
                                                                       const KTMapViewState& state) {
    const auto found = FlagDrawing::flagAt(point, *features.snapshot(), rotation, state);
    if (!found)
        return std::nullopt;
    const Objects objects = features.objectsOf(std::array{found->number});
    if (objects.empty())
        return std::nullopt;
    return Hit{objects.front(), found->foot};
}
