#include "platform/cartography/drawing/features/FeaturePlaces.h"

#include "platform/cartography/KTMapViewState.h"

#include <cmath>

namespace {

constexpr double kStepsOfZoom = 2;
constexpr double kClusterRadius = 34; // logical pixels, where a step of the zoom begins; the most is 48
constexpr std::size_t kKeptSteps = 4;

} // namespace

std::shared_ptr<const FeatureClusters> FeaturePlaces::clustersForZoom(double zoom) const {
    const int step = int(std::floor(std::clamp(zoom, 0.0, KTMapViewState::kMaximumZoom) * kStepsOfZoom));
    std::lock_guard guard(mutex);
    auto found = byStep.find(step);
    if (found == byStep.end()) {
        if (byStep.size() >= kKeptSteps) // far away ones first
            byStep.erase(std::ranges::max_element(
                byStep, {}, [step](const auto& entry) { return std::abs(entry.first - step); }));
        const double worldSize = KTMapViewState::kTileSize * std::exp2(step / kStepsOfZoom);
        found =
            byStep.emplace(step, std::make_shared<FeatureClusters>(places, kClusterRadius / worldSize)).first;
    }
    return found->second;
}

std::vector<std::uint32_t> FeaturePlaces::indexesIn(const KTWorldRect& rect) const {
    const double width = rect.width();
    std::vector<std::uint32_t> indexes;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const double fromLeft = places[i].x - rect.left;
        if (places[i].y >= rect.top && places[i].y <= rect.bottom && fromLeft - std::floor(fromLeft) <= width)
            indexes.push_back(std::uint32_t(i));
    }
    return indexes;
}
