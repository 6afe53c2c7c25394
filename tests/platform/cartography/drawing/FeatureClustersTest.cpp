#include "platform/cartography/drawing/features/FeatureClusters.h"

#include "platform/cartography/drawing/features/FeaturePlaces.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numeric>
#include <random>
#include <set>

namespace {

/// Some in towns, some anywhere, some at one place, and a town on the date line.
std::vector<KTWorldPoint> photoPlaces(std::size_t count) {
    std::mt19937 source(5);
    std::uniform_real_distribution<double> anywhere(0, 1);
    std::normal_distribution<double> nearby(0, 0.003);
    std::vector<KTWorldPoint> places;
    while (places.size() < count) {
        const KTWorldPoint town{places.size() % 3 == 0 ? 0 : anywhere(source), anywhere(source)};
        for (int i = 0; i < 40; ++i) {
            double x = town.x + nearby(source);
            x -= std::floor(x);
            places.push_back({x, std::clamp(town.y + nearby(source), 0.0, 1.0)});
        }
        places.push_back(town);
        places.push_back(town);
        places.push_back({anywhere(source), anywhere(source)});
    }
    return places;
}

double distance(KTWorldPoint a, KTWorldPoint b) {
    return std::hypot(std::remainder(a.x - b.x, 1), a.y - b.y);
}

TEST(FeatureClustersTest, PutTogetherWhatIsNearAndNothingElse) {
    const auto places = photoPlaces(1200);
    for (double radius : {0.3, 0.13, 0.02, 0.003, 1e-7}) {
        const FeatureClusters clusters(places, radius);
        std::vector<int> seen(places.size());
        for (const auto& cluster : clusters.clusters()) {
            bool isAtAMember = false, isStack = cluster.count > 1;
            for (const std::uint32_t member : clusters.membersOf(cluster)) {
                ++seen[member];
                EXPECT_LE(distance(places[member], cluster.place), radius);
                isAtAMember |= places[member] == cluster.place;
                isStack &= distance(places[member], cluster.place) < 1e-10;
            }
            EXPECT_TRUE(isAtAMember);
            EXPECT_EQ(cluster.isStack, isStack);
        }
        EXPECT_EQ(std::ranges::count(seen, 1), std::ssize(seen)) << radius;
        for (std::size_t i = 0; i < clusters.clusters().size(); ++i)
            for (std::size_t j = 0; j < i; ++j)
                EXPECT_GT(distance(clusters.clusters()[i].place, clusters.clusters()[j].place), radius);
    }
    EXPECT_TRUE(FeatureClusters({}, 0.1).clusters().empty());
}

TEST(FeatureClustersTest, DoNotDependOnTheOrder) {
    const auto places = photoPlaces(600);
    std::vector<std::size_t> order(places.size());
    std::iota(order.begin(), order.end(), 0u);
    std::ranges::shuffle(order, std::mt19937(6));
    std::vector<KTWorldPoint> shuffled;
    for (const std::size_t index : order)
        shuffled.push_back(places[index]);
    const auto described = [](const FeatureClusters& clusters) {
        std::multiset<std::tuple<double, double, std::uint32_t>> set;
        for (const auto& cluster : clusters.clusters())
            set.emplace(cluster.place.x, cluster.place.y, cluster.count);
        return set;
    };
    for (double radius : {0.1, 0.01})
        EXPECT_EQ(described(FeatureClusters(places, radius)), described(FeatureClusters(shuffled, radius)));
}

TEST(FeaturePlacesTest, FindWhatLiesInARectangleOfAnyTurn) {
    const FeaturePlaces places({{0.99, 0.5}, {0.01, 0.5}, {0.5, 0.5}, {0.99, 0.9}});
    using Indexes = std::vector<std::uint32_t>;
    EXPECT_EQ(places.indexesIn({0.98, 0.4, 1.02, 0.6}), (Indexes{0, 1}));
    EXPECT_EQ(places.indexesIn({-0.02, 0.4, 0.02, 1}), (Indexes{0, 1, 3}));
    EXPECT_EQ(places.indexesIn({2.4, 0, 2.6, 1}), (Indexes{2}));
    EXPECT_EQ(places.indexesIn({-1, 0, 1, 1}), (Indexes{0, 1, 2, 3}));
    EXPECT_EQ(places.indexesIn({0.5, 0.5, 0.5, 0.5}), (Indexes{2}));
}

} // namespace
