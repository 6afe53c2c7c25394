#include "platform/cartography/drawing/KTAttributionLayer.h"

#include "platform/cartography/drawing/KTMapBoard.h"

#include <QFontMetricsF>
#include <algorithm>

namespace {

constexpr double kRoomForScale = 0.4; // of the view's width, left free for the board on the other side

class Drawing : public KTMapDrawing {
public:
    explicit Drawing(const std::string& thanks) : text(QString::fromStdString(thanks).simplified()) {}

    void draw(QPainter& painter, const KTMapViewState& state, const KTMapLook& look,
              const std::atomic<bool>&) const override {
        const QFontMetricsF metrics(KTMapBoard::font());
        const QString shown = metrics.elidedText(text, Qt::ElideRight, state.width() * (1 - kRoomForScale));
        const QSizeF size(metrics.horizontalAdvance(shown), metrics.height());
        const QRectF room =
            KTMapBoard::draw(painter, {state.width(), state.height()}, KTMapBoard::Corner::LowerRight, size,
                             KTMapPalette::forMap(look.isDark));
        painter.drawText(QPointF(room.left(), room.top() + metrics.ascent()), shown);
    }

private:
    const QString text;
};

} // namespace

std::string KTAttributionLayer::textOf(const std::vector<KTMapLayer*>& layers) {
    std::vector<std::string> parts;
    for (const KTMapLayer* layer : layers)
        if (std::string part = layer->attribution();
            !part.empty() && std::ranges::find(parts, part) == parts.end())
            parts.push_back(std::move(part));
    std::string text;
    for (const std::string& part : parts)
        text += (text.empty() ? "" : " · ") + part;
    return text;
}

void KTAttributionLayer::setText(const std::string& newText) {
    if (newText == text)
        return;
    text = newText;
    changed();
}

std::shared_ptr<const KTMapDrawing> KTAttributionLayer::drawing(const KTMapViewState&) {
    return text.empty() ? nullptr : std::make_shared<Drawing>(text);
}
