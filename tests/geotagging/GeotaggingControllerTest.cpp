#include "geotagging/KTAppTrackPickerController.h"
#include "geotagging/KTGeotaggingConsoleViewController.h"
#include "geotagging/KTGeotaggingController.h"
#include "platform/cartography/KTMapController.h"
#include "tests/geotagging/GeotaggingWorld.h"

#include <gtest/gtest.h>
#include <numbers>

namespace {

/// A world with a map, a track library's window and the geotagging controller.
struct MapWorld : GeotaggingWorld {
    MapWorld() {
        picker.setPhotoManager(&manager);
        picker.setMapController(&map);
        picker.setup();
        map.setViewSize(800, 600, 1);
        geotagging.setMapController(&map);
        geotagging.setup();
    }
    ~MapWorld() { geotagging.tearDown(); }

    bool waitForStatus(unsigned status) {
        return runEventLoopUntil([&] { return geotagging.geotaggingModeStatus() == status; });
    }
    bool waitForPoints(std::size_t count) {
        return runEventLoopUntil([&] { return geotagging.activeLinkablePoints().size() == count; });
    }
    bool waitForPosition(const Photo& photo, const char* latitude, const char* longitude) {
        const auto north = KTDecimal::fromText(latitude), east = KTDecimal::fromText(longitude);
        return runEventLoopUntil([&] {
            return !batches.batchSaveInProgress() && photo->decimalForKey("latitude") == north &&
                   photo->decimalForKey("longitude") == east;
        });
    }

    KTMapController map;
    KTAppTrackPickerController picker{tracks};
    KTGeotaggingController geotagging{controller, picker, batches};
};

std::vector<std::size_t> carried(const KTMenu& menu) {
    std::vector<std::size_t> enabled;
    for (const KTMenuItem& item : menu)
        enabled.push_back(item.isEnabled);
    return enabled;
}

std::string titlesOf(const KTMenu& menu) {
    std::string titles;
    for (const KTMenuItem& item : menu)
        titles += item.title + "|";
    return titles;
}

} // namespace

TEST(GeotaggingControllerTest, StatusFollowsModeTracksAndSelection) {
    MapWorld world;
    EXPECT_EQ(world.geotagging.geotaggingModeStatus(), 4u);
    const auto first = world.add(10), second = world.add(20);
    world.select({first});
    world.geotagging.setGeotaggingMode(KTGeotaggingModeStandard);
    EXPECT_EQ(world.geotagging.geotaggingModeStatus(), 4u) << "no tracks, whatever is selected";
    world.geotagging.setGeotaggingMode(KTGeotaggingModeManual);
    EXPECT_EQ(world.geotagging.geotaggingModeStatus(), 5u) << "also without tracks";

    world.geotagging.setGeotaggingMode(KTGeotaggingModeBatch);
    world.picker.setSelectedSourceList(world.picker.allWaypoints());
    world.importTrack({0, 60});
    EXPECT_TRUE(world.waitForStatus(1));
    EXPECT_EQ(world.picker.selectedSourceList(), world.picker.nearPhotosAndRecentImports());
    world.select({});
    EXPECT_TRUE(world.waitForStatus(0));
    world.geotagging.setGeotaggingMode(KTGeotaggingModeStandard);
    EXPECT_EQ(world.geotagging.geotaggingModeStatus(), 0u);
    world.select({first});
    EXPECT_TRUE(world.waitForStatus(2));
    world.select({first, second});
    EXPECT_TRUE(world.waitForStatus(3));
    world.geotagging.setGeotaggingMode(7);
    EXPECT_EQ(world.geotagging.geotaggingModeStatus(), 3u) << "an unknown mode leaves it";
    EXPECT_EQ(world.geotagging.lastGeotaggingMode(), unsigned(KTGeotaggingModeStandard));
    EXPECT_TRUE(world.geotagging.activeLinkablePoints().empty());
}

TEST(GeotaggingControllerTest, ShowsThePointsOfTheMode) {
    MapWorld world;
    world.importTrack({0, 60});
    const auto first = world.add(10), second = world.add(50);
    world.select({first, second});
    EXPECT_TRUE(world.waitForPoints(2));
    EXPECT_EQ(world.geotagging.spatialObjects().size(), 2u);
    EXPECT_EQ(world.geotagging.activeLinkablePoints()[0]->objectOwner(), &world.geotagging);
    EXPECT_TRUE(world.geotagging.canZoomToFlags());

    world.select({first});
    EXPECT_TRUE(world.waitForPoints(1));
    const auto proposed = world.geotagging.activeLinkablePoints()[0];
    EXPECT_TRUE(
        runEventLoopUntil([&] { return world.geotagging.geotagger().standardPointArray().size() == 3; }));
    world.geotagging.setGeotaggingMode(KTGeotaggingModeStandard);
    ASSERT_EQ(world.geotagging.activeLinkablePoints().size(), 3u);
    const auto& animations = world.geotagging.currentAnimations();
    ASSERT_EQ(animations.size(), 2u);
    EXPECT_EQ(animations[0].kind, 2u);
    EXPECT_EQ(animations[0].points.size(), 2u);
    EXPECT_EQ(animations[1].change, KTGeotaggingController::Animation::Change::Moved);
    EXPECT_EQ(animations[1].kind, 3u);
    EXPECT_EQ(animations[1].points, KTGeotaggingController::Points{proposed});

    world.geotagging.setShouldShowSpatialObjects(false);
    EXPECT_TRUE(world.geotagging.spatialObjects().empty());
    EXPECT_FALSE(world.geotagging.geotagger().shouldActivelyGeotag());
    world.geotagging.setShouldShowSpatialObjects(true);
    EXPECT_EQ(world.geotagging.spatialObjects().size(), 3u);
    EXPECT_EQ(world.geotagging.currentAnimations().at(0).change,
              KTGeotaggingController::Animation::Change::Added);

    world.geotagging.setGeotaggingMode(KTGeotaggingModeManual);
    EXPECT_TRUE(world.geotagging.activeLinkablePoints().empty());
    EXPECT_EQ(proposed->objectOwner(), nullptr);
    EXPECT_FALSE(world.geotagging.canRotateFlags());
}

TEST(GeotaggingControllerTest, TheMenuOfTheMapActsOnThePhotosItWasMadeFor) {
    MapWorld world;
    const auto plain = world.add(10), tagged = world.add(20);
    tagged->setValueForKey("latitude", KTDecimal::fromInteger(1));
    tagged->setValueForKey("longitude", KTDecimal::fromInteger(2));
    EXPECT_EQ(carried(world.geotagging.mapViewWasRightClickedAtLocation({2, 5})),
              (std::vector<std::size_t>{0, 0, 0}));
    world.select({plain});
    EXPECT_EQ(carried(world.geotagging.mapViewWasRightClickedAtLocation({2, 5})),
              (std::vector<std::size_t>{1, 0, 0}));
    world.select({plain, tagged});
    const KTMenu menu = world.geotagging.mapViewWasRightClickedAtLocation({2, 5});
    EXPECT_EQ(titlesOf(menu), "Geotag to point|Set image direction|Set image location shown|");
    world.geotagging.mapViewWasRightClickedAtLocation({99, 9}); // another click while it is open
    world.select({});

    menu[1].action();
    EXPECT_EQ(tagged->decimalForKey("imageDirection"), KTDecimal()) << "due north";
    EXPECT_FALSE(plain->decimalForKey("imageDirection"));
    world.queue->drain();
    EXPECT_EQ(world.undo->undoActionName(), "Set image direction");
    menu[2].action();
    EXPECT_TRUE(runEventLoopUntil([&] { return tagged->decimalForKey("latitudeShown").has_value(); }));
    EXPECT_EQ(tagged->decimalForKey("latitudeShown"), KTDecimal::fromInteger(5));
    EXPECT_FALSE(plain->decimalForKey("latitudeShown"));

    world.manager.removePhotos({tagged});
    menu[0].action();
    EXPECT_TRUE(world.waitForPosition(plain, "5", "2"));
    EXPECT_EQ(tagged->decimalForKey("latitude"), KTDecimal::fromInteger(1)) << "not loaded any more";
    EXPECT_EQ(world.geotagging.currentAnimations().at(0).place, (KTMapPoint{2, 5}));

    world.geotagging.geotagPhotosDraggedToLocation({plain}, {-3.25, 4.5});
    EXPECT_TRUE(world.waitForPosition(plain, "4.5", "-3.25"));
    EXPECT_TRUE(runEventLoopUntil([&] { return world.undo->undoActionName() == "Geotag Photos"; }));
    world.undo->undo();
    EXPECT_TRUE(world.waitForPosition(plain, "5", "2"));
}

TEST(GeotaggingControllerTest, FlagsTurnBetweenTwoPositions) {
    MapWorld world;
    Announcements redraws(world.map, "needsDisplay");
    const std::pair<double, double> turns[] = {
        {0, std::numbers::pi / 2}, {0.8, 0}, {std::numbers::pi / 4, std::numbers::pi / 2}};
    for (const auto& [from, to] : turns) {
        world.geotagging.setFlagRotation(from);
        world.geotagging.toggleFlagRotation();
        EXPECT_EQ(world.geotagging.flagRotation(), to);
    }
    EXPECT_EQ(redraws.count(), 6);
}

TEST(GeotaggingControllerTest, TheConsoleShowsOnePanelAtATime) {
    MapWorld world;
    KTGeotaggingConsoleViewController console(world.geotagging);
    console.setup();
    EXPECT_EQ(console.selectionDescription(), "No Loaded Tracks");
    world.geotagging.setGeotaggingMode(KTGeotaggingModeManual);
    ASSERT_NE(console.manualPanel(), nullptr);
    EXPECT_TRUE(world.map.shouldShowCrosshairs());
    EXPECT_EQ(console.selectionDescription(), "");
    world.geotagging.setGeotaggingMode(KTGeotaggingModeBatch);
    EXPECT_EQ(console.manualPanel(), nullptr);
    EXPECT_FALSE(world.map.shouldShowCrosshairs());

    world.importTrack({0, 60});
    EXPECT_TRUE(world.waitForStatus(0));
    EXPECT_EQ(console.selectionDescription(), "No Photos Selected");
    world.select({world.add(10), world.add(20)});
    EXPECT_TRUE(world.waitForStatus(1));
    ASSERT_NE(console.batchPanel(), nullptr);
    EXPECT_TRUE(runEventLoopUntil(
        [&] { return console.batchPanel()->summary().successButtonTitle == "Geotag 2 Photos"; }));
    world.geotagging.setGeotaggingMode(KTGeotaggingModeStandard);
    ASSERT_NE(console.severalPanel(), nullptr);
    console.severalPanel()->toggleGeotaggingMode();
    EXPECT_NE(console.batchPanel(), nullptr);
    world.geotagging.setGeotaggingMode(KTGeotaggingModeManual);
    console.tearDown();
    EXPECT_FALSE(world.map.shouldShowCrosshairs());
}

TEST(GeotaggingControllerTest, TheManualPanelTakesTheCentreOrAWaypoint) {
    MapWorld world;
    world.tracks.importFile(
        world.folder.file("w.gpx", gpx("<wpt lat=\"7.5\" lon=\"8.25\"><ele>12</ele><name>Hut</name></wpt>")));
    world.importTrack({0, 60});
    KTManualGeotaggingViewController panel(world.geotagging);
    panel.setup();
    EXPECT_EQ(panel.saveToMapCenterButtonTitle(), "Geotag 0 Photos");
    EXPECT_FALSE(panel.canSaveToMapCenter());
    const auto photo = world.add(10);
    world.select({photo});
    EXPECT_EQ(panel.saveToMapCenterButtonTitle(), "Geotag 1 Photo");
    EXPECT_TRUE(panel.canSaveToMapCenter());
    EXPECT_FALSE(panel.canSaveToSelectedWaypoint());

    world.map.setLatitudeLongitude({14.5, 46.05}, 10);
    const double scale = world.map.scale();
    EXPECT_NEAR(panel.latitude().toDouble(), 46.05, 1e-9);
    EXPECT_FALSE(panel.setCoordinatesFromText("Ljubljana"));
    EXPECT_TRUE(panel.setCoordinatesFromText("47° 30′ S, 15° 15′ W"));
    panel.setLatitude(KTDecimal::fromInteger(91));
    EXPECT_EQ(panel.latitude(), KTDecimal::fromText("-47.5"));
    panel.gotoLatLon();
    EXPECT_NEAR(world.map.latitude(), -47.5, 1e-9);
    EXPECT_NEAR(world.map.longitude(), -15.25, 1e-9);
    EXPECT_EQ(world.map.scale(), scale);
    panel.saveToMapCenter();
    EXPECT_TRUE(
        runEventLoopUntil([&] { return !world.batches.batchSaveInProgress() && photo->isGeotagged(); }));
    EXPECT_NEAR(photo->decimalForKey("longitude")->toDouble(), -15.25, 1e-9);

    panel.showWaypoints();
    EXPECT_TRUE(world.picker.isWindowVisible());
    EXPECT_EQ(world.picker.selectedSourceList(), world.picker.allWaypoints());
    auto& list = world.picker.trackSourceList();
    EXPECT_TRUE(runEventLoopUntil([&] {
        return list.tracksAndWaypoints()->size() == 1 &&
               list.tracksAndWaypoints()->front().waypoint() != nullptr;
    }));
    list.setSelectedIndexes({0});
    EXPECT_TRUE(panel.canSaveToSelectedWaypoint());
    panel.saveToSelectedWaypoint();
    EXPECT_TRUE(world.waitForPosition(photo, "7.5", "8.25"));
    EXPECT_EQ(photo->decimalForKey("altitude"), KTDecimal::fromInteger(12));

    world.picker.setSelectedSourceList(world.picker.sourceLists().front());
    EXPECT_TRUE(runEventLoopUntil([&] { return list.tracksAndWaypoints()->size() == 2; }));
    list.setSelectedTracksAndWaypoints({list.tracksAndWaypoints()->at(1), list.tracksAndWaypoints()->at(0)});
    EXPECT_FALSE(panel.canSaveToSelectedWaypoint()) << "the last one is a track";
    panel.saveToSelectedWaypoint();
    EXPECT_FALSE(world.batches.batchSaveInProgress());
}

TEST(GeotaggingControllerTest, GoesOnToTheNextPhotoWithoutLocation) {
    MapWorld world;
    const KTPhotoManager::Photos photos = {world.add(1), world.add(2), world.add(3), world.add(4)};
    photos[2]->setValueForKey("latitude", KTDecimal::fromInteger(1));
    photos[2]->setValueForKey("longitude", KTDecimal::fromInteger(2));
    EXPECT_TRUE(world.geotagging.selectNextPhotoWithoutLocation());
    EXPECT_EQ(world.manager.selectedPhotoIndexes(), (std::vector<std::size_t>{0}));
    world.select({photos[1]});
    EXPECT_TRUE(world.geotagging.selectNextPhotoWithoutLocation());
    EXPECT_EQ(world.manager.selectedPhotoIndexes(), (std::vector<std::size_t>{3}));
    EXPECT_TRUE(world.geotagging.selectNextPhotoWithoutLocation());
    EXPECT_EQ(world.manager.selectedPhotoIndexes(), (std::vector<std::size_t>{0})) << "from the top again";
    world.select({photos[0], photos[1], photos[3]});
    EXPECT_FALSE(world.geotagging.selectNextPhotoWithoutLocation());
}
