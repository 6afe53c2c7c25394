#pragma once
#include "platform/cartography/drawing/KTBaseMapStore.h"
#include "platform/cartography/drawing/KTMapLayer.h"

/// The offline base map: land and water, borders, rivers, places. Where its data cannot be read it is a plain
/// sheet of water, and has a problem to tell.
class KTBaseMapLayer final : public KTMapLayer {
public:
    explicit KTBaseMapLayer(std::shared_ptr<KTBaseMapStore> data = KTBaseMapStore::sharedStore());

    std::shared_ptr<const KTMapDrawing> drawing(const KTMapViewState&) override { return picture; }
    std::string attribution() const override;
    std::optional<std::string> problem() const override { return store->failure(); }

private:
    const std::shared_ptr<KTBaseMapStore> store;
    const std::shared_ptr<const KTMapDrawing> picture; // what is drawn never changes
};
