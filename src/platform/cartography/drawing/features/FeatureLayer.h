#pragma once
#include "platform/cartography/drawing/KTMapLayer.h"
#include "platform/cartography/drawing/features/KTFeatureSource.h"

/// A layer that draws some symbols of a source's features. Main thread.
class FeatureLayer final : public KTMapLayer {
public:
    using Snapshot = std::shared_ptr<const FeatureSnapshot>;
    /// Makes what is drawn of the features at one moment; null for nothing.
    using Draw = std::function<std::shared_ptr<const KTMapDrawing>(const Snapshot& features)>;

    FeatureLayer(Place place, KTFeatureSource& source, Draw makeDrawing)
        : KTMapLayer(place), features(source), make(std::move(makeDrawing)) {}

    std::shared_ptr<const KTMapDrawing> drawing(const KTMapViewState&) override {
        if (isOutOfDate || drawn != features.snapshot()) {
            drawn = features.snapshot();
            current = make(drawn);
            isOutOfDate = false;
        }
        return current;
    }
    /// Lets the features be drawn anew.
    void setNeedsDisplay() {
        isOutOfDate = true;
        changed();
    }

private:
    KTFeatureSource& features;
    const Draw make;
    Snapshot drawn;
    std::shared_ptr<const KTMapDrawing> current;
    bool isOutOfDate = true;
};
