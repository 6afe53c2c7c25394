#include "platform/cartography/drawing/KTBaseMapLayer.h"

#include "platform/cartography/drawing/KTBaseMapDrawing.h"
#include "platform/common/KTLocalizedString.h"

KTBaseMapLayer::KTBaseMapLayer(std::shared_ptr<KTBaseMapStore> data)
    : KTMapLayer(Place::BaseMap), store(std::move(data)), picture(std::make_shared<KTBaseMapDrawing>(store)) {
}

std::string KTBaseMapLayer::attribution() const {
    return KTLocalizedString("Made with Natural Earth");
}
