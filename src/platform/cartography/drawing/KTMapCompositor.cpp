#include "platform/cartography/drawing/KTMapCompositor.h"

#include "platform/cartography/drawing/KTMapPalette.h"

#include <QPainter>
#include <algorithm>

KTMapCompositor::KTMapCompositor()
    : ground(true, [this] { planeDidChange(); }), features(false, [this] { planeDidChange(); }) {}

KTMapCompositor::~KTMapCompositor() {
    for (KTMapLayer* layer : layerList)
        layer->setChangeHandler({});
}

KTMapPlane& KTMapCompositor::planeOf(const KTMapLayer& layer) {
    return KTMapLayer::isGround(layer.place()) ? ground : features;
}

void KTMapCompositor::addLayer(KTMapLayer& layer) {
    const auto above = std::ranges::upper_bound(layerList, layer.place(), {}, &KTMapLayer::place);
    layerList.insert(above, &layer);
    layer.setChangeHandler([this, &layer] { layerDidChange(layer); });
    refresh();
}

void KTMapCompositor::removeLayer(KTMapLayer& layer) {
    layer.setChangeHandler({});
    std::erase(layerList, &layer);
    refresh();
}

/// Tells the planes which layers are theirs.
void KTMapCompositor::refresh() {
    std::vector<KTMapLayer*> below, above;
    for (KTMapLayer* layer : layerList)
        if (!KTMapLayer::isDrawnAtEveryFrame(layer->place()))
            (KTMapLayer::isGround(layer->place()) ? below : above).push_back(layer);
    ground.setLayers(std::move(below));
    features.setLayers(std::move(above));
    setViewState(state, moving);
}

void KTMapCompositor::layerDidChange(const KTMapLayer& layer) {
    if (!KTMapLayer::isDrawnAtEveryFrame(layer.place())) {
        KTMapPlane& plane = planeOf(layer);
        plane.invalidate();
        plane.request(state, {.isDark = dark}, moving);
    }
    if (updateHandler)
        updateHandler();
}

void KTMapCompositor::setViewState(const KTMapViewState& newState, bool isMoving) {
    state = newState;
    moving = isMoving;
    ground.request(state, {.isDark = dark}, moving);
    features.request(state, {.isDark = dark}, moving);
}

void KTMapCompositor::setDark(bool isDark) {
    dark = isDark;
    setViewState(state, moving);
}

void KTMapCompositor::planeDidChange() {
    for (const KTMapLayer* layer : layerList)
        if (auto problem = layer->problem();
            problem && toldProblems.insert(*problem).second && problemHandler)
            problemHandler(*problem);
    if (updateHandler)
        updateHandler();
}

void KTMapCompositor::paint(QPainter& painter) {
    const QRectF view(0, 0, state.width(), state.height());
    painter.save();
    painter.setClipRect(view);
    painter.fillRect(view, KTMapPalette::forMap(dark).water);
    ground.paint(painter, state);
    features.paint(painter, state);
    const std::atomic<bool> never = false;
    for (KTMapLayer* layer : layerList) {
        if (!KTMapLayer::isDrawnAtEveryFrame(layer->place()))
            continue;
        if (const auto drawing = layer->drawing(state)) {
            painter.save();
            painter.setRenderHint(QPainter::Antialiasing);
            drawing->draw(painter, state, {.isDark = dark}, never);
            painter.restore();
        }
    }
    painter.restore();
}
