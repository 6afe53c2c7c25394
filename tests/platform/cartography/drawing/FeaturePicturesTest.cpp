#include "FakeFeatures.h"
#include "GoldenPicture.h"
#include "platform/cartography/drawing/KTMapPicture.h"
#include "platform/cartography/drawing/features/KTLinkablePointLayer.h"
#include "platform/cartography/drawing/features/KTPhotoLayers.h"
#include "platform/cartography/drawing/tracks/KTTrackLayer.h"

#include <QPainter>
#include <random>

namespace {

using namespace std::chrono_literals;

/// A map without lines, so that nothing but the features is compared.
struct PlainGround : KTMapLayer, KTMapDrawing {
    PlainGround() : KTMapLayer(Place::BaseMap) {}
    std::shared_ptr<const KTMapDrawing> drawing(const KTMapViewState&) override {
        return {std::shared_ptr<void>(), this};
    }
    void draw(QPainter& painter, const KTMapViewState& state, const KTMapLook& look,
              const std::atomic<bool>&) const override {
        painter.fillRect(QRectF(0, 0, state.width(), state.height()),
                         look.isDark ? QColor(0x20, 0x26, 0x2c) : QColor(0xf3, 0xf0, 0xe8));
    }
};

class FeaturePicturesTest : public testing::Test {
protected:
    QImage picture(const KTMapViewState& state, bool isDark) {
        std::vector<KTMapLayer*> layers = {&ground, &tracks, &flagLayer.layer()};
        for (KTMapLayer* layer : photoLayers.layers())
            layers.push_back(layer);
        return KTMapPicture(layers, state, {.isDark = isDark});
    }
    static KTTrackPosition at(double x, double y, std::chrono::seconds time) {
        return {{x, y}, KTInstantFromMilliseconds(1'600'000'000'000) + time};
    }
    void addTrack(std::vector<std::vector<KTTrackPosition>> segments) {
        shown.push_back({std::int64_t(shown.size()), "track", std::make_shared<KTTrackLine>(segments)});
        tracks.setTracks(shown);
    }
    void addFlag(double x, double y, unsigned type) {
        flags.add(x, y, {.isProvisional = true, .pointType = type})->drawnAs = FakeFeature::flagStyle();
    }

    FakeFeatureController photos, flags;
    PlainGround ground;
    KTTrackLayer tracks;
    KTPhotoLayers photoLayers{photos};
    KTLinkablePointLayer flagLayer{flags};
    std::vector<KTMapTrack> shown;
};

TEST_F(FeaturePicturesTest, ClustersStacksAndSelection) {
    std::mt19937 source(1);
    std::normal_distribution<double> nearby(0, 0.02);
    for (const auto& [x, count] : {std::pair(7.2, 7), {7.7, 60}, {8.2, 1200}})
        for (int i = 0; i < count; ++i)
            photos.add(x + nearby(source), 47 + nearby(source));
    for (int i = 0; i < 12; ++i)
        photos.add(7.45, 47.2);
    photos.add(7.1, 47.3);
    photos.add(7.2, 47.3, {.imageDirection = 200});
    photos.add(7.3, 47.3, {.imageDirection = 60, .isProvisional = true});
    photos.add(7.75, 47.3, {.imageDirection = 300, .placeShown = KTMapPoint{8.1, 47.25}});
    photos.select({3, 1279, photos.features.size() - 1}); // of the small cluster, of the stack, the last one
    const KTMapViewState state({7.7, 47.12}, 9, 560, 260);
    EXPECT_TRUE(looksLikeGolden(picture(state, false), "clusters"));
    EXPECT_TRUE(looksLikeGolden(picture(state, true), "clusters-dark"));
}

TEST_F(FeaturePicturesTest, GapsAndFlags) {
    addTrack({{at(7.50, 47.50, 0s), at(7.53, 47.52, 60s), at(7.56, 47.50, 120s)},
              {at(7.60, 47.50, 400s), at(7.63, 47.52, 460s), at(7.66, 47.49, 1400s)}});
    addTrack({{at(7.50, 47.49, 0s), at(7.66, 47.515, 200s)}});
    addFlag(7.56, 47.50, 1);
    addFlag(7.60, 47.50, 2);
    addFlag(7.58, 47.50, 3);
    addFlag(7.63, 47.49, 0);
    const KTMapViewState state({7.58, 47.507}, 12, 560, 200);
    EXPECT_TRUE(looksLikeGolden(picture(state, false), "gaps"));
    flagLayer.setFlagRotation(1.5707963267948966);
    EXPECT_TRUE(looksLikeGolden(picture(state, true), "gaps-dark"));
}

TEST_F(FeaturePicturesTest, TheDateLine) {
    addTrack({{at(177.4, -18, 0s), at(179.5, -16.8, 60s), at(-179.2, -17.4, 120s)},
              {at(-178.5, -17.5, 1000s), at(-178.2, -18, 1060s)}});
    photos.add(178.4, -17.6, {.imageDirection = 80, .placeShown = KTMapPoint{-178.9, -16.6}});
    for (int i = 0; i < 9; ++i)
        photos.add(i % 2 ? 179.98 : -179.98, -17.9);
    photos.add(-179.5, -16.6);
    photos.select({0});
    const KTMapViewState state({180, -17.3}, 7, 560, 260);
    EXPECT_TRUE(looksLikeGolden(picture(state, false), "date-line"));
    EXPECT_TRUE(
        looksLikeGolden(picture(KTMapViewState({-179.9, -17.3}, 1, 700, 260), false), "date-line-world"));
}

} // namespace
