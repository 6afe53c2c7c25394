#include "platform/desktop/KTResources.h"
#include "platform/geodesy/GeomagneticModels.h"
#include "platform/geodesy/KTGeodesy.h"
#include "tests/support/TestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <thread>

namespace {

KTInstant instantOfYear(double year) {
    using namespace std::chrono;
    const auto whole = std::chrono::year(static_cast<int>(std::floor(year)));
    const sys_days start = whole / 1 / 1, end = (whole + years(1)) / 1 / 1;
    return start + duration_cast<milliseconds>((end - start) * (year - std::floor(year)));
}

const std::filesystem::path& dataFolder() {
    static const auto folder = KTResourcePath("data/geomagnetism");
    return folder;
}

struct Sample {
    double year, kilometres, latitude, longitude, declination;
};

constexpr double kOctober5th2022 = 2022 + 277 / 365.0;

// Published test values: of a public calculator's reference field grids, of the world model's own table; then
// the reference field in early years, summed up from its coefficients by a separate program.
const Sample kSamples[] = {
    {2020, 5, -63, 25, -38.3848},
    {2020, 5, -41, -129, 23.0663},
    {2020, 5, -9, 84, -5.1320},
    {2020, 5, 11, -56, -16.8010},
    {2020, 5, 41, 167, -0.7296},
    {2020, 5, 59, 133, -15.1375},
    {kOctober5th2022, 5, -59, 32, -43.9043},
    {kOctober5th2022, 5, -55, -158, 36.9817},
    {kOctober5th2022, 5, -37, 55, -42.2066},
    {kOctober5th2022, 5, -10, -173, 11.1368},
    {kOctober5th2022, 5, 5, 96, -0.7509},
    {kOctober5th2022, 5, 64, -57, -25.9190},

    {2025, 28, 89, -121, -99.77},
    {2025, 65, 43, 93, 0.50},
    {2025.5, 50, -70, -133, 57.21},
    {2026.5, 12, -79, 115, -137.58},
    {2027.5, 34, -29, -107, 15.64},
    {2028, 86, -85, -79, 41.09},
    {2029.5, 64, 22, -132, 10.23},

    {1900, 0, 51.5, 0, -16.4485},
    {1900, 0, -80, 170, 149.3445},
    {1912.5, 0, -33.87, 151.2, 9.4937},
    {1950, 0, 48.85, 2.35, -7.5250},
    {1950, 0, 40.7, -74, -11.1594},
    {1975, 0, 78, 15.6, -1.1097},
    {2012.5, 0, 51.5, 0, -1.2606},
};

TEST(DeclinationTest, PublishedValues) {
    const GeomagneticModels models(dataFolder());
    for (const Sample& sample : kSamples) {
        SCOPED_TRACE(testing::Message()
                     << sample.year << " at " << sample.latitude << ", " << sample.longitude);
        const KTInstant date = instantOfYear(sample.year);
        auto declination =
            models.declination(sample.latitude, sample.longitude, sample.kilometres * 1000, date);
        ASSERT_TRUE(declination);
        EXPECT_NEAR(*declination, sample.declination, 0.05);
        if (sample.kilometres > 5)
            continue;
        auto atSeaLevel = KTDeclinationForLatitudeLongitude(sample.latitude, sample.longitude, date);
        ASSERT_TRUE(atSeaLevel);
        EXPECT_NEAR(*atSeaLevel, sample.declination, 0.1);
    }
}

double declinationOfLondon(double year) {
    return KTDeclinationForLatitudeLongitude(51.5, 0, instantOfYear(year)).value_or(NAN);
}

TEST(DeclinationTest, DatesOutsideTheModelsAreTakenAtTheirLimits) {
    EXPECT_EQ(declinationOfLondon(1826), declinationOfLondon(1900));
    EXPECT_EQ(declinationOfLondon(-500), declinationOfLondon(1900));
    EXPECT_EQ(declinationOfLondon(2100), declinationOfLondon(2030));
    EXPECT_NE(declinationOfLondon(2029.5), declinationOfLondon(2030));
    for (double extreme : {-1, 1}) {
        const KTInstant date = extreme < 0 ? KTInstant::min() : KTInstant::max();
        EXPECT_EQ(KTDeclinationForLatitudeLongitude(51.5, 0, date),
                  declinationOfLondon(extreme < 0 ? 1900 : 2030));
    }
    // Where one model takes over from the other there is a small step.
    EXPECT_NE(declinationOfLondon(2024.999), declinationOfLondon(2025));
    EXPECT_NEAR(declinationOfLondon(2024.999), declinationOfLondon(2025), 0.2);
}

TEST(DeclinationTest, Positions) {
    const KTInstant date = instantOfYear(2014.5);
    for (double pole : {90, -90}) {
        const auto declination = KTDeclinationForLatitudeLongitude(pole, 30, date);
        ASSERT_TRUE(declination);
        EXPECT_LE(std::abs(*declination), 180);
        // Turning the meridian that counts as north turns the declination with it.
        const double turned = *KTDeclinationForLatitudeLongitude(pole, 31, date) - *declination;
        EXPECT_NEAR(std::abs(std::remainder(turned, 360)), 1, 1e-6);
    }
    EXPECT_NEAR(*KTDeclinationForLatitudeLongitude(40, 190, date),
                *KTDeclinationForLatitudeLongitude(40, -170, date), 1e-9);
    EXPECT_NEAR(*KTDeclinationForLatitudeLongitude(40, 180, date),
                *KTDeclinationForLatitudeLongitude(40, -180, date), 1e-9);
    EXPECT_EQ(KTDeclinationForLatitudeLongitude(NAN, 0, date), std::nullopt);
    EXPECT_EQ(KTDeclinationForLatitudeLongitude(0, NAN, date), std::nullopt);
    EXPECT_EQ(KTDeclinationForLatitudeLongitude(0, INFINITY, date), std::nullopt);
    EXPECT_EQ(KTDeclinationForLatitudeLongitude(90.01, 0, date), std::nullopt);
}

TEST(DeclinationTest, MissingOrDamagedFilesGiveNothingAndOneLogLine) {
    TemporaryFolder empty, cut;
    for (const auto& entry : std::filesystem::directory_iterator(dataFolder()))
        std::filesystem::copy_file(entry, cut / entry.path().filename());
    std::filesystem::resize_file(cut / "wmm2025.wmm.cof", 1000);
    for (const auto& folder : {empty.path(), cut.path(), empty / "none"}) {
        testing::internal::CaptureStderr();
        const GeomagneticModels models(folder);
        EXPECT_EQ(models.declination(51.5, 0, 0, instantOfYear(2014)), std::nullopt);
        EXPECT_EQ(models.declination(51.5, 0, 0, instantOfYear(2026)), std::nullopt);
        const std::string log = testing::internal::GetCapturedStderr();
        EXPECT_EQ(std::ranges::count(log, '\n'), 1) << log;
        EXPECT_NE(log.find(folder.string()), std::string::npos) << log;
    }
}

TEST(DeclinationTest, ThreadsGetTheSameAnswer) {
    std::vector<double> answers(4);
    {
        std::vector<std::jthread> threads;
        for (double& answer : answers)
            threads.emplace_back([&answer] {
                for (int i = 0; i < 200; ++i)
                    answer = declinationOfLondon(i % 2 ? 1950 : 2027);
            });
    }
    for (double answer : answers)
        EXPECT_EQ(answer, declinationOfLondon(1950));
}

} // namespace
