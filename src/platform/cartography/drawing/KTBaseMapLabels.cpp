#include "platform/cartography/drawing/KTBaseMapLabels.h"

#include "platform/cartography/KTMapViewState.h"
#include "platform/cartography/drawing/KTMapText.h"
#include "platform/common/KTCountryNames.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace {

using Label = KTBaseMapLabels::Label;
using Kind = KTBaseMapLabels::Kind;

constexpr double kDot = 2.5; // radius of a place's dot, logical pixels
constexpr double kGap = 4;   // between dot and text
constexpr int kLastCountryZoom = 7;
constexpr double kEarly = 0.4; // zooms by which names come earlier than their rank says
constexpr double kSmallestCountryText = 10, kLargestCountryText = 15;

double radiusOf(Kind kind) {
    switch (kind) {
    case Kind::Capital:
        return kDot + 0.5;
    case Kind::City:
        return kDot;
    default:
        return kDot - 0.7;
    }
}

KTWorldPoint worldPoint(KTBaseMapData::Point point) {
    return {static_cast<double>(point.x) / KTBaseMapData::kWorld,
            static_cast<double>(point.y) / KTBaseMapData::kWorld};
}

Kind kindOf(const KTBaseMapData::Place& place) {
    return place.isCapital ? Kind::Capital : place.importance >= 9 ? Kind::City : Kind::Town;
}

QFont fontOf(Kind kind, unsigned importance) {
    switch (kind) {
    case Kind::Capital:
        return KTMapFont(13, true);
    case Kind::City:
        return KTMapFont(importance >= 12 ? 13 : 12);
    default:
        return KTMapFont(11);
    }
}

/// What a label takes of the map: its text with some air and, within, the point that it belongs to.
QRectF room(const QRectF& box, double air) {
    return box.adjusted(-air, -air / 2, air, air / 2).united(QRectF(-kDot, -kDot, 2 * kDot, 2 * kDot));
}

/// Places a text beside its dot where there is room, on the right before the other sides.
bool placeBesideDot(Label& label, KTLabelPlacement& placement, double air) {
    const QFontMetricsF metrics(label.font);
    const double width = metrics.horizontalAdvance(label.text), height = metrics.height();
    label.baseLine = metrics.ascent();
    for (const QPointF& corner : {QPointF(kGap, -height / 2), QPointF(-kGap - width, -height / 2),
                                  QPointF(-width / 2, -height - kGap / 2), QPointF(-width / 2, kGap / 2)}) {
        label.box = QRectF(corner, QSizeF(width, height));
        if (placement.take(label.anchor, room(label.box, air)))
            return true;
    }
    return false;
}

} // namespace

std::shared_ptr<const KTBaseMapLabels::Step> KTBaseMapLabels::step(int zoom) {
    const std::lock_guard guard(mutex);
    std::shared_ptr<const Step>& known = steps[zoom];
    if (!known) {
        const double worldSize = KTMapViewState::kTileSize * std::exp2(zoom);
        auto step = std::make_shared<Step>(worldSize);
        addCountries(*step, source, worldSize);
        addPlaces(*step, source, zoom);
        std::ranges::reverse(step->labels);
        known = std::move(step);
    }
    return known;
}

/// Countries as large as their land; those too small for their name get none, and none is shown where its
/// land fills the view.
void KTBaseMapLabels::addCountries(Step& step, const KTBaseMapData& data, double worldSize) {
    if (worldSize > KTMapViewState::kTileSize * std::exp2(kLastCountryZoom))
        return;
    for (const KTBaseMapData::Country& country : data.countries()) {
        const double roomForName = country.room / KTBaseMapData::kWorld * worldSize;
        if (roomForName < 3 * kSmallestCountryText || roomForName > 3000)
            continue;
        Label label{.kind = Kind::Country,
                    .text = QString::fromStdString(KTCountryName(country.code)),
                    .font = {},
                    .anchor = worldPoint(country.point),
                    .box = {},
                    .baseLine = 0};
        label.font = KTMapFont(std::clamp(roomForName / 14, kSmallestCountryText, kLargestCountryText), true);
        label.font.setLetterSpacing(QFont::PercentageSpacing, 108);
        const QFontMetricsF metrics(label.font);
        const QSizeF size(metrics.horizontalAdvance(label.text), metrics.height());
        if (label.text.isEmpty() || size.width() > roomForName * 1.5)
            continue;
        label.box = QRectF(QPointF(-size.width() / 2, -size.height() / 2), size);
        label.baseLine = metrics.ascent();
        if (step.taken.take(label.anchor, room(label.box, 4)))
            step.labels.push_back(std::move(label));
    }
}

void KTBaseMapLabels::addPlaces(Step& step, const KTBaseMapData& data, int zoom) {
    const double air = zoom < 5 ? 8 : 5;
    for (const KTBaseMapData::Place& place : data.places()) {
        if (place.zoom > zoom + kEarly)
            continue;
        const Kind kind = kindOf(place);
        Label label{.kind = kind,
                    .text = QString::fromStdString(place.name),
                    .font = fontOf(kind, place.importance),
                    .anchor = worldPoint(place.point),
                    .box = {},
                    .baseLine = 0};
        if (placeBesideDot(label, step.taken, air))
            step.labels.push_back(std::move(label));
    }
}

void KTBaseMapLabels::draw(QPainter& painter, const KTMapViewState& state, const Label& label,
                           const KTMapPalette& palette) {
    const double reach = std::max(label.box.width(), label.box.height()) + kGap;
    const auto turns = state.visibleTurns(label.anchor.x, label.anchor.x, reach);
    for (int turn = turns.first; turn <= turns.last; ++turn) {
        const KTViewPoint place = state.viewPoint(KTWorldPoint{label.anchor.x + turn, label.anchor.y});
        if (place.y < -reach || place.y > state.height() + reach)
            continue;
        const QPointF anchor(std::round(place.x), std::round(place.y));
        if (label.kind != Kind::Country) {
            const double radius = radiusOf(label.kind);
            painter.setPen(Qt::NoPen);
            painter.setBrush(palette.textHalo);
            painter.drawEllipse(anchor, radius + 1, radius + 1);
            painter.setBrush(palette.placeDot);
            painter.drawEllipse(anchor, radius, radius);
        }
        painter.setFont(label.font);
        const QColor& colour = label.kind == Kind::Country                               ? palette.countryText
                               : label.kind == Kind::Capital || label.kind == Kind::City ? palette.cityText
                                                                                         : palette.townText;
        KTDrawMapText(painter, anchor + label.box.topLeft() + QPointF(0, label.baseLine), label.text, colour,
                      palette.textHalo);
    }
}
