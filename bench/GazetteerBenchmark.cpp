// Reads the offline gazetteer's data and asks it for places of several kinds; looks for the nearest place by
// a plain search through all places of the country in turn. Prints the times and their ratio.
#include "platform/desktop/KTResources.h"
#include "platform/gazetteer/CountryPolygons.h"
#include "platform/gazetteer/KTOfflineReverseGeocoder.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <random>

namespace {

constexpr int kPositions = 20'000, kPlainSearches = 2'000, kRounds = 3;

struct Position {
    double latitude, longitude;
};

double microsecondsOf(const auto& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
}

/// Positions spread evenly over the earth of which @p isWanted is true.
std::vector<Position> randomPositions(const auto& isWanted) {
    std::mt19937 source(1);
    std::uniform_real_distribution<double> part(-1, 1);
    std::vector<Position> positions;
    while (positions.size() < kPositions) {
        const Position position{std::asin(part(source)) * 180 / std::numbers::pi, part(source) * 180};
        if (isWanted(GridPosition::fromDegrees(position.latitude, position.longitude)))
            positions.push_back(position);
    }
    return positions;
}

std::vector<Position> positionsOfPlaces(const GazetteerData& data) {
    std::vector<Position> positions;
    for (std::size_t country = 0; country < data.numberOfCountries(); ++country)
        for (const auto& place : data.placesOfCountry(country))
            positions.push_back({place.position.latitude / 1e5, place.position.longitude / 1e5});
    std::ranges::shuffle(positions, std::mt19937(2));
    positions.resize(kPositions);
    return positions;
}

void benchmarkLoading(const std::filesystem::path& file) {
    double best = 1e9;
    for (int round = 0; round < kRounds; ++round)
        best =
            std::min(best, microsecondsOf([&] { KTOfflineReverseGeocoder(file).placeAtLatitude(0, 0, {}); }));
    std::printf("reading the data: %.1f ms (aim 100)\n", best / 1000);
}

/// Prints and returns the mean time.
double benchmarkLookups(const char* kind, KTOfflineReverseGeocoder& geocoder,
                        const std::vector<Position>& positions) {
    double sum = 0, worst = 0;
    for (const Position& position : positions) {
        double time = 1e9; // the best of some rounds: the worst shall be the search's, not the machine's
        for (int round = 0; round < kRounds; ++round)
            time = std::min(time, microsecondsOf([&] {
                                geocoder.placeAtLatitude(position.latitude, position.longitude, {});
                            }));
        sum += time;
        worst = std::max(worst, time);
    }
    const double mean = sum / static_cast<double>(positions.size());
    std::printf("%s: mean %.2f us, worst %.1f us (aim 50)\n", kind, mean, worst);
    return mean;
}

/// Compares with a search through all places of the country.
void compareWithPlainSearch(double mean, const GazetteerData& data, const CountryPolygons& countries,
                            const std::vector<Position>& positions) {
    double nearest = 0; // printed, so that nothing is optimised away
    const double time = microsecondsOf([&] {
        for (int i = 0; i < kPlainSearches; ++i) {
            const auto position = GridPosition::fromDegrees(positions[i].latitude, positions[i].longitude);
            double best = 1e9;
            for (const auto& place : data.placesOfCountry(countries.countryAt(position).value_or(0)))
                best = std::min(best, position.distanceTo(place.position));
            nearest += best;
        }
    });
    std::printf("  plain search: mean %.2f us, at %.0f m; ratio %.3f\n", time / kPlainSearches,
                nearest / kPlainSearches, mean * kPlainSearches / time);
}

} // namespace

int main() {
    const auto file = KTResourcePath("data/gazetteer/places.dat");
    benchmarkLoading(file);
    const GazetteerData data(file);
    const CountryPolygons countries(data);
    KTOfflineReverseGeocoder geocoder(file);
    geocoder.placeAtLatitude(0, 0, {});
    const auto hasCountry = [&](GridPosition position) { return countries.countryAt(position).has_value(); };

    const auto land = randomPositions(hasCountry);
    compareWithPlainSearch(benchmarkLookups("anywhere in countries", geocoder, land), data, countries, land);
    const auto places = positionsOfPlaces(data);
    compareWithPlainSearch(benchmarkLookups("at places", geocoder, places), data, countries, places);
    benchmarkLookups("open sea and Antarctica", geocoder, randomPositions(std::not_fn(hasCountry)));
}
