#include "platform/cartography/KTMapController.h"

#include "platform/cartography/KTPointGeometry.h"
#include "platform/cartography/KTSpatialObject.h"
#include "platform/cartography/KTStyle.h"
#include "platform/defaults/KTUserDefaults.h"

#include <gtest/gtest.h>
#include <set>

namespace {

class Place : public KTSpatialObject {
public:
    explicit Place(std::shared_ptr<const KTGeometry> where) : shape(std::move(where)) {}
    std::string featureName() const override { return {}; }
    std::string featureDescription() const override { return {}; }
    std::string kind() const override { return {}; }
    std::vector<std::string> propertiesByName() const override { return {}; }
    bool allowsInteraction() const override { return false; }
    std::shared_ptr<const KTGeometry> geometry() const override { return shape; }
    std::shared_ptr<const KTStyle> style() const override { return std::make_shared<KTStyle>(); }
    KTSpatialObjectController* objectOwner() const override { return nullptr; }
    void setObjectOwner(KTSpatialObjectController*) override {}

private:
    std::shared_ptr<const KTGeometry> shape;
};

std::shared_ptr<KTSpatialObject> placeAt(double longitude, double latitude) {
    return std::make_shared<Place>(std::make_shared<KTPointGeometry>(KTMapPoint{longitude, latitude}));
}

class MapController : public testing::Test {
protected:
    MapController() { KTUserDefaults::useThrowAwayDomain(); }

    bool shows(const KTMapController& map, KTMapPoint position) {
        const KTViewPoint point = map.viewState().viewPoint(position);
        return point.x >= 0 && point.y >= 0 && point.x <= 800 && point.y <= 600;
    }
};

} // namespace

TEST_F(MapController, announcesWhatChanges) {
    KTMapController map;
    map.setViewSize(800, 600, 1);
    std::multiset<std::string> announced;
    const auto observation = map.observe([&](const KTChange& change) {
        if (!change.isPrior)
            announced.insert(std::string(change.key));
    });
    map.setLatitudeLongitude({8, 47}, 10);
    EXPECT_EQ(announced, (std::multiset<std::string>{"latitude", "latitudeLongitude", "longitude", "scale",
                                                     "viewState"}));
    announced.clear();
    map.setLongitude(9);
    EXPECT_EQ(announced, (std::multiset<std::string>{"latitudeLongitude", "longitude", "viewState"}));
    EXPECT_NEAR(map.latitude(), 47, 1e-9);
    EXPECT_EQ(map.scale(), 10);
    announced.clear();
    map.setViewState(map.viewState());
    map.setShouldShowCrosshairs(false);
    EXPECT_TRUE(announced.empty());
    map.setShouldShowCrosshairs(true);
    map.setNeedsDisplay();
    EXPECT_EQ(announced, (std::multiset<std::string>{"needsDisplay", "shouldShowCrosshairs"}));
}

TEST_F(MapController, fitsAndReveals) {
    KTMapController map;
    map.setViewSize(800, 600, 1);
    map.fitSpatialObjects({});
    map.fitSpatialObjects({std::make_shared<Place>(std::make_shared<KTGeometry>())});
    EXPECT_LT(map.scale(), 3);

    map.fitSpatialObjects({placeAt(177, -18), placeAt(-178, -17)});
    EXPECT_TRUE(shows(map, {177, -18}) && shows(map, {-178, -17}));
    EXPECT_NEAR(map.longitude(), 179.5, 1e-9);
    EXPECT_GT(map.scale(), 7);

    map.fitSpatialObjects({placeAt(8, 47)});
    EXPECT_EQ(map.scale(), KTMapController::kFittingScale);

    const KTMapViewState before = map.viewState();
    map.revealSpatialObjects({placeAt(8.001, 47)}); // is in view
    EXPECT_EQ(map.viewState(), before);
    map.revealSpatialObjects({placeAt(8.5, 47)}); // can be at this scale
    EXPECT_EQ(map.scale(), KTMapController::kFittingScale);
    EXPECT_TRUE(shows(map, {8.5, 47}));
    map.revealSpatialObjects({placeAt(8, 47), placeAt(9, 47)});
    EXPECT_TRUE(shows(map, {8, 47}) && shows(map, {9, 47}));
    // What lies beyond the date line is reached the short way: it is in view already.
    map.setLatitudeLongitude({179.99, 0}, 9);
    const KTMapViewState atTheLine = map.viewState();
    map.revealSpatialObjects({placeAt(-179.99, 0)});
    EXPECT_EQ(map.viewState(), atTheLine);
}

TEST_F(MapController, beginsWhereTheSettingsSay) {
    KTMapController first;
    first.setDefaultLatitudeLongitude({10, 50});
    first.setDefaultScale(6);
    EXPECT_NEAR(KTMapController().latitude(), 50, 1e-9);
    first.setLatitudeLongitude({-30, 20}, 7);
    first.setMapDataSource("Streets");
    first.saveLocation();
    KTMapController second;
    EXPECT_NEAR(second.longitude(), -30, 1e-9);
    EXPECT_EQ(second.scale(), 7);
    EXPECT_EQ(second.mapDataSource(), "Streets");
    KTUserDefaults::standardUserDefaults().setValue("KTMapLaunchesToPreviousLocationDefault", false);
    EXPECT_EQ(KTMapController().scale(), 6);
    EXPECT_EQ(KTMapController().mapDataSource(), "");
}
