#include "platform/cartography/drawing/KTMapPicture.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

QImage KTMakeMapImage(const KTMapViewState& state, bool isOpaque) {
    const double ratio = state.devicePixelRatio();
    QImage image(static_cast<int>(std::ceil(state.width() * ratio)),
                 static_cast<int>(std::ceil(state.height() * ratio)),
                 isOpaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(isOpaque ? Qt::black : Qt::transparent);
    return image;
}

void KTDrawMap(QImage& image, const KTMapViewState& state, const KTMapLook& look,
               const KTMapDrawings& drawings, const std::atomic<bool>& isCancelled) {
    if (image.isNull()) // not enough memory
        return;
    QPainter painter(&image);
    for (const auto& drawing : drawings) {
        if (isCancelled)
            return;
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing, look.isAntialiased);
        painter.setRenderHint(QPainter::TextAntialiasing);
        drawing->draw(painter, state, look, isCancelled);
        painter.restore();
    }
}

QImage KTMapPicture(const std::vector<KTMapLayer*>& layers, const KTMapViewState& state,
                    const KTMapLook& look) {
    std::vector<KTMapLayer*> ordered = layers;
    std::ranges::stable_sort(ordered, {}, [](const KTMapLayer* layer) { return layer->place(); });
    KTMapDrawings drawings;
    for (KTMapLayer* layer : ordered) {
        layer->willShow(state);
        if (auto drawing = layer->drawing(state))
            drawings.push_back(std::move(drawing));
    }
    QImage image = KTMakeMapImage(state, true);
    const std::atomic<bool> never = false;
    KTDrawMap(image, state, look, drawings, never);
    return image;
}
