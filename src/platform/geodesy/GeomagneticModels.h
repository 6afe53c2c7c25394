#pragma once
#include "platform/common/KTInstant.h"

#include <filesystem>
#include <memory>

/// The models of the earth's magnetic field that the program carries: IGRF-13 for 1900 to 2025, WMM 2025 for
/// 2025 to 2030. Immutable once made: every thread may ask.
class GeomagneticModels {
public:
    /// Reads igrf13.wmm, wmm2025.wmm and their .wmm.cof from @p folder. Where one cannot be read or is
    /// damaged, that is logged and there are no models at all.
    explicit GeomagneticModels(const std::filesystem::path& folder);
    ~GeomagneticModels();
    GeomagneticModels(const GeomagneticModels&) = delete;
    GeomagneticModels& operator=(const GeomagneticModels&) = delete;

    /// Those of the program's resources, read at the first call.
    static const GeomagneticModels& shared();

    /// Declination in degrees, east positive, within [-180, 180], at a position in degrees, @p altitude
    /// metres above the WGS 84 ellipsoid. Dates are taken at the nearer limit outside 1900 to 2030. Nothing
    /// without models or when the position is not one (a number not finite, a latitude outside ±90).
    std::optional<double> declination(double latitude, double longitude, double altitude,
                                      KTInstant date) const;

private:
    struct Models;
    std::unique_ptr<const Models> models;
};
