#pragma once
#include "platform/gazetteer/GazetteerData.h"

#include <optional>

/// Finds the country of a position. Immutable: every thread may ask.
class CountryPolygons {
public:
    /// @p source must outlive this.
    explicit CountryPolygons(const GazetteerData& source);

    /// The country in whose polygons @p position lies; nothing in Antarctica and on the open sea, which the
    /// polygons would in part give to the nearest coast.
    std::optional<std::size_t> countryAt(GridPosition position) const;

private:
    struct Ring {
        GazetteerData::Line corners;
        std::size_t country;
        std::int32_t south, north, east;
    };

    const GazetteerData& data;
    std::vector<Ring> rings; ///< those of a country are consecutive
};
