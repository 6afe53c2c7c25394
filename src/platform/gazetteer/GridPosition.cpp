#include "platform/gazetteer/GridPosition.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double kRadians = std::numbers::pi / 180 / GridPosition::kDegree;

double squareOfSine(double angle) {
    const double sine = std::sin(angle);
    return sine * sine;
}

} // namespace

GridPosition GridPosition::fromDegrees(double latitude, double longitude) {
    GridPosition position;
    position.latitude = static_cast<std::int32_t>(std::lround(latitude * kDegree));
    position.longitude = static_cast<std::int32_t>(std::lround(std::remainder(longitude, 360) * kDegree));
    if (position.longitude == kTurn / 2)
        position.longitude = -kTurn / 2;
    return position;
}

bool GridPosition::isValid() const {
    return latitude >= -kTurn / 4 && latitude <= kTurn / 4 && longitude >= -kTurn / 2 &&
           longitude <= kTurn / 2;
}

double GridPosition::distanceTo(GridPosition other) const {
    const double haversine = squareOfSine((other.latitude - latitude) * kRadians / 2) +
                             std::cos(latitude * kRadians) * std::cos(other.latitude * kRadians) *
                                 squareOfSine(eastwardTo(other) * kRadians / 2);
    return 2 * kEarthRadius * std::asin(std::sqrt(std::min(haversine, 1.0)));
}
