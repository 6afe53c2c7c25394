#pragma once
#include "platform/cartography/drawing/KTMapLayer.h"

#include <vector>

/// Whom the map owes thanks, on a board in its lower right corner.
class KTAttributionLayer final : public KTMapLayer {
public:
    KTAttributionLayer() : KTMapLayer(Place::Marginalia) {}

    /// What the attributions of @p layers say together, each once.
    static std::string textOf(const std::vector<KTMapLayer*>& layers);
    void setText(const std::string& newText);
    std::shared_ptr<const KTMapDrawing> drawing(const KTMapViewState& state) override;

private:
    std::string text;
};
