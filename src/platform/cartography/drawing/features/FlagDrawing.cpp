#include "platform/cartography/drawing/features/FlagDrawing.h"

#include "platform/cartography/drawing/features/FeatureSymbols.h"

#include <QPainter>
#include <cmath>
#include <set>

namespace {

constexpr double kMargin = FeatureSymbols::kFlagHeight + 4;
constexpr double kOneFlagEach = 4; // logical pixels
constexpr double kFootRadius = 5, kClothRadius = 9, kClothHeight = FeatureSymbols::kFlagHeight - 6;

} // namespace

std::vector<FlagDrawing::Flag> FlagDrawing::flagsIn(const KTMapViewState& state,
                                                    const FeatureSnapshot& snapshot) {
    std::vector<Flag> flags;
    std::set<std::tuple<unsigned, std::int64_t, std::int64_t>> taken;
    for (std::uint32_t number = 0; number < snapshot.features().size(); ++number) {
        const MapFeature& feature = snapshot.features()[number];
        if (!feature.symbols.has<KTLinkablePointSmartSymbolizer>())
            continue;
        const KTWorldPoint place = snapshot.places().points()[number];
        const auto [first, last] = state.visibleTurns(place.x, place.x, kMargin);
        for (int turn = first; turn <= last; ++turn) {
            const KTViewPoint foot = state.viewPoint(KTWorldPoint{place.x + turn, place.y});
            const bool isVisible = foot.y > -kMargin && foot.y < state.height() + kMargin;
            if (isVisible &&
                taken
                    .emplace(feature.values.pointType, std::int64_t(std::floor(foot.x / kOneFlagEach)),
                             std::int64_t(std::floor(foot.y / kOneFlagEach)))
                    .second)
                flags.push_back({number, foot});
        }
    }
    std::ranges::stable_sort(flags, {}, [](const Flag& flag) { return flag.foot.y; });
    return flags;
}

void FlagDrawing::draw(QPainter& painter, const KTMapViewState& state, const KTMapLook& look,
                       const std::atomic<bool>& isCancelled) const {
    FeatureSymbols symbols(look.isDark, state.devicePixelRatio());
    for (const Flag& flag : flagsIn(state, *snapshot)) {
        if (isCancelled)
            return;
        symbols.drawFlag(painter, {flag.foot.x, flag.foot.y},
                         snapshot->features()[flag.number].values.pointType, rotation);
    }
}

std::optional<FlagDrawing::Flag> FlagDrawing::flagAt(KTViewPoint point, const FeatureSnapshot& snapshot,
                                                     double rotation, const KTMapViewState& state) {
    const std::vector<Flag> flags = flagsIn(state, snapshot);
    for (auto flag = flags.rbegin(); flag != flags.rend(); ++flag) {
        const unsigned type = snapshot.features()[flag->number].values.pointType;
        const double side = type == 1 ? -6 : type == 2 ? 6 : 0; // the cloth's middle beside the pole
        const double x = side * std::cos(rotation) + kClothHeight * std::sin(rotation);
        const double y = side * std::sin(rotation) - kClothHeight * std::cos(rotation);
        const double dx = point.x - flag->foot.x, dy = point.y - flag->foot.y;
        if (std::hypot(dx, dy) <= kFootRadius || std::hypot(dx - x, dy - y) <= kClothRadius)
            return *flag;
    }
    return std::nullopt;
}
