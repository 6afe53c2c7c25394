#include "platform/cartography/KTMapProjection.h"

#include <algorithm>
#include <cmath>
#include <numbers>

using std::numbers::pi;

KTWorldPoint KTProject(KTMapPoint position) {
    const double latitude = std::clamp(position.y, -kKTMapMaximumLatitude, kKTMapMaximumLatitude);
    return {position.x / 360 + 0.5, 0.5 - std::asinh(std::tan(latitude * pi / 180)) / (2 * pi)};
}

KTMapPoint KTUnproject(KTWorldPoint point) {
    return {(point.x - 0.5) * 360, std::atan(std::sinh((0.5 - point.y) * 2 * pi)) * 180 / pi};
}

double KTNormalizedLongitude(double longitude) {
    const double turned = longitude - 360 * std::floor((longitude + 180) / 360);
    return turned < 180 ? turned : -180; // rounding may have reached the end
}
