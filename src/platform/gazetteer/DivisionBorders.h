#pragma once
#include "platform/gazetteer/GazetteerData.h"

/// The borders between the first-level divisions (states, provinces) of countries, drawn to about a
/// kilometre. Immutable: every thread may ask.
class DivisionBorders {
public:
    explicit DivisionBorders(const GazetteerData& data);

    /// Whether one is crossed on the straight way (in degrees, the short way round) from @p start to @p end.
    bool lieBetween(GridPosition start, GridPosition end) const;

private:
    struct Segment {
        GridPosition start, end;
    };
    std::span<const Segment> segmentsInCell(std::size_t cell) const;

    std::vector<std::uint32_t> endsOfCells;
    std::vector<Segment> segments; ///< cell by cell; those in several cells are repeated
};
