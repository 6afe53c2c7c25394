#include "platform/geodesy/GeomagneticModels.h"

#include "platform/common/KTLog.h"
#include "platform/desktop/KTResources.h"

#include <GeographicLib/MagneticModel.hpp>
#include <algorithm>
#include <cmath>

using namespace std::chrono_literals;

namespace {

constexpr KTInstant newYear(std::chrono::year year) {
    return std::chrono::sys_days(year / 1 / 1);
}

constexpr KTInstant kFirstDate = newYear(1900y);
constexpr KTInstant kEndOfIGRF = newYear(2025y);
constexpr KTInstant kLastDate = newYear(2030y);

/// The year of @p date in UTC and, as its fraction, the part of it that has passed.
double decimalYear(KTInstant date) {
    auto year = std::chrono::year_month_day(std::chrono::floor<std::chrono::days>(date)).year();
    KTInstant start = newYear(year);
    KTInstant end = newYear(year + std::chrono::years(1));
    return static_cast<int>(year) + KTSecondsBetween(date, start) / KTSecondsBetween(end, start);
}

} // namespace

// Both models are made at once, before either is asked: making one may move a table of the library's that the
// evaluation of every model reads.
struct GeomagneticModels::Models {
    explicit Models(const std::string& folder) : igrf("igrf13", folder), wmm("wmm2025", folder) {}

    GeographicLib::MagneticModel igrf;
    GeographicLib::MagneticModel wmm;
};

GeomagneticModels::GeomagneticModels(const std::filesystem::path& folder) {
    try {
        models = std::make_unique<const Models>(folder.string());
    } catch (const std::exception& error) {
        KTLog("The models of the earth's magnetic field cannot be read from " + folder.string() + ": " +
              error.what());
    }
}

GeomagneticModels::~GeomagneticModels() = default;

const GeomagneticModels& GeomagneticModels::shared() {
    static const GeomagneticModels models(KTResourcePath("data/geomagnetism"));
    return models;
}

std::optional<double> GeomagneticModels::declination(double latitude, double longitude, double altitude,
                                                     KTInstant date) const {
    if (!models || !(std::abs(latitude) <= 90) || !std::isfinite(longitude) || !std::isfinite(altitude))
        return std::nullopt;
    date = std::clamp(date, kFirstDate, kLastDate);
    const GeographicLib::MagneticModel& model = date < kEndOfIGRF ? models->igrf : models->wmm;
    double east = 0, north = 0, up = 0;
    model(decimalYear(date), latitude, longitude, altitude, east, north, up);
    double horizontal = 0, total = 0, declination = 0, inclination = 0;
    GeographicLib::MagneticModel::FieldComponents(east, north, up, horizontal, total, declination,
                                                  inclination);
    return declination;
}
