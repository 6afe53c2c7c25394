#include "platform/gazetteer/KTOfflineReverseGeocoder.h"

#include "platform/desktop/KTResources.h"
#include "tests/support/TestSupport.h"

#include <algorithm>
#include <boost/crc.hpp>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <random>

namespace {

std::filesystem::path dataFile() {
    return KTResourcePath("data/gazetteer/places.dat");
}

/// One for all tests: it reads its data once.
KTPlaceAnswer placeAt(double latitude, double longitude) {
    static KTOfflineReverseGeocoder geocoder(dataFile());
    return geocoder.placeAtLatitude(latitude, longitude, {});
}

std::string textIn(const KTPlaceAnswer& answer, std::string_view key) {
    const auto found = answer.place.find(key);
    return found == answer.place.end() ? "" : *found->second.text();
}

constexpr const char* kAny = "*"; // where a text is not sure, or several are right

struct Point {
    const char* name;
    double latitude, longitude;
    const char *code, *state, *city; // "" for what must be left out
};

const Point kPoints[] = {
    // Cities at borders
    {"Basel, Marktplatz", 47.5596, 7.5886, "CH", "Basel-City", "Basel"},
    {"Strasbourg, cathedral", 48.5818, 7.7510, "FR", "Grand Est", "Strasbourg"},
    {"Kehl, town hall", 48.5728, 7.8155, "DE", kAny, "Kehl"},
    {"Geneva airport, terminal", 46.2310, 6.1090, "CH", "Geneva", kAny},
    {"Detroit, City Hall", 42.3314, -83.0458, "US", "Michigan", "Detroit"},
    {"Windsor, Ontario", 42.3149, -83.0364, "CA", "Ontario", "Windsor"},
    {"Maseru", -29.3142, 27.4833, "LS", kAny, "Maseru"},
    {"Konstanz, station", 47.6587, 9.1770, "DE", kAny, "Konstanz"},
    {"Kreuzlingen", 47.6500, 9.1750, "CH", "Thurgau", "Kreuzlingen"},
    {"Gibraltar, Casemates Square", 36.1447, -5.3530, "GI", "", kAny},
    {"La Linea de la Concepcion", 36.1680, -5.3480, "ES", "Andalusia", kAny},
    // Enclaves, exclaves and small states
    {"St Peter's Square", 41.9022, 12.4572, "VA", kAny, "Vatican City"},
    {"Monaco, casino", 43.7391, 7.4280, "MC", kAny, kAny},
    {"Vaduz", 47.1410, 9.5215, "LI", kAny, "Vaduz"},
    {"San Marino", 43.9363, 12.4467, "SM", kAny, "San Marino"},
    {"Baarle-Hertog", 51.4406, 4.9297, "BE", "Flanders", "Baarle-Hertog"},
    {"Ulicoten, north of Baarle", 51.4540, 4.8690, "NL", "North Brabant", kAny},
    {"Buesingen", 47.6972, 8.6889, "DE", kAny, kAny},
    {"Campione d'Italia", 45.9700, 8.9710, "IT", "Lombardy", kAny},
    {"Llivia", 42.4640, 1.9810, "ES", "Catalonia", kAny},
    {"Kaliningrad", 54.7104, 20.4522, "RU", kAny, "Kaliningrad"},
    {"Cabinda", -5.5560, 12.1900, "AO", "Cabinda", "Cabinda"},
    {"Ceuta", 35.8894, -5.3198, "ES", "Ceuta", "Ceuta"},
    // Codes of their own, and lands whose holder and code differ
    {"Macau, Senado Square", 22.1937, 113.5399, "MO", kAny, kAny},
    {"Hong Kong, Central", 22.2810, 114.1580, "HK", kAny, kAny},
    {"Mariehamn", 60.0973, 19.9348, "AX", "Mariehamn", "Mariehamn"},
    {"Longyearbyen", 78.2232, 15.6267, "SJ", "Svalbard", "Longyearbyen"},
    {"Saint-Pierre et Miquelon", 46.7811, -56.1764, "PM", "Saint-Pierre", "Saint-Pierre"},
    {"Simferopol", 44.9521, 34.1024, "UA", kAny, "Simferopol"},
    {"Kyrenia, harbour", 35.3410, 33.3200, "CY", kAny, "Kyrenia"},
    {"Dakhla", 23.6848, -15.9580, "EH", "", "Dakhla"},
    {"Alderney, St Anne", 49.7144, -2.2050, "GG", kAny, kAny},
    {"Bonaire, Kralendijk", 12.1500, -68.2700, "BQ", "Bonaire", "Kralendijk"},
    {"Las Palmas", 28.1248, -15.4300, "ES", "Canary Islands", kAny},
    {"Pristina", 42.6629, 21.1655, "XK", kAny, "Pristina"},
    // Islands
    {"Ushuaia", -54.8019, -68.3030, "AR", "Tierra del Fuego", "Ushuaia"},
    {"Porvenir", -53.2969, -70.3667, "CL", "Region of Magallanes", "Porvenir"},
    {"Tristan da Cunha", -37.0675, -12.3110, "SH", "Tristan da Cunha", kAny},
    {"Ascension, Georgetown", -7.9277, -14.4110, "SH", "Ascension", "Georgetown"},
    {"Easter Island, Hanga Roa", -27.1500, -109.4300, "CL", "Valparaiso", "Hanga Roa"},
    // The 180 degree meridian
    {"Taveuni, east of it", -16.8000, -179.9700, "FJ", "Northern", kAny},
    {"Taveuni, west of it", -16.8000, 179.9600, "FJ", "Northern", kAny},
    {"Chukotka, east of it", 65.5000, -179.0000, "RU", "Chukotka", ""},
    {"Chukotka, west of it", 66.3000, 179.1000, "RU", "Chukotka", kAny},
    // The nearest place lies in the neighbouring state, or far away
    {"Old Faithful", 44.4605, -110.8281, "US", "Wyoming", kAny},
    {"Niagara Falls, Ontario", 43.0799, -79.0780, "CA", "Ontario", "Niagara Falls"},
    {"Matterhorn, Swiss slope", 45.9800, 7.6600, "CH", "Valais", kAny},
    {"Great Sandy Desert, far from all", -21.5000, 125.0000, "AU", "", ""},
    {"Summit Camp, Greenland", 72.5800, -38.4600, "GL", kAny, ""},
    // No country
    {"South Pole", -90, 0, "", "", ""},
    {"North Pole", 90, 0, "", "", ""},
    {"McMurdo Station", -77.8500, 166.6700, "", "", ""},
    {"Atlantic", 30, -40, "", "", ""},
    {"Gulf of Guinea", 0, 0, "", "", ""},
    {"200 km off New Jersey", 38.75, -71.65, "", "", ""},
    {"Pacific between Kiribati and French Polynesia", -8, -148, "", "", ""},
};

TEST(OfflineReverseGeocoder, FindsHardPlaces) {
    for (const Point& point : kPoints) {
        SCOPED_TRACE(point.name);
        const KTPlaceAnswer answer = placeAt(point.latitude, point.longitude);
        EXPECT_EQ(answer.error, std::nullopt);
        EXPECT_EQ(textIn(answer, "countryCode"), point.code);
        EXPECT_EQ(textIn(answer, "country").empty(), std::string_view(point.code).empty());
        if (point.state != kAny) {
            EXPECT_EQ(textIn(answer, "state"), point.state);
        }
        if (point.city != kAny) {
            EXPECT_EQ(textIn(answer, "city"), point.city);
        }
        for (const auto& [key, value] : answer.place)
            EXPECT_FALSE(value.text()->empty()) << key;
    }
}

TEST(OfflineReverseGeocoder, WrapsLongitudesAndRefusesWhatIsNoPosition) {
    const auto inFiji = placeAt(-16.8, 180).place;
    EXPECT_EQ(*inFiji.at("countryCode").text(), "FJ");
    for (double longitude : {-180.0, 540.0, -900.0})
        EXPECT_EQ(placeAt(-16.8, longitude).place, inFiji) << longitude;
    EXPECT_EQ(placeAt(47.5596, 7.5886 - 720).place, placeAt(47.5596, 7.5886).place);
    const double bad[][2] = {{90.001, 0}, {-91, 0}, {NAN, 0}, {0, NAN}, {0, INFINITY}, {-INFINITY, 0}};
    for (const auto& [latitude, longitude] : bad) {
        const KTPlaceAnswer answer = placeAt(latitude, longitude);
        EXPECT_TRUE(answer.error && !answer.isUnavailable && answer.place.empty());
    }
    EXPECT_FALSE(placeAt(10, 1e300).error);
}

TEST(OfflineReverseGeocoder, StopsWhenAsked) {
    std::stop_source stop;
    stop.request_stop();
    const auto answer =
        KTOfflineReverseGeocoder(dataFile()).placeAtLatitude(47.5596, 7.5886, stop.get_token());
    EXPECT_TRUE(answer.error && answer.place.empty() && !answer.isUnavailable);
}

/// Asks twice for Basel in data of which it is known that it is missing or damaged.
void expectUnavailable(const std::filesystem::path& file) {
    SCOPED_TRACE(file);
    testing::internal::CaptureStderr();
    KTOfflineReverseGeocoder geocoder(file);
    for (int i = 0; i < 2; ++i) {
        const KTPlaceAnswer answer = geocoder.placeAtLatitude(47.5596, 7.5886, {});
        EXPECT_TRUE(answer.error && answer.isUnavailable && answer.place.empty());
    }
    const std::string log = testing::internal::GetCapturedStderr();
    EXPECT_EQ(std::ranges::count(log, '\n'), 1) << log;
    EXPECT_NE(log.find(file.string()), std::string::npos) << log;
}

TEST(OfflineReverseGeocoder, MissingOrDamagedDataIsUnavailable) {
    const TemporaryFolder folder;
    expectUnavailable(folder / "none.dat");
    expectUnavailable(folder.path());
    const std::string content = contentOf(dataFile());
    ASSERT_GT(content.size(), 1'000'000U);
    for (std::size_t size : {std::size_t{0}, std::size_t{7}, std::size_t{11}, std::size_t{15},
                             std::size_t{500}, content.size() / 2, content.size() - 1})
        expectUnavailable(folder.file("cut.dat", content.substr(0, size)));
    expectUnavailable(folder.file("longer.dat", content + '\0'));
    for (std::size_t place : {std::size_t{3}, std::size_t{9}, content.size() / 3, content.size() - 5}) {
        std::string flipped = content;
        flipped[place] = static_cast<char>(flipped[place] ^ 4);
        expectUnavailable(folder.file("flipped.dat", flipped));
    }
}

/// Where each of the lists of the data starts: their lengths stand before them.
std::vector<std::size_t> startsOfLists(const std::string& content) {
    std::vector<std::size_t> starts;
    std::size_t position = 12;
    for (std::size_t record : {12, 4, 8, 16, 4, 8, 1, 1}) {
        starts.push_back(position);
        std::uint32_t length = 0;
        std::memcpy(&length, content.data() + position, sizeof length);
        position += sizeof length + length * record;
    }
    return starts;
}

/// Gives damaged data a right checksum, so that only the checks of its lists stand between it and the search.
void repairChecksum(std::string& content) {
    boost::crc_32_type checksum;
    checksum.process_bytes(content.data() + 12, content.size() - 12);
    const std::uint32_t value = checksum.checksum();
    std::memcpy(content.data() + 8, &value, sizeof value);
}

std::string damagedAt(const std::string& content, std::size_t place) {
    std::string damaged = content;
    damaged[place] = static_cast<char>(damaged[place] ^ 0x80);
    repairChecksum(damaged);
    return damaged;
}

TEST(OfflineReverseGeocoder, DataThatRefersToNothingIsUnavailable) {
    const TemporaryFolder folder;
    const std::string content = contentOf(dataFile());
    const auto lists = startsOfLists(content);
    // The highest bytes of the numbers in each list's first record.
    const std::vector<std::size_t> numbers[] = {{7, 11}, {3}, {3, 7}, {3, 7, 11, 15}, {3}, {3, 7}, {}, {}};
    for (std::size_t list = 0; list < lists.size(); ++list) {
        expectUnavailable(folder.file("length.dat", damagedAt(content, lists[list])));
        for (const std::size_t number : numbers[list])
            expectUnavailable(folder.file("number.dat", damagedAt(content, lists[list] + 4 + number)));
    }
    std::string endless = content;
    endless.back() = 'x';
    repairChecksum(endless);
    expectUnavailable(folder.file("endless.dat", endless));
}

TEST(OfflineReverseGeocoder, NoDamageMakesItCrash) {
    const TemporaryFolder folder;
    const std::string content = contentOf(dataFile());
    std::mt19937 random(1);
    for (int i = 0; i < 40; ++i) {
        testing::internal::CaptureStderr();
        KTOfflineReverseGeocoder geocoder(
            folder.file("damaged.dat", damagedAt(content, 12 + random() % (content.size() - 12))));
        for (const Point& point : kPoints) {
            const KTPlaceAnswer answer = geocoder.placeAtLatitude(point.latitude, point.longitude, {});
            EXPECT_EQ(answer.error.has_value(), answer.isUnavailable);
        }
        testing::internal::GetCapturedStderr();
    }
}

} // namespace
