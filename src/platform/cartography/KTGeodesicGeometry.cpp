#include "platform/cartography/KTGeodesicGeometry.h"

#include <GeographicLib/Geodesic.hpp>
#include <GeographicLib/GeodesicLine.hpp>
#include <cmath>

namespace {

bool isPosition(KTMapPoint point) {
    return std::abs(point.x) <= 360 && std::abs(point.y) <= 90; // false for not-a-number
}

std::vector<KTMapPoint> geodesicLine(KTMapPoint start, KTMapPoint end, double resolution) {
    using GeographicLib::GeodesicLine;
    if (!isPosition(start) || !isPosition(end) || !std::isfinite(resolution) || resolution <= 0)
        return {};
    const GeodesicLine line = GeographicLib::Geodesic::WGS84().InverseLine(
        start.y, start.x, end.y, end.x,
        GeodesicLine::LATITUDE | GeodesicLine::LONGITUDE | GeodesicLine::DISTANCE_IN);
    constexpr unsigned kWanted = GeodesicLine::LATITUDE | GeodesicLine::LONGITUDE | GeodesicLine::LONG_UNROLL;
    constexpr double kMaximumSteps = KTGeodesicGeometry::kMaximumPoints - 1;
    const double steps = std::clamp(std::ceil(line.Distance() / resolution), 1.0, kMaximumSteps);

    std::vector<KTMapPoint> points = {start};
    auto pointAt = [&](double step) {
        KTMapPoint point;
        double unused = 0;
        line.GenPosition(false, line.Distance() * (step / steps), kWanted, point.y, point.x, unused, unused,
                         unused, unused, unused, unused);
        return point;
    };
    for (double step = 1; step < steps; ++step)
        points.push_back(pointAt(step));
    const double turns = std::round((pointAt(steps).x - end.x) / 360);
    points.push_back({end.x + 360 * turns, end.y});
    return points;
}

} // namespace

KTGeodesicGeometry::KTGeodesicGeometry(KTMapPoint start, KTMapPoint end, double resolution)
    : KTMultiPointGeometry(geodesicLine(start, end, resolution)) {}
