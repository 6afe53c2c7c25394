#include "platform/cartography/drawing/features/PhotoMarks.h"

#include <cmath>

namespace {

/// Where a cluster has more selected features than this, its sign tells their number and no more.
constexpr std::size_t kMostDrawnOfCluster = 8;
constexpr double kMargin = 50; // logical pixels: a sign and the features that it stands for

} // namespace

PhotoMarks::PhotoMarks(const FeatureSnapshot& snapshot, const KTMapViewState& viewState)
    : clusters(snapshot.places().clustersForZoom(viewState.zoom())) {
    const KTWorldRect visible = viewState.widenedBy(kMargin).visibleRect();
    for (const FeatureClusters::Cluster& cluster : clusters->clusters()) {
        if (cluster.place.y < visible.top || cluster.place.y > visible.bottom)
            continue;
        const auto [first, last] = viewState.visibleTurns(cluster.place.x, cluster.place.x, kMargin);
        for (int turn = first; turn <= last; ++turn)
            addGroup(snapshot, viewState, cluster, turn);
    }
}

void PhotoMarks::addGroup(const FeatureSnapshot& snapshot, const KTMapViewState& state,
                          const FeatureClusters::Cluster& cluster, int turn) {
    Group group{.centre = state.viewPoint(KTWorldPoint{cluster.place.x + turn, cluster.place.y}),
                .members = clusters->membersOf(cluster),
                .isStack = cluster.isStack};
    if (snapshot.selectedCount() > 0)
        group.selected = std::size_t(std::ranges::count_if(
            group.members, [&](std::uint32_t number) { return snapshot.features()[number].isSelected; }));
    if (group.selected > 0)
        addSelectedOf(group, snapshot, state, turn);
    if (!group.isSingle() || group.selected == 0)
        list.push_back(group);
}

/// Those that would hide the group's sign are left to that.
void PhotoMarks::addSelectedOf(const Group& group, const FeatureSnapshot& snapshot,
                               const KTMapViewState& state, int turn) {
    if (group.selected > kMostDrawnOfCluster)
        return;
    const double nearest = group.isSingle() ? 0 : group.radius() + FeatureSymbols::kBallRadius;
    for (const std::uint32_t number : group.members) {
        if (!snapshot.features()[number].isSelected)
            continue;
        KTWorldPoint place = snapshot.places().points()[number];
        place.x += turn;
        KTViewPoint centre = state.viewPoint(place);
        // A member on the other side of the date line belongs to the next repetition.
        centre.x -= std::round((centre.x - group.centre.x) / state.worldSize()) * state.worldSize();
        if (std::hypot(centre.x - group.centre.x, centre.y - group.centre.y) >= nearest)
            singled.push_back({centre, number});
    }
}
