#include "platform/cartography/drawing/KTGazetteerLabels.h"

#include "platform/cartography/KTMapViewState.h"
#include "platform/cartography/drawing/KTMapText.h"
#include "platform/common/KTLog.h"
#include "platform/desktop/KTResources.h"
#include "platform/gazetteer/GazetteerData.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace {

constexpr double kTextSize = 10.5, kTextHeight = 14, kGap = 4; // logical pixels
constexpr double kSameName = 0.001; // of the world's width: within 40 km a place of the same name is the same
constexpr double kSamePlace = 4e-5; // 1.6 km

/// How much air a name wants around it, in logical pixels: the smaller the scale, the fewer are shown.
double airAt(int zoom) {
    return zoom <= 9 ? 44 : zoom == 10 ? 30 : zoom == 11 ? 18 : 8;
}

/// About as wide as the text, or a little wider. Measuring thousands of texts would take too long.
double widthOf(std::string_view name) {
    double width = 0;
    for (const char byte : name) {
        const auto unit = static_cast<unsigned char>(byte);
        width += unit < 0x80   ? 0.64
                 : unit < 0xc0 ? 0
                 : unit < 0xe0 ? 0.7
                               : 1.05; // a letter, nothing, wide letters
    }
    return width * kTextSize;
}

std::uint32_t orderOf(std::string_view name, const GazetteerData::Place& place) {
    std::uint32_t hash = 2166136261u; // FNV-1a
    const auto add = [&hash](std::uint32_t value) { hash = (hash ^ value) * 16777619u; };
    for (const char letter : name)
        add(static_cast<unsigned char>(letter));
    add(static_cast<std::uint32_t>(place.position.latitude));
    add(static_cast<std::uint32_t>(place.position.longitude));
    return hash;
}

} // namespace

KTGazetteerLabels::KTGazetteerLabels(const KTBaseMapData& data) {
    const auto file = KTResourcePath("data/gazetteer/places.dat");
    try {
        gazetteer = std::make_unique<const GazetteerData>(file);
        addPlaces(data);
    } catch (const std::exception& error) {
        KTLog("The places of the gazetteer cannot be read from " + file.string() + ": " + error.what());
    }
}

KTGazetteerLabels::~KTGazetteerLabels() = default;

void KTGazetteerLabels::addPlaces(const KTBaseMapData& data) {
    struct Known {
        KTWorldPoint point;
        std::string_view name;
    };
    std::unordered_map<std::uint32_t, std::vector<Known>> known;
    const auto columnOf = [](double part) {
        return std::min(static_cast<int>(part * kColumns), kColumns - 1);
    };
    for (const KTBaseMapData::Place& place : data.places()) {
        const KTWorldPoint point{place.point.x / double(KTBaseMapData::kWorld),
                                 place.point.y / double(KTBaseMapData::kWorld)};
        known[cellAt(columnOf(point.x), columnOf(point.y))].push_back({point, place.name});
    }
    const auto isKnown = [&](int column, int row, KTWorldPoint point, std::string_view name) {
        for (int y = row - 1; y <= row + 1; ++y)
            for (int x = column - 1; x <= column + 1; ++x)
                if (const auto found = known.find(cellAt(x, y)); found != known.end())
                    for (const Known& other : found->second) {
                        const double away = std::hypot(other.point.x - point.x, other.point.y - point.y);
                        if (away < kSamePlace || (away < kSameName && other.name == name))
                            return true;
                    }
        return false;
    };
    for (std::size_t country = 0; country < gazetteer->numberOfCountries(); ++country)
        for (const GazetteerData::Place& place : gazetteer->placesOfCountry(country)) {
            const std::string_view name = gazetteer->nameAt(place.name);
            constexpr double kDegree = GridPosition::kDegree;
            const KTWorldPoint point =
                KTProject({place.position.longitude / kDegree, place.position.latitude / kDegree});
            const int column = columnOf(point.x), row = columnOf(point.y);
            if (!isKnown(column, row, point, name))
                places.push_back({cellAt(column, row), orderOf(name, place), point, name});
        }
    std::ranges::sort(places, {}, &Place::cell);
}

std::vector<const KTGazetteerLabels::Place*> KTGazetteerLabels::placesIn(const KTWorldRect& rect) const {
    std::vector<const Place*> found;
    const auto first = static_cast<int>(std::floor(rect.left * kColumns));
    const auto last = std::min(static_cast<int>(std::floor(rect.right * kColumns)), first + kColumns - 1);
    const int top = std::max(0, static_cast<int>(std::floor(rect.top * kColumns)));
    const int bottom = std::min(kColumns - 1, static_cast<int>(std::floor(rect.bottom * kColumns)));
    for (int row = top; row <= bottom; ++row)
        for (int column = first; column <= last; ++column) {
            const auto cell = std::ranges::equal_range(
                places, cellAt((column % kColumns + kColumns) % kColumns, row), {}, &Place::cell);
            for (const Place& place : cell)
                found.push_back(&place);
        }
    return found;
}

std::vector<KTBaseMapLabels::Label> KTGazetteerLabels::labels(const KTMapViewState& state,
                                                              const KTLabelPlacement& taken) const {
    const int zoom = static_cast<int>(state.zoom());
    const double air = airAt(zoom), worldSize = KTMapViewState::kTileSize * std::exp2(zoom);
    constexpr double kReach = 400; // logical pixels, in which names lie that a visible one could meet
    std::vector<const Place*> found = placesIn(state.widenedBy(kReach).visibleRect());
    std::ranges::sort(found, {}, &Place::order);
    KTLabelPlacement wanted(worldSize);
    std::vector<KTBaseMapLabels::Label> shown;
    const QFont font = KTMapFont(kTextSize);
    const double ascent = QFontMetricsF(font).ascent();
    for (const Place* place : found) {
        const QRectF text(kGap, -kTextHeight / 2, widthOf(place->name), kTextHeight);
        const QRectF room = text.adjusted(-kGap * 2, 0, 4, 0);
        const QRectF roomWithAir = room.adjusted(-air / 2, -air / 4, air / 2, air / 4);
        const bool isFirst = wanted.isFree(place->point, roomWithAir);
        // Whether or not it is shown, which may depend on what is far away.
        wanted.occupy(place->point, roomWithAir);
        if (isFirst && taken.isFree(place->point, room))
            shown.push_back({.kind = KTBaseMapLabels::Kind::Village,
                             .text = QString::fromUtf8(place->name.data(), qsizetype(place->name.size())),
                             .font = font,
                             .anchor = place->point,
                             .box = text,
                             .baseLine = ascent});
    }
    return shown;
}
