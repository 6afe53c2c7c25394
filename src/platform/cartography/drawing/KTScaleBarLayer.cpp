#include "platform/cartography/drawing/KTScaleBarLayer.h"

#include "platform/cartography/drawing/KTMapBoard.h"

#include <QFontMetricsF>
#include <cmath>

namespace {

constexpr double kLongestBar = 120, kTick = 4; // logical pixels
constexpr double kGap = 6, kGapBeforePosition = 14;
constexpr double kFoot = 0.3048, kMile = 1609.344, kNauticalMile = 1852;

class Drawing : public KTMapDrawing {
public:
    Drawing(double metres, std::optional<KTMapPoint> position) : distance(metres) {
        label = QString::fromStdString(
            KTUnitConverter::sharedUnitConverter().roundedDefaultDistanceDescriptionFromMeters(metres));
        if (position)
            coordinates = QString::asprintf("%.4f, %.4f", position->y, position->x);
    }

    void draw(QPainter& painter, const KTMapViewState& state, const KTMapLook& look,
              const std::atomic<bool>&) const override {
        const KTMapPalette& palette = KTMapPalette::forMap(look.isDark);
        const QFontMetricsF metrics(KTMapBoard::font());
        const double bar = distance / state.metresPerPixel(), labelWidth = metrics.horizontalAdvance(label);
        double width = bar + kGap + labelWidth;
        if (!coordinates.isEmpty())
            width += kGapBeforePosition + metrics.horizontalAdvance(coordinates);
        const QRectF room =
            KTMapBoard::draw(painter, {state.width(), state.height()}, KTMapBoard::Corner::LowerLeft,
                             {width, metrics.height()}, palette);
        painter.setPen(QPen(palette.plateText, 1.2));
        const double y = std::round(room.center().y()) + 0.5, left = room.left(), right = left + bar;
        painter.drawLine(QPointF(left, y), QPointF(right, y));
        painter.drawLine(QPointF(left, y - kTick), QPointF(left, y + kTick));
        painter.drawLine(QPointF(right, y - kTick), QPointF(right, y + kTick));
        const double baseLine = room.top() + metrics.ascent();
        painter.drawText(QPointF(right + kGap, baseLine), label);
        if (!coordinates.isEmpty())
            painter.drawText(QPointF(right + kGap + labelWidth + kGapBeforePosition, baseLine), coordinates);
    }

private:
    const double distance; // metres
    QString label, coordinates;
};

/// The largest of 1, 2 and 5 times a power of ten that is @p limit at most.
double roundNumber(double limit) {
    const double power = std::pow(10, std::floor(std::log10(limit)));
    return power * (limit >= 5 * power ? 5 : limit >= 2 * power ? 2 : 1);
}

} // namespace

KTScaleBarLayer::KTScaleBarLayer() : KTMapLayer(Place::Marginalia) {}

double KTScaleBarLayer::roundDistance(const KTMapViewState& state, double pixels,
                                      KTUnitConverter::Units units) {
    const double metres = pixels * state.metresPerPixel();
    switch (units) {
    case KTUnitConverter::Units::Imperial:
        return metres < kMile ? roundNumber(metres / kFoot) * kFoot : roundNumber(metres / kMile) * kMile;
    case KTUnitConverter::Units::Nautical:
        return metres < kNauticalMile ? roundNumber(metres)
                                      : roundNumber(metres / kNauticalMile) * kNauticalMile;
    case KTUnitConverter::Units::Metric:
        break;
    }
    return roundNumber(metres);
}

void KTScaleBarLayer::setShownPosition(std::optional<KTMapPoint> position) {
    if (position == shownPosition)
        return;
    shownPosition = position;
    changed();
}

std::shared_ptr<const KTMapDrawing> KTScaleBarLayer::drawing(const KTMapViewState& state) {
    const auto units = KTUnitConverter::sharedUnitConverter().distanceUnits();
    return std::make_shared<Drawing>(roundDistance(state, kLongestBar, units), shownPosition);
}
