#include "platform/gazetteer/CountryPolygons.h"

#include <algorithm>

namespace {

/// How many edges of the ring cross the way from @p position due east, odd or even.
bool isCrossedOddly(GazetteerData::Line ring, GridPosition position) {
    bool isOdd = false;
    GridPosition start = ring.back();
    for (const GridPosition end : ring) {
        if ((start.latitude > position.latitude) != (end.latitude > position.latitude)) {
            const double part = double(position.latitude - start.latitude) / (end.latitude - start.latitude);
            isOdd ^= position.longitude < start.longitude + part * (end.longitude - start.longitude);
        }
        start = end;
    }
    return isOdd;
}

} // namespace

CountryPolygons::CountryPolygons(const GazetteerData& source) : data(source) {
    for (std::size_t country = 0; country < data.numberOfCountries(); ++country)
        for (const auto corners : data.ringsOfCountry(country)) {
            if (corners.empty())
                continue;
            const auto [south, north] = std::ranges::minmax(corners, {}, &GridPosition::latitude);
            const auto east = std::ranges::max(corners, {}, &GridPosition::longitude);
            rings.push_back({corners, country, south.latitude, north.latitude, east.longitude});
        }
}

std::optional<std::size_t> CountryPolygons::countryAt(GridPosition position) const {
    if (!data.isNearLand(position))
        return std::nullopt;
    for (auto ring = rings.begin(); ring != rings.end();) {
        const std::size_t country = ring->country;
        bool isWithin = false;
        for (; ring != rings.end() && ring->country == country; ++ring)
            if (position.latitude >= ring->south && position.latitude <= ring->north &&
                position.longitude <= ring->east)
                isWithin ^= isCrossedOddly(ring->corners, position);
        if (isWithin)
            return country;
    }
    return std::nullopt;
}
