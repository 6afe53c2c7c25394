#pragma once
#include "platform/gazetteer/DivisionBorders.h"
#include "platform/gazetteer/EarthCircle.h"

#include <optional>

/// Finds the places of a country near a position. A place is parted from the position when a division border
/// crosses the straight way between them, unless it is within 1.5 km. Immutable: every thread may ask.
class PlaceFinder {
public:
    struct Found {
        const GazetteerData::Place* place;
        double distance; ///< metres
    };

    /// @p source must outlive this.
    explicit PlaceFinder(const GazetteerData& source);

    /// The nearest place within @p reach metres that is not parted from @p position; nothing when the 50
    /// nearest ones are.
    std::optional<Found> nearest(std::size_t country, GridPosition position, double reach) const;

    /// Whether all places within @p reach metres that are not parted from @p position are in the division
    /// whose name starts at @p division. No, when 50 of other divisions have been looked at in vain.
    bool isDivisionCertain(std::size_t country, GridPosition position, std::uint32_t division,
                           double reach) const;

private:
    template<typename Visit>
    void visitPlacesIn(const EarthCircle& circle, std::size_t country, const Visit& visit) const;
    std::vector<Found> placesInRing(const EarthCircle& circle, double inner, std::size_t country) const;
    bool areParted(GridPosition position, const Found& found) const;

    const GazetteerData& data;
    DivisionBorders borders;
};
