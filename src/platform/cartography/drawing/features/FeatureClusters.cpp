#include "platform/cartography/drawing/features/FeatureClusters.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr double kSamePlace = 1e-10; // widths of the world; 4 mm

/// The way from one x to another, the short way round.
double turned(double x) {
    return x - std::round(x);
}

double squaredDistance(KTWorldPoint a, KTWorldPoint b) {
    const double x = turned(a.x - b.x), y = a.y - b.y;
    return x * x + y * y;
}

/// Places sorted into square cells as wide as the radius, so that whatever is near enough to one is in its
/// cell or the eight around.
class Grid {
public:
    Grid(const std::vector<KTWorldPoint>& thePlaces, double radius)
        : places(thePlaces), columns(std::max<std::int64_t>(1, std::int64_t(1 / radius))) {
        order.resize(places.size());
        keys.resize(places.size());
        std::iota(order.begin(), order.end(), 0u);
        std::vector<std::int64_t> keyOf(places.size());
        for (std::size_t i = 0; i < places.size(); ++i)
            keyOf[i] = key(row(places[i]), column(places[i]));
        // Where two are at one place it does not matter which is first.
        std::ranges::sort(order, [&](std::uint32_t a, std::uint32_t b) {
            return keyOf[a] != keyOf[b]         ? keyOf[a] < keyOf[b]
                   : places[a].x != places[b].x ? places[a].x < places[b].x
                   : places[a].y != places[b].y ? places[a].y < places[b].y
                                                : a < b;
        });
        for (std::size_t i = 0; i < order.size(); ++i)
            keys[i] = keyOf[order[i]];
    }

    /// Calls @p visit with every place in the cells around @p place.
    void forEachNear(KTWorldPoint place, const auto& visit) const {
        const std::int64_t middle = column(place);
        for (std::int64_t y = row(place) - 1; y <= row(place) + 1; ++y) {
            if (columns <= 3) {
                visitCells(key(y, 0), key(y, columns - 1), visit);
            } else if (middle == 0) {
                visitCells(key(y, 0), key(y, 1), visit);
                visitCells(key(y, columns - 1), key(y, columns - 1), visit);
            } else if (middle == columns - 1) {
                visitCells(key(y, middle - 1), key(y, middle), visit);
                visitCells(key(y, 0), key(y, 0), visit);
            } else {
                visitCells(key(y, middle - 1), key(y, middle + 1), visit);
            }
        }
    }

    struct Cell {
        std::size_t begin, end; ///< in the order
    };
    std::vector<Cell> cells() const {
        std::vector<Cell> found;
        for (std::size_t i = 0; i < keys.size();) {
            const std::size_t end = std::size_t(
                std::upper_bound(keys.begin() + std::ptrdiff_t(i), keys.end(), keys[i]) - keys.begin());
            found.push_back({i, end});
            i = end;
        }
        return found;
    }
    std::uint32_t placeAt(std::size_t i) const { return order[i]; }

private:
    std::int64_t column(KTWorldPoint place) const {
        return std::min(std::int64_t(place.x * double(columns)), columns - 1);
    }
    std::int64_t row(KTWorldPoint place) const { return std::int64_t(place.y * double(columns)); }
    std::int64_t key(std::int64_t y, std::int64_t x) const { return (y + 1) * columns + x; }
    void visitCells(std::int64_t first, std::int64_t last, const auto& visit) const {
        auto at = std::ranges::lower_bound(keys, first);
        for (std::size_t i = std::size_t(at - keys.begin()); i < keys.size() && keys[i] <= last; ++i)
            visit(order[i]);
    }

    const std::vector<KTWorldPoint>& places;
    const std::int64_t columns;
    std::vector<std::uint32_t> order;
    std::vector<std::int64_t> keys; // in the order, ascending
};

/// The places in the order in which they may become a cluster's own: the fullest cells first, and of each the
/// place nearest to the middle of its places.
std::vector<std::uint32_t> candidates(const Grid& grid, const std::vector<KTWorldPoint>& places) {
    std::vector<Grid::Cell> cells = grid.cells();
    std::ranges::stable_sort(cells, std::greater(),
                             [](const Grid::Cell& cell) { return cell.end - cell.begin; });
    std::vector<std::uint32_t> order;
    order.reserve(places.size());
    for (const Grid::Cell& cell : cells) {
        KTWorldPoint middle;
        const double count = double(cell.end - cell.begin);
        for (std::size_t i = cell.begin; i < cell.end; ++i) {
            middle.x += places[grid.placeAt(i)].x / count;
            middle.y += places[grid.placeAt(i)].y / count;
        }
        const std::size_t begin = order.size();
        for (std::size_t i = cell.begin; i < cell.end; ++i)
            order.push_back(grid.placeAt(i));
        std::ranges::stable_sort(order.begin() + std::ptrdiff_t(begin), order.end(), {},
                                 [&](std::uint32_t index) { return squaredDistance(places[index], middle); });
    }
    return order;
}

} // namespace

FeatureClusters::FeatureClusters(const std::vector<KTWorldPoint>& places, double radius) {
    const Grid grid(places, radius);
    constexpr std::uint32_t kNone = ~0u;
    std::vector<std::uint32_t> clusterOf(places.size(), kNone);
    for (const std::uint32_t candidate : candidates(grid, places)) {
        if (clusterOf[candidate] != kNone)
            continue;
        const KTWorldPoint place = places[candidate];
        const std::uint32_t number = std::uint32_t(list.size());
        list.push_back({place, 0, 0, true});
        grid.forEachNear(place, [&](std::uint32_t other) {
            const double squared = squaredDistance(places[other], place);
            if (clusterOf[other] != kNone || squared > radius * radius)
                return;
            clusterOf[other] = number;
            ++list.back().count;
            list.back().isStack &= squared <= kSamePlace * kSamePlace;
        });
        list.back().isStack &= list.back().count > 1;
    }
    std::uint32_t first = 0;
    for (Cluster& cluster : list)
        cluster.first = std::exchange(first, first + cluster.count);
    members.resize(places.size());
    std::vector<std::uint32_t> filled(list.size(), 0);
    for (std::uint32_t i = 0; i < places.size(); ++i)
        members[list[clusterOf[i]].first + filled[clusterOf[i]]++] = i;
    std::ranges::stable_sort(list, {}, [](const Cluster& cluster) { return cluster.place.y; });
}
