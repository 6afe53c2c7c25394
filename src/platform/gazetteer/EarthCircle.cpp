#include "platform/gazetteer/EarthCircle.h"

#include <cmath>
#include <numbers>

namespace {

constexpr double kUnitsPerRadian = 180 / std::numbers::pi * GridPosition::kDegree;

/// Rounded up, so that nothing of the circle is left out.
std::int32_t unitsOf(double radians) {
    return static_cast<std::int32_t>(std::ceil(radians * kUnitsPerRadian)) + 1;
}

} // namespace

EarthCircle::EarthCircle(GridPosition middle, double metres) : centre(middle), radius(metres) {
    const double angle = radius / GridPosition::kEarthRadius;
    reachInLatitude = unitsOf(angle);
    // The meridian that touches the circle makes a right angle with the radius there.
    const double sine = std::sin(angle) / std::cos(centre.latitude / kUnitsPerRadian);
    const bool holdsPole = std::abs(centre.latitude) + reachInLatitude >= GridPosition::kTurn / 4;
    reachInLongitude = holdsPole || sine >= 1 ? GridPosition::kTurn / 2 : unitsOf(std::asin(sine));
}
