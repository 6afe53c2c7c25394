#include "platform/gazetteer/RoundedPosition.h"

#include <QString>
#include <cmath>

namespace {

constexpr int kStepsPerDegree = 10'000;

std::string degrees(int steps) {
    return QString::number(double(steps) / kStepsPerDegree, 'f', 4).toStdString();
}

} // namespace

std::optional<RoundedPosition> RoundedPosition::nearestTo(double latitude, double longitude) {
    if (!(std::abs(latitude) <= 90) || !std::isfinite(longitude))
        return std::nullopt;
    RoundedPosition rounded;
    rounded.latitude = int(std::lround(latitude * kStepsPerDegree));
    rounded.longitude = int(std::lround(std::remainder(longitude, 360) * kStepsPerDegree));
    if (rounded.longitude == 180 * kStepsPerDegree)
        rounded.longitude = -rounded.longitude;
    return rounded;
}

std::string RoundedPosition::latitudeText() const {
    return degrees(latitude);
}

std::string RoundedPosition::longitudeText() const {
    return degrees(longitude);
}
