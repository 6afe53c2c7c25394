#include "platform/cartography/drawing/features/KTPhotoLayers.h"

#include "FakeFeatures.h"
#include "platform/cartography/drawing/features/KTLinkablePointLayer.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>
#include <numbers>

namespace {

using Kind = KTPhotoLayers::Mark::Kind;
using Objects = KTSpatialObjectController::Objects;

class PhotoLayersTest : public testing::Test {
protected:
    static KTMapViewState view(KTMapPoint centre, double zoom, double width = 400, double height = 300) {
        return {centre, zoom, width, height};
    }
    /// The marks as kind, number of photos and number of selected ones.
    std::string marks(const KTMapViewState& state) {
        std::string text;
        for (const auto& mark : layers.visibleMarks(state)) {
            text += mark.kind == Kind::Photo ? "p" : mark.kind == Kind::Stack ? "s" : "c";
            text += std::to_string(mark.numbers.size()) + "/" + std::to_string(mark.selected) + " ";
        }
        return text;
    }
    Objects objectsAt(KTMapPoint position, const KTMapViewState& state) {
        const auto mark = layers.hitTest(state.viewPoint(position), state);
        return mark ? layers.objectsOf(*mark) : Objects();
    }
    QImage drawn(const KTMapViewState& state) {
        QImage image(int(state.width()), int(state.height()), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        for (KTMapLayer* layer : layers.layers())
            if (const auto drawing = layer->drawing(state)) {
                QPainter painter(&image);
                painter.setRenderHint(QPainter::Antialiasing);
                drawing->draw(painter, state, {}, notCancelled);
            }
        return image;
    }
    static bool isPainted(const QImage& image, double x, double y) {
        return image.pixelColor(int(x), int(y)).saturation() > 40;
    }

    const std::atomic<bool> notCancelled = false;
    FakeFeatureController photos;
    KTPhotoLayers layers{photos};
};

TEST_F(PhotoLayersTest, ShowsPhotosClustersAndStacks) {
    photos.add(7.5, 47.5);
    photos.add(8.5, 47.5);
    photos.add(8.5, 47.5);
    photos.add(9.5, 47.5);
    photos.add(9.501, 47.5);
    photos.add(9.502, 47.501);
    photos.features.push_back(std::make_shared<FakeFeature>(0, 0)); // without place
    photos.features.back()->place = std::make_shared<KTGeometry>();
    layers.source().setNeedsSnapshot();
    EXPECT_EQ(marks(view({8.5, 47.5}, 7)), "c3/0 s2/0 p1/0 ");
    EXPECT_EQ(marks(view({8.5, 47.5}, 1)), "c6/0 ");
    EXPECT_EQ(marks(view({9.5, 47.5}, 19)), "p1/0 ");
    EXPECT_EQ(marks(view({8.5, 47.5}, 20)), "s2/0 "); // no scale parts these

    const auto state = view({8.5, 47.5}, 7);
    EXPECT_EQ(objectsAt({7.5, 47.5}, state), (Objects{photos.features[0]}));
    EXPECT_EQ(objectsAt({8.5, 47.5}, state), (Objects{photos.features[1], photos.features[2]}));
    EXPECT_EQ(objectsAt({9.5, 47.5}, state).size(), 3u);
    EXPECT_TRUE(objectsAt({8, 47.5}, state).empty());
    const auto cluster = layers.hitTest(state.viewPoint(KTMapPoint{9.5, 47.5}), state);
    EXPECT_EQ(layers.boundsOf(*cluster), (KTMapBounds{9.5, 47.5, 9.502, 47.501}));
}

TEST_F(PhotoLayersTest, SelectedPhotosAreOnTopAndHideNoOthers) {
    const auto below = photos.add(8.5, 47.5), above = photos.add(8.5 + 0.12, 47.5);
    for (int i = 0; i < 20; ++i)
        photos.add(12 + i * 0.01, 47.5);
    const auto state = view({10, 47.5}, 8, 1200, 300);
    const std::string before = marks(state);
    EXPECT_EQ(before, "c20/0 c2/0 ");
    photos.select({1});
    EXPECT_EQ(marks(state), "c20/0 c2/1 p1/1 ");
    EXPECT_EQ(objectsAt({8.62, 47.5}, state), (Objects{above}));
    EXPECT_EQ(objectsAt({8.5, 47.5}, state), (Objects{below, above}));
    photos.select({0}); // stands where its cluster's sign is
    EXPECT_EQ(marks(state), "c20/0 c2/1 ");
    KTSpatialObjectController::Indexes all(22);
    for (std::size_t i = 0; i < all.size(); ++i)
        all[i] = i;
    photos.select(all);
    EXPECT_EQ(marks(state).substr(0, 7), "c20/20 ");
    photos.select({});
    EXPECT_EQ(marks(state), before);
}

TEST_F(PhotoLayersTest, RubberBandsTakePlacesAcrossTheDateLine) {
    const auto west = photos.add(179.9, -17), east = photos.add(-179.9, -17);
    photos.add(170, -17);
    const auto state = view({180, -17}, 6);
    const auto inside = [&](double left, double top, double right, double bottom) {
        return layers.objectsIn({left, top}, {right, bottom}, state);
    };
    EXPECT_EQ(inside(150, 100, 250, 200), (Objects{west, east}));
    EXPECT_EQ(inside(250, 200, 200, 100), (Objects{east}));
    EXPECT_TRUE(inside(0, 0, 150, 300).empty());
    EXPECT_EQ(marks(state), "c2/0 ");
    EXPECT_EQ(marks(view({-180, -17}, 10)), "p1/0 p1/0 ");
    EXPECT_EQ(objectsAt({179.9, -17}, view({-179.95, -17}, 10)), (Objects{west}));
    EXPECT_EQ(marks(view({0, 0}, 0, 600, 256)), "c3/0 c3/0 "); // the world repeats itself
}

TEST_F(PhotoLayersTest, FollowsItsController) {
    const auto state = view({8, 47}, 10);
    EXPECT_EQ(marks(state), "");
    int changes = 0;
    layers.layers()[1]->setChangeHandler([&] { ++changes; });
    const auto photo = photos.add(8, 47);
    EXPECT_EQ(changes, 1);
    const auto first = layers.layers()[1]->drawing(state);
    EXPECT_EQ(layers.layers()[1]->drawing(state), first);
    photo->place = std::make_shared<KTPointGeometry>(KTMapPoint{8.1, 47});
    layers.source().setNeedsSnapshot();
    EXPECT_EQ(changes, 2);
    EXPECT_NE(layers.layers()[1]->drawing(state), first);
    EXPECT_EQ(objectsAt({8.1, 47}, state), (Objects{photo}));
    EXPECT_EQ(layers.layers()[2]->drawing(state), nullptr); // nothing is selected
}

TEST_F(PhotoLayersTest, DrawsTheFiveRules) {
    photos.add(8, 47, {.imageDirection = 90, .fieldOfView = 60, .placeShown = KTMapPoint{8, 47.002}});
    const auto near = view({8, 47}, 15), far = view({8, 47}, 7);
    ASSERT_LT(near.scaleDenominator(), 1e6);
    ASSERT_GT(far.scaleDenominator(), 1e6);
    const double x = 200, y = 150;
    QImage image = drawn(near);
    EXPECT_TRUE(isPainted(image, x - 4, y));  // ball
    EXPECT_TRUE(isPainted(image, x + 10, y)); // finger to the east
    EXPECT_FALSE(isPainted(image, x - 10, y));
    EXPECT_FALSE(isPainted(image, x + 50, y)); // no wedge
    photos.select({0});
    image = drawn(near);
    EXPECT_TRUE(isPainted(image, x + 50, y)); // wedge
    EXPECT_FALSE(isPainted(image, x + 20, y + 40));
    EXPECT_EQ(image.pixelColor(int(x), int(y)).red() > 200, true); // star
    int dashes = 0;
    for (int up = 20; up < 90; ++up)
        dashes += isPainted(image, x, y - up);
    EXPECT_GT(dashes, 20); // line to the place shown
    EXPECT_LT(dashes, 70);
    image = drawn(far);
    EXPECT_FALSE(isPainted(image, x + 50, y));
    EXPECT_TRUE(isPainted(image, x + 10, y));
}

TEST_F(PhotoLayersTest, DrawsDotsAtTheTruePlaces) {
    photos.add(8, 47);
    photos.add(8.03, 47);
    photos.add(8.015, 47.012);
    const auto state = view({8.015, 47.005}, 10);
    ASSERT_EQ(marks(state), "c3/0 ");
    const QImage image = drawn(state);
    for (const auto& photo : photos.features) {
        const KTViewPoint place = state.viewPoint(photo->place->points().front());
        bool isMarked = false; // the number on the sign is white
        for (int x = -3; x <= 3; ++x)
            isMarked |= isPainted(image, place.x + x, place.y);
        EXPECT_TRUE(isMarked) << place.x << " " << place.y;
    }
}

TEST_F(PhotoLayersTest, DrawsGeodesicsAcrossTheDateLineAndPastAPole) {
    photos.add(170, 50, {.placeShown = KTMapPoint{-170, 50}});
    photos.select({0});
    const auto state = view({180, 50}, 3, 600, 400);
    QImage image = drawn(state);
    int painted = 0, farAway = 0;
    for (int x = 0; x < 600; ++x)
        for (int y = 0; y < 400; ++y)
            (std::abs(x - 300) < 90 ? painted : farAway) += isPainted(image, x, y);
    EXPECT_GT(painted, 100);
    EXPECT_EQ(farAway, 0);

    photos.features[0]->place = std::make_shared<KTPointGeometry>(KTMapPoint{0, 80});
    photos.features[0]->values.placeShown = KTMapPoint{180, 80};
    layers.source().setNeedsSnapshot();
    image = drawn(view({90, 80}, 2, 600, 400));
    for (int x = 150; x < 450; ++x) // between the two meridians that go north there is nothing
        for (int y = 0; y < 400; ++y)
            ASSERT_FALSE(isPainted(image, x, y)) << x << " " << y;
}

TEST(LinkablePointLayerTest, FindsFlagsAsTheyAreTurned) {
    FakeFeatureController points;
    for (const unsigned type : {1u, 2u, 3u})
        points.add(8 + type * 0.01, 47, {.pointType = type})->drawnAs = FakeFeature::flagStyle();
    KTLinkablePointLayer layer(points);
    const KTMapViewState state({8.02, 47}, 12, 400, 300);
    const auto at = [&](std::size_t index, double x, double y) {
        const KTViewPoint foot = state.viewPoint(points.features[index]->place->points().front());
        const auto hit = layer.hitTest({foot.x + x, foot.y + y}, state);
        return hit ? hit->object : nullptr;
    };
    EXPECT_EQ(at(0, 0, 0), points.features[0]);
    EXPECT_EQ(at(0, -9, -20), points.features[0]);
    EXPECT_EQ(at(1, 9, -20), points.features[1]);
    EXPECT_EQ(at(2, 0, -20), points.features[2]);
    EXPECT_EQ(at(0, 0, 12), nullptr);
    layer.setFlagRotation(std::numbers::pi / 2);
    EXPECT_EQ(at(2, 20, 0), points.features[2]);
    EXPECT_EQ(at(2, 0, -20), nullptr);
    EXPECT_EQ(at(0, 20, -9), points.features[0]);
    layer.setFlagRotation(NAN);
    EXPECT_EQ(layer.flagRotation(), 0);
}

} // namespace
