// Holds the searches in the gazetteer's data against plain ones that look at everything.
#include "platform/desktop/KTResources.h"
#include "platform/gazetteer/CountryPolygons.h"
#include "platform/gazetteer/PlaceFinder.h"
#include "platform/geodesy/KTGeodesy.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace {

const GazetteerData& data() {
    static const GazetteerData shared(KTResourcePath("data/gazetteer/places.dat"));
    return shared;
}

std::size_t countryWithCode(std::string_view code) {
    std::size_t country = 0;
    while (data().codeOfCountry(country) != code)
        ++country;
    return country;
}

class Randomness {
public:
    double within(double low, double high) {
        return low + (high - low) * (static_cast<double>(source()) / static_cast<double>(source.max()));
    }

private:
    std::mt19937 source{5};
};

TEST(PlaceSearch, PlacesLieInTheirCountries) {
    const CountryPolygons countries(data());
    std::size_t asked = 0, elsewhere = 0;
    for (std::size_t country = 0; country < data().numberOfCountries(); ++country) {
        std::size_t ownElsewhere = 0, own = 0;
        for (const auto& place : data().placesOfCountry(country)) {
            if (++asked % 7 != 0)
                continue;
            ++own;
            ownElsewhere += countries.countryAt(place.position) != country;
        }
        EXPECT_LE(ownElsewhere, 1 + own / 5) << data().codeOfCountry(country);
        elsewhere += ownElsewhere;
    }
    EXPECT_EQ(asked, 171075U);
    EXPECT_LT(elsewhere, asked / 7 / 1000);
}

/// Whether the ways cross, the second one moved by whole turns to the first one's longitudes.
bool cross(GridPosition start, GridPosition end, GridPosition a, GridPosition b) {
    const double x = start.eastwardTo(end), y = end.latitude - start.latitude;
    const double ax = start.eastwardTo(a), ay = a.latitude - start.latitude;
    const double bx = ax + b.longitude - a.longitude, by = b.latitude - start.latitude;
    const double determinant = x * (by - ay) - y * (bx - ax);
    const double along = (ax * (by - ay) - ay * (bx - ax)) / determinant;
    const double across = (ax * y - ay * x) / determinant;
    return along > 0 && along < 1 && across > 0 && across < 1;
}

TEST(PlaceSearch, BordersAreFoundWherePlainSearchFindsThem) {
    const DivisionBorders borders(data());
    Randomness random;
    int crossed = 0;
    for (int i = 0; i < 300; ++i) {
        // Every fifth across the 180 degree meridian, to where Chukotka and Kamchatka meet.
        const bool isFar = i % 5 == 0;
        const double latitude = isFar ? random.within(60, 66) : random.within(-55, 75);
        const double longitude = isFar ? random.within(180, 190) : random.within(-180, 180);
        const double east = isFar ? random.within(-25, -10) : random.within(-12, 12);
        const auto start = GridPosition::fromDegrees(latitude, longitude);
        const auto end = GridPosition::fromDegrees(latitude + random.within(-4, 4), longitude + east);
        bool isCrossed = false;
        for (const auto border : data().divisionBorders())
            for (std::size_t j = 1; j < border.size() && !isCrossed; ++j)
                isCrossed = cross(start, end, border[j - 1], border[j]);
        EXPECT_EQ(borders.lieBetween(start, end), isCrossed) << latitude << ", " << longitude;
        EXPECT_EQ(borders.lieBetween(end, start), isCrossed) << latitude << ", " << longitude;
        crossed += isCrossed;
    }
    EXPECT_GT(crossed, 30);
}

struct Region {
    const char* code;
    double south, north, west, east;
};

// Dense and empty lands, high latitudes, and both sides of the 180 degree meridian.
const Region kRegions[] = {
    {"FR", 43, 49, 0, 6},      {"US", 31, 48, -120, -75},  {"US", 52, 71, -190, -150},
    {"RU", 62, 70, 165, 192},  {"FJ", -19, -16, 177, 182}, {"SJ", 74, 81, 10, 30},
    {"CA", 60, 83, -120, -65}, {"NZ", -47, -35, 167, 184},
};

TEST(PlaceSearch, NearestPlaceIsThatOfPlainSearch) {
    const PlaceFinder places(data());
    const DivisionBorders borders(data());
    Randomness random;
    for (const Region& region : kRegions) {
        const std::size_t country = countryWithCode(region.code);
        int found = 0;
        for (int i = 0; i < 25; ++i) {
            const auto position = GridPosition::fromDegrees(random.within(region.south, region.north),
                                                            random.within(region.west, region.east));
            double best = 250'000;
            for (const auto& place : data().placesOfCountry(country)) {
                const double distance = position.distanceTo(place.position);
                if (distance < best && (distance <= 1500 || !borders.lieBetween(position, place.position)))
                    best = distance;
            }
            const auto nearest = places.nearest(country, position, 250'000);
            const std::string where = std::string(region.code) + " " + std::to_string(position.latitude) +
                                      ", " + std::to_string(position.longitude);
            EXPECT_EQ(nearest ? nearest->distance : 250'000, best) << where;
            if (!nearest)
                continue;
            ++found;
            const auto exact = KTEarthDistance(position.longitude / 1e5, position.latitude / 1e5,
                                               nearest->place->position.longitude / 1e5,
                                               nearest->place->position.latitude / 1e5);
            EXPECT_NEAR(nearest->distance, exact, 0.006 * exact + 1) << where;
        }
        EXPECT_GT(found, 5) << region.code;
    }
}

TEST(PlaceSearch, DivisionsAreCertainOnlyWhereAllAgree) {
    const PlaceFinder places(data());
    // Tasmania; Kansas, all of whose neighbours lie beyond borders; Puerto Rico, whose districts have none.
    struct {
        const char* code;
        double latitude, longitude, reach;
        bool isCertain;
    } const cases[] = {
        {"AU", -42.0, 146.5, 100'000, true},
        {"US", 39.0, -98.0, 100'000, true},
        {"PR", 18.2, -66.4, 30'000, false},
    };
    for (const auto& each : cases) {
        const auto position = GridPosition::fromDegrees(each.latitude, each.longitude);
        const std::size_t country = countryWithCode(each.code);
        const auto nearest = places.nearest(country, position, each.reach);
        ASSERT_TRUE(nearest) << each.code;
        EXPECT_EQ(places.isDivisionCertain(country, position, nearest->place->division, each.reach),
                  each.isCertain)
            << each.code;
    }
}

} // namespace
