#include "platform/cartography/KTMapBounds.h"

#include "platform/cartography/KTMapProjection.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

/// Which longitudes occur, in cells of half a degree, so that the widest gap between any two is found exactly
/// and at once, unless all gaps are narrower than that.
class OccupiedLongitudes {
public:
    void add(double longitude) {
        const auto index = static_cast<std::size_t>((longitude + 180) / 360 * kCells);
        Cell& cell = cells[std::min(index, kCells - 1)];
        cell.west = std::min(cell.west, longitude);
        cell.east = std::max(cell.east, longitude);
    }

    /// The west and east end of what is left of the circle without its widest gap.
    std::pair<double, double> extent() const {
        std::pair<double, double> best{0, 720};
        const Cell* previous = nullptr;
        const Cell* first = nullptr;
        const auto consider = [&](double west, double east) {
            if (east - west < best.second - best.first)
                best = {west, east};
        };
        for (const Cell& cell : cells) {
            if (cell.west > cell.east)
                continue;
            if (previous != nullptr)
                consider(cell.west, previous->east + 360);
            else
                first = &cell;
            previous = &cell;
        }
        consider(first->west, previous->east);
        return best;
    }

private:
    static constexpr std::size_t kCells = 720;
    struct Cell {
        double west = 360, east = -360;
    };
    std::array<Cell, kCells> cells;
};

} // namespace

std::optional<KTMapBounds> KTMapBounds::ofPoints(std::span<const KTMapPoint> points) {
    OccupiedLongitudes longitudes;
    double south = 91, north = -91;
    for (const KTMapPoint& point : points) {
        if (!std::isfinite(point.x) || !(std::abs(point.y) <= 90))
            continue;
        longitudes.add(KTNormalizedLongitude(point.x));
        south = std::min(south, point.y);
        north = std::max(north, point.y);
    }
    if (south > north)
        return std::nullopt;
    const auto [west, east] = longitudes.extent();
    return KTMapBounds{west, south, east, north};
}
