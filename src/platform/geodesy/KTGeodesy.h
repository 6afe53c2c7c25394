#pragma once
#include "platform/common/KTInstant.h"

/// Metres along the shortest path on the WGS 84 ellipsoid between two positions in degrees (longitude may lie
/// outside ±180). Not-a-number when an argument is or is infinite, or a latitude lies outside ±90. Exact to
/// some nanometres (C. F. F. Karney, "Algorithms for geodesics", 2013). Any thread; throws nothing.
double KTEarthDistance(double longitude1, double latitude1, double longitude2, double latitude2);

/// Initial bearing of that path at the first position, in degrees from true north, within [0, 360); 0 for
/// equal positions, not-a-number where the distance is. At a pole, north is the direction in which the
/// position's meridian arrives there. Any thread; throws nothing.
double KTInitialBearingBetweenPoints(double longitude1, double latitude1, double longitude2,
                                     double latitude2);

/// Magnetic declination at sea level in degrees, east positive, within [-180, 180], at a position in degrees
/// (longitude may lie outside ±180) on @p date: the International Geomagnetic Reference Field (IGRF-13) from
/// 1900 to 2025, the World Magnetic Model 2025 after it. Dates before 1900 or after 2030 are taken at that
/// limit. Nothing when the data files (resource folder "data/geomagnetism", read at the first call) cannot be
/// read, which is logged once, or the position is not one. Any thread; throws nothing.
std::optional<double> KTDeclinationForLatitudeLongitude(double latitude, double longitude, KTInstant date);
