#pragma once
#include "platform/cartography/drawing/KTMapLayer.h"
#include "platform/cartography/drawing/features/FeatureSnapshot.h"

#include <optional>

/// The flags of candidate locations; of many of one sort within a few pixels, one.
class FlagDrawing final : public KTMapDrawing {
public:
    FlagDrawing(std::shared_ptr<const FeatureSnapshot> points, double flagRotation)
        : snapshot(std::move(points)), rotation(flagRotation) {}

    void draw(QPainter& painter, const KTMapViewState& state, const KTMapLook& look,
              const std::atomic<bool>& isCancelled) const override;

    struct Flag {
        std::uint32_t number; ///< of the feature
        KTViewPoint foot;
    };
    /// The flag that covers @p point, the one drawn last.
    static std::optional<Flag> flagAt(KTViewPoint point, const FeatureSnapshot& snapshot, double rotation,
                                      const KTMapViewState& state);

private:
    /// Those in the view, from below: from north to south.
    static std::vector<Flag> flagsIn(const KTMapViewState& state, const FeatureSnapshot& snapshot);

    const std::shared_ptr<const FeatureSnapshot> snapshot;
    const double rotation;
};
