#pragma once
#include "platform/cartography/drawing/KTBaseMapLabels.h"
#include "platform/cartography/drawing/KTBaseMapStore.h"
#include "platform/cartography/drawing/KTGazetteerLabels.h"
#include "platform/cartography/drawing/KTMapLayer.h"

/// Draws the base map. Any thread.
class KTBaseMapDrawing final : public KTMapDrawing {
public:
    explicit KTBaseMapDrawing(std::shared_ptr<KTBaseMapStore> data) : store(std::move(data)) {}

    void draw(QPainter& painter, const KTMapViewState& state, const KTMapLook& look,
              const std::atomic<bool>& isCancelled) const override;

private:
    void drawLabels(QPainter& painter, const KTMapViewState& state, const KTMapPalette& palette,
                    const KTBaseMapData& data, const std::atomic<bool>& isCancelled) const;

    const std::shared_ptr<KTBaseMapStore> store;
    mutable std::once_flag hasLabels, hasVillages; // made when they are first drawn
    mutable std::unique_ptr<KTBaseMapLabels> labels;
    mutable std::unique_ptr<const KTGazetteerLabels> villages;
};
