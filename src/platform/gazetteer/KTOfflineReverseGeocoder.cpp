#include "platform/gazetteer/KTOfflineReverseGeocoder.h"

#include "platform/common/KTCountryNames.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTLog.h"
#include "platform/desktop/KTResources.h"
#include "platform/gazetteer/CountryPolygons.h"
#include "platform/gazetteer/PlaceFinder.h"

#include <cmath>

namespace {

constexpr double kReachOfCities = 50'000;
constexpr double kReachOfStates = 250'000;
// Within so many times the distance of the nearest place, the others must agree with it.
constexpr double kMarginOfDoubt = 2;

} // namespace

struct KTOfflineReverseGeocoder::Gazetteer {
    explicit Gazetteer(const std::filesystem::path& file) : data(file), countries(data), places(data) {}

    KTValue::Dictionary placeAt(GridPosition position) const;

    GazetteerData data;
    CountryPolygons countries;
    PlaceFinder places;
};

KTValue::Dictionary KTOfflineReverseGeocoder::Gazetteer::placeAt(GridPosition position) const {
    const auto country = countries.countryAt(position);
    if (!country)
        return {};
    const std::string_view code = data.codeOfCountry(*country);
    KTValue::Dictionary place = {{"countryCode", code}};
    if (std::string name = KTCountryName(code); !name.empty())
        place["country"] = std::move(name);
    const auto nearest = places.nearest(*country, position, kReachOfStates);
    if (!nearest)
        return place;
    const bool isNear = nearest->distance <= kReachOfCities;
    if (isNear)
        place["city"] = data.nameAt(nearest->place->name);
    const std::uint32_t division = nearest->place->division;
    const std::string_view state = data.nameAt(division);
    if (!state.empty() && (isNear || places.isDivisionCertain(*country, position, division,
                                                              kMarginOfDoubt * nearest->distance)))
        place["state"] = state;
    return place;
}

KTOfflineReverseGeocoder::KTOfflineReverseGeocoder()
    : KTOfflineReverseGeocoder(KTResourcePath("data/gazetteer/places.dat")) {}

KTOfflineReverseGeocoder::KTOfflineReverseGeocoder(std::filesystem::path path) : file(std::move(path)) {}

KTOfflineReverseGeocoder::~KTOfflineReverseGeocoder() = default;

std::string KTOfflineReverseGeocoder::name() const {
    return KTLocalizedString("GeoNames (offline)");
}

const KTOfflineReverseGeocoder::Gazetteer* KTOfflineReverseGeocoder::gazetteer() {
    if (!std::exchange(hasRead, true)) {
        try {
            content = std::make_unique<const Gazetteer>(file);
        } catch (const std::exception& error) {
            KTLog("The places of the gazetteer cannot be read from " + file.string() + ": " + error.what());
        }
    }
    return content.get();
}

KTPlaceAnswer KTOfflineReverseGeocoder::placeAtLatitude(double latitude, double longitude,
                                                        const std::stop_token& stop) {
    if (stop.stop_requested())
        return {.error = KTLocalizedString("The search for places was cancelled.")};
    if (!(std::abs(latitude) <= 90) || !std::isfinite(longitude))
        return {.error = KTLocalizedString("This position does not exist.")};
    const Gazetteer* places = gazetteer();
    if (!places)
        return {.error = KTLocalizedString("The list of places cannot be read."), .isUnavailable = true};
    return {.place = places->placeAt(GridPosition::fromDegrees(latitude, longitude))};
}
