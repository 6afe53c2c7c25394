#include "platform/gazetteer/DivisionBorders.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr std::int32_t kCell = GridPosition::kDegree / 2;
constexpr std::int32_t kColumns = GridPosition::kTurn / kCell;
constexpr std::int32_t kRows = kColumns / 2 + 1; // the north pole is in a row of its own

std::int32_t rowOf(std::int32_t latitude) {
    return (latitude + GridPosition::kTurn / 4) / kCell;
}

/// Counted on past either end of the grid.
std::int32_t columnOf(double longitude) {
    return static_cast<std::int32_t>(std::floor((longitude + GridPosition::kTurn / 2) / kCell));
}

/// Calls @p visit for the cells that the straight way from @p start passes, with the number of whole turns by
/// which a cell lies beside its place in the grid, until it returns true; returns whether it did.
template<typename Visit>
bool anyCellAlong(GridPosition start, std::int32_t north, std::int32_t east, const Visit& visit) {
    const std::int32_t lastRow = rowOf(start.latitude + north);
    const std::int32_t step = north < 0 ? -1 : 1;
    double from = 0;
    for (std::int32_t row = rowOf(start.latitude);; row += step) {
        // The part of the way at which it leaves the row.
        const double edge = (row + (north < 0 ? 0 : 1)) * double(kCell) - GridPosition::kTurn / 4;
        const double to = row == lastRow ? 1 : std::clamp((edge - start.latitude) / north, from, 1.0);
        const auto [west, last] =
            std::minmax({columnOf(start.longitude + from * east), columnOf(start.longitude + to * east)});
        for (std::int32_t column = west; column <= last; ++column) {
            const std::int32_t turns = column < 0 ? -1 : column >= kColumns ? 1 : 0;
            if (visit(std::size_t(row * kColumns + column - turns * kColumns), turns))
                return true;
        }
        if (row == lastRow)
            return false;
        from = to;
    }
}

struct Vector {
    std::int64_t north, east;
};

Vector operator-(Vector left, Vector right) {
    return {left.north - right.north, left.east - right.east};
}

/// Whether the two points lie on different sides of the straight line along @p direction.
bool areParted(Vector direction, Vector one, Vector other) {
    const auto isLeft = [&](Vector point) {
        return direction.east * point.north > direction.north * point.east;
    };
    return isLeft(one) != isLeft(other);
}

} // namespace

DivisionBorders::DivisionBorders(const GazetteerData& data) : endsOfCells(std::size_t(kRows) * kColumns) {
    const auto borders = data.divisionBorders();
    const auto forEachSegmentAndCell = [&](const auto& work) {
        for (const auto border : borders)
            for (std::size_t i = 1; i < border.size(); ++i) {
                const GridPosition start = border[i - 1], end = border[i];
                anyCellAlong(start, end.latitude - start.latitude, start.eastwardTo(end),
                             [&](std::size_t cell, int) {
                                 work(Segment{start, end}, cell);
                                 return false;
                             });
            }
    };
    forEachSegmentAndCell([this](const Segment&, std::size_t cell) { ++endsOfCells[cell]; });
    std::inclusive_scan(endsOfCells.begin(), endsOfCells.end(), endsOfCells.begin());
    segments.resize(endsOfCells.back());
    std::vector<std::uint32_t> next(endsOfCells.size());
    std::copy(endsOfCells.begin(), endsOfCells.end() - 1, next.begin() + 1);
    forEachSegmentAndCell(
        [&](const Segment& segment, std::size_t cell) { segments[next[cell]++] = segment; });
}

std::span<const DivisionBorders::Segment> DivisionBorders::segmentsInCell(std::size_t cell) const {
    const std::uint32_t start = cell == 0 ? 0 : endsOfCells[cell - 1];
    return std::span(segments).subspan(start, endsOfCells[cell] - start);
}

bool DivisionBorders::lieBetween(GridPosition start, GridPosition end) const {
    const Vector way{end.latitude - start.latitude, start.eastwardTo(end)};
    const auto isCrossedInCell = [&](std::size_t cell, std::int32_t turns) {
        const Vector origin{start.latitude, start.longitude - std::int64_t(turns) * GridPosition::kTurn};
        return std::ranges::any_of(segmentsInCell(cell), [&](const Segment& segment) {
            const Vector one = Vector{segment.start.latitude, segment.start.longitude} - origin;
            const Vector other = Vector{segment.end.latitude, segment.end.longitude} - origin;
            return areParted(way, one, other) && areParted(other - one, Vector{} - one, way - one);
        });
    };
    return anyCellAlong(start, static_cast<std::int32_t>(way.north), static_cast<std::int32_t>(way.east),
                        isCrossedInCell);
}
