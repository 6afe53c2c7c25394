#include "platform/cartography/drawing/KTCrosshairsLayer.h"

#include "platform/cartography/drawing/KTMapPalette.h"

#include <QPainter>

namespace {

constexpr double kRing = 9, kArm = 26; // logical pixels from the centre

class Drawing : public KTMapDrawing {
public:
    void draw(QPainter& painter, const KTMapViewState& state, const KTMapLook& look,
              const std::atomic<bool>&) const override {
        const KTMapPalette& palette = KTMapPalette::forMap(look.isDark);
        const QPointF centre(state.width() / 2, state.height() / 2);
        painter.setBrush(Qt::NoBrush);
        for (const QPen& pen : {QPen(palette.textHalo, 4.5), QPen(palette.crosshairs, 1.6)}) {
            painter.setPen(pen);
            painter.drawEllipse(centre, kRing, kRing);
            for (const QPointF& direction : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)})
                painter.drawLine(centre + direction * kRing / 2, centre + direction * kArm);
        }
    }
};

} // namespace

void KTCrosshairsLayer::setShown(bool isShown) {
    if (isShown == shown)
        return;
    shown = isShown;
    changed();
}

std::shared_ptr<const KTMapDrawing> KTCrosshairsLayer::drawing(const KTMapViewState&) {
    static const auto drawing = std::make_shared<Drawing>();
    return shown ? drawing : nullptr;
}
