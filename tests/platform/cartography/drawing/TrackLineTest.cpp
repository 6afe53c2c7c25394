#include "platform/cartography/drawing/tracks/KTTrackLine.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace {

using namespace std::chrono_literals;
using Points = std::vector<KTTrackPosition>;

KTInstant at(std::chrono::seconds time) {
    return KTInstant(std::chrono::sys_days(std::chrono::year(2020) / 6 / 1)) + time;
}

/// A walk of one point a second that turns at random.
Points walk(std::size_t count, unsigned seed, KTMapPoint start = {7.59, 47.55}) {
    std::mt19937 source(seed);
    std::normal_distribution<double> turn(0, 0.3);
    Points points;
    double direction = 0;
    for (std::size_t i = 0; i < count; ++i) {
        points.push_back({start, at(std::chrono::seconds(i))});
        direction += turn(source);
        start.x += 2e-5 * std::cos(direction);
        start.y = std::clamp(start.y + 1.4e-5 * std::sin(direction), -89.0, 89.0);
    }
    return points;
}

double distanceToLine(KTWorldPoint point, KTWorldPoint from, KTWorldPoint to) {
    const double x = to.x - from.x, y = to.y - from.y, squared = x * x + y * y;
    const double part =
        squared == 0 ? 0 : std::clamp(((point.x - from.x) * x + (point.y - from.y) * y) / squared, 0.0, 1.0);
    return std::hypot(point.x - from.x - part * x, point.y - from.y - part * y);
}

TEST(TrackLineTest, LevelsStayWithinAPixelOfTheTrack) {
    Points points = walk(20'000, 1);
    for (std::size_t i = 5000; i < 5200; ++i) // there and back again, and standing still
        points[i].position = points[i < 5100 ? i : 10199 - i].position;
    for (std::size_t i = 8000; i < 9000; ++i)
        points[i].position = points[8000].position;
    const KTTrackLine line({points});
    std::size_t before = points.size() + 1;
    for (int zoom = 19; zoom >= 0; --zoom) {
        const auto& indexes = line.levelForZoom(zoom).indexes();
        ASSERT_GE(indexes.size(), 2u);
        EXPECT_EQ(indexes.front(), 0u);
        EXPECT_EQ(indexes.back(), points.size() - 1);
        EXPECT_LE(indexes.size(), before);
        before = indexes.size();
        double farthest = 0; // in pixels
        for (std::size_t k = 0; k + 1 < indexes.size(); ++k)
            for (std::size_t i = indexes[k]; i <= indexes[k + 1]; ++i)
                farthest = std::max(farthest, 256 * std::exp2(zoom) *
                                                  distanceToLine(line.points()[i], line.points()[indexes[k]],
                                                                 line.points()[indexes[k + 1]]));
        EXPECT_LE(farthest, 1) << zoom;
        for (const auto& chunk : line.levelForZoom(zoom).chunks())
            for (std::uint32_t i = chunk.first; i <= chunk.last; ++i)
                EXPECT_TRUE(chunk.box.contains(line.points()[indexes[i]]));
    }
    EXPECT_EQ(line.levelForZoom(20).indexes().size(), points.size());
    EXPECT_LT(line.levelForZoom(10).indexes().size(), 250u);
}

TEST(TrackLineTest, FindsGaps) {
    const auto gaps = [](const std::vector<Points>& segments) {
        const KTTrackLine line(segments);
        std::string found;
        for (const auto& chunk : line.levelForZoom(20).chunks())
            if (chunk.beginsRun && chunk.first > 0)
                found += std::to_string(line.levelForZoom(20).indexes()[chunk.first]) + " ";
        return found;
    };
    const auto point = [](double x, double y, std::optional<std::chrono::seconds> time) {
        return KTTrackPosition{{x, y}, time ? std::optional(at(*time)) : std::nullopt};
    };
    const double near = 0.0008, far = 0.0011; // 89 m and 122 m
    EXPECT_EQ(gaps({{point(0, 0, 0s), point(far, 0, 300s), point(0, 0, 600s)}}), "");
    EXPECT_EQ(gaps({{point(0, 0, 0s), point(far, 0, 301s), point(0, 0, 602s)}}), "1 2 ");
    EXPECT_EQ(gaps({{point(0, 0, 0s), point(near, 0, 3000s)}}), "");
    EXPECT_EQ(gaps({{point(0, 80, 0s), point(far * 4, 80, 301s)}}), ""); // degrees are shorter there
    EXPECT_EQ(gaps({{point(0, 0, 1000s), point(far, 0, 0s)}}), "1 ");    // the clock was set
    EXPECT_EQ(gaps({{point(0, 0, 0s)}, {point(far, 0, 1s)}, {point(far, near, 2s)}}), "1 ");
    EXPECT_EQ(gaps({{point(0, 0, {}), point(5, 5, {})}, {}, {point(6, 6, {}), point(7, 7, {})}}), "2 ");
    EXPECT_EQ(gaps({{point(NAN, 0, 0s), point(0, 0, 0s), point(0, 91, 1s)}, {point(INFINITY, 0, 1s)}}), "");
    EXPECT_EQ(gaps({}), "");
    EXPECT_EQ(KTTrackLine({}).bounds(), std::nullopt);
    EXPECT_EQ(KTTrackLine({}).nearest({0, 0}, 1, 3), std::nullopt);
}

TEST(TrackLineTest, ClosesGapsThatAreTooSmallToBeSeen) {
    std::vector<Points> segments;
    for (int i = 0; i < 1000; ++i)
        segments.push_back({{{i * 0.002, 0}, at(std::chrono::seconds(i))}});
    const KTTrackLine line(segments);
    const auto runs = [&](double zoom) {
        return std::ranges::count_if(line.levelForZoom(zoom).chunks(), &TrackLevel::Chunk::beginsRun);
    };
    EXPECT_EQ(runs(18), 1000);
    EXPECT_EQ(runs(3), 1);
}

TEST(TrackLineTest, RunsOnAcrossTheDateLine) {
    const KTTrackLine line({{{{179, 10}, at(0s)}, {{-179, 10}, at(100s)}, {{-177, 11}, at(200s)}}});
    for (std::size_t i = 1; i < line.points().size(); ++i)
        EXPECT_NEAR(line.points()[i].x - line.points()[i - 1].x, 2 / 360., 1e-12);
    const auto bounds = line.bounds();
    ASSERT_TRUE(bounds);
    EXPECT_NEAR(bounds->west, 179, 1e-9);
    EXPECT_NEAR(bounds->east, 183, 1e-9);
    EXPECT_NEAR(bounds->south, 10, 1e-9);
    const KTTrackLine round({[] {
        Points points;
        for (int degrees = 0; degrees <= 1080; degrees += 90) // three times around the world
            points.push_back({{std::remainder(degrees, 360.), 90}});
        return points;
    }()});
    EXPECT_NEAR(round.points().back().x - round.points().front().x, 3, 1e-9);
    EXPECT_EQ(round.bounds()->east - round.bounds()->west, 360);
}

TEST(TrackLineTest, TellsWhenTheTrackWasNearest) {
    const double degree = 1 / 360.;
    const KTTrackLine line({{{{0, 0}, at(0s)}, {{1, 0}, at(100s)}}, {{{2, 0}, at(500s)}, {{3, 0}}}});
    const auto nearest = [&](double x, double up, double radius = 0.5) {
        return line.nearest({0.5 + x * degree, 0.5 - up * degree}, radius * degree, 3);
    };
    auto place = nearest(0.25, 0.1);
    ASSERT_TRUE(place);
    EXPECT_EQ(place->date, at(25s));
    EXPECT_FALSE(place->isInGap);
    EXPECT_NEAR(place->distance, 0.1 * degree, 1e-12);
    place = nearest(1.5, 0);
    EXPECT_TRUE(place && place->isInGap && place->date == at(300s));
    place = nearest(2.5, 0);
    EXPECT_TRUE(place && !place->isInGap && !place->date);
    place = nearest(-0.3, 0);
    EXPECT_TRUE(place && place->date == at(0s));
    EXPECT_FALSE(nearest(-0.6, 0));
    EXPECT_FALSE(nearest(0.5, 0.6));
    const KTTrackLine single({{{{0, 0}, at(7s)}}});
    EXPECT_EQ(single.nearest({0.5, 0.5}, 1e-6, 10)->date, at(7s));
}

TEST(TrackLineTest, FindsTheSameAsASearchThroughAllPoints) {
    const Points points = walk(5000, 2);
    const KTTrackLine line({points});
    std::mt19937 source(3);
    std::uniform_int_distribution<std::size_t> anyPoint(0, points.size() - 1);
    const double pixel = 1 / (256 * std::exp2(15));
    std::normal_distribution<double> away(0, 4 * pixel);
    for (int i = 0; i < 200; ++i) {
        const KTWorldPoint start = line.points()[anyPoint(source)];
        const KTWorldPoint asked{start.x + away(source), start.y + away(source)};
        double best = 1;
        for (std::size_t k = 0; k + 1 < points.size(); ++k)
            best = std::min(best, distanceToLine(asked, line.points()[k], line.points()[k + 1]));
        const auto found = line.nearest(asked, 8 * pixel, 15);
        ASSERT_TRUE(found || best > 7 * pixel); // a level may stray by a pixel
        if (found) {
            EXPECT_NEAR(found->distance, best, 2 * pixel);
        }
    }
}

} // namespace
