#include "platform/geodesy/KTGeodesy.h"

#include "platform/geodesy/GeomagneticModels.h"

#include <GeographicLib/Geodesic.hpp>

double KTEarthDistance(double longitude1, double latitude1, double longitude2, double latitude2) {
    double distance = 0;
    GeographicLib::Geodesic::WGS84().Inverse(latitude1, longitude1, latitude2, longitude2, distance);
    return distance;
}

double KTInitialBearingBetweenPoints(double longitude1, double latitude1, double longitude2,
                                     double latitude2) {
    double distance = 0, bearing = 0, finalBearing = 0;
    GeographicLib::Geodesic::WGS84().Inverse(latitude1, longitude1, latitude2, longitude2, distance, bearing,
                                             finalBearing);
    if (distance == 0) // any bearing would do; the library's depends on the signs of zeros
        return 0;
    if (bearing < 0)
        bearing += 360;
    return bearing == 0 || bearing >= 360 ? 0 : bearing; // no -0; a tiny negative one was rounded to 360
}

std::optional<double> KTDeclinationForLatitudeLongitude(double latitude, double longitude, KTInstant date) {
    return GeomagneticModels::shared().declination(latitude, longitude, 0, date);
}
