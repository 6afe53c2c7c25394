#include "platform/gazetteer/PlaceFinder.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kFirstReach = 4000;
// The borders are drawn to a kilometre or so: what is nearer counts as being on the same side.
constexpr double kSurelySameSide = 1500;
// Where so many places lie beyond borders, the answer is not worth the time.
constexpr int kMostPartedPlaces = 50;

} // namespace

PlaceFinder::PlaceFinder(const GazetteerData& source) : data(source), borders(source) {}

bool PlaceFinder::areParted(GridPosition position, const Found& found) const {
    return found.distance > kSurelySameSide && borders.lieBetween(position, found.place->position);
}

/// Calls @p visit for the places of a country in @p circle, with their distance, until it returns false.
template<typename Visit>
void PlaceFinder::visitPlacesIn(const EarthCircle& circle, std::size_t country, const Visit& visit) const {
    const auto places = data.placesOfCountry(country);
    const auto latitudeOf = [](const GazetteerData::Place& place) { return place.position.latitude; };
    const std::int32_t south = circle.centre.latitude - circle.reachInLatitude;
    const std::int32_t north = circle.centre.latitude + circle.reachInLatitude;
    for (auto place = std::ranges::lower_bound(places, south, {}, latitudeOf);
         place != places.end() && place->position.latitude <= north; ++place) {
        if (std::abs(circle.centre.eastwardTo(place->position)) > circle.reachInLongitude)
            continue;
        const double distance = circle.centre.distanceTo(place->position);
        if (distance <= circle.radius && !visit(Found{&*place, distance}))
            return;
    }
}

/// Those in @p circle that are farther than @p inner metres, the nearest first.
std::vector<PlaceFinder::Found> PlaceFinder::placesInRing(const EarthCircle& circle, double inner,
                                                          std::size_t country) const {
    std::vector<Found> ring;
    visitPlacesIn(circle, country, [&](const Found& found) {
        if (found.distance > inner)
            ring.push_back(found);
        return true;
    });
    std::ranges::sort(ring, {}, &Found::distance);
    return ring;
}

std::optional<PlaceFinder::Found> PlaceFinder::nearest(std::size_t country, GridPosition position,
                                                       double reach) const {
    int parted = 0;
    for (double inner = -1, outer = std::min(kFirstReach, reach);; outer = std::min(2 * outer, reach)) {
        for (const Found& found : placesInRing(EarthCircle(position, outer), inner, country)) {
            if (!areParted(position, found))
                return found;
            if (++parted == kMostPartedPlaces)
                return std::nullopt;
        }
        if (outer == reach)
            return std::nullopt;
        inner = outer;
    }
}

bool PlaceFinder::isDivisionCertain(std::size_t country, GridPosition position, std::uint32_t division,
                                    double reach) const {
    int parted = 0;
    bool isCertain = true;
    visitPlacesIn(EarthCircle(position, reach), country, [&](const Found& found) {
        if (found.place->division != division)
            isCertain = areParted(position, found) && ++parted < kMostPartedPlaces;
        return isCertain;
    });
    return isCertain;
}
