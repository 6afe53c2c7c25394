#include "geotagging/KTAppTrackPickerController.h"
#include "platform/cartography/KTMapController.h"
#include "tests/geotagging/GeotaggingWorld.h"

#include <gtest/gtest.h>

namespace {

struct PickerWorld : GeotaggingWorld {
    PickerWorld() {
        map.setViewSize(800, 600, 1);
        map.setLatitudeLongitude({100, -30}, 4);
        picker.setPhotoManager(&manager);
        picker.setMapController(&map);
        picker.setup();
    }
    void import(const KTTrackManager::Paths& given) {
        bool hasEnded = false;
        tracks.importFilesAtPaths(given, [&](const auto&) { hasEnded = true; });
        EXPECT_TRUE(runEventLoopUntil([&] { return hasEnded; }));
    }
    std::filesystem::path trackAt(int seconds, const char* latitude, const char* longitude) {
        return folder.file("t" + std::to_string(++files) + ".gpx",
                           gpxTrack(trackPoint(latitude, longitude, KTISO8601Text(at(seconds)))));
    }

    KTMapController map;
    KTAppTrackPickerController picker{tracks};
};

constexpr int kDay = 86400;

} // namespace

TEST(TrackPickerTest, HasItsSmartFilesInOrder) {
    PickerWorld world;
    std::string names;
    for (const auto& file : world.picker.sourceLists())
        names += file->name() + "|";
    EXPECT_EQ(names, "Library|All Waypoints|Recent Imports|Near Photos|Near & Recent|");
    EXPECT_EQ(world.picker.selectedSourceList(), world.picker.nearPhotosAndRecentImports());
    EXPECT_FALSE(world.picker.allWaypoints()->waypointPredicate());
    EXPECT_EQ(world.picker.allWaypoints()->trackPredicate(), KTTrackPredicate{});
}

TEST(TrackPickerTest, NearFilesFollowPhotosAndImports) {
    PickerWorld world;
    world.import({world.trackAt(0, "46", "14"), world.trackAt(10 * kDay, "47", "15")});
    world.import({world.trackAt(30 * kDay, "48", "16")});
    auto& list = world.picker.trackSourceList();
    EXPECT_TRUE(runEventLoopUntil([&] { return list.tracksAndWaypoints()->size() == 1; }))
        << "the last import";
    for (int i = 0; i < 50; ++i)
        world.add(i);
    EXPECT_TRUE(runEventLoopUntil([&] { return list.tracksAndWaypoints()->size() == 2; }));
    const auto near = world.tracks.nearbyPredicatesForDates({world.at(0), world.at(49)});
    EXPECT_TRUE(runEventLoopUntil(
        [&] { return world.picker.nearPhotos()->trackPredicate() == near.trackPredicate; }));
    const KTTrackPredicate recent = world.tracks.recentImportsPredicate();
    EXPECT_EQ(world.picker.nearPhotosAndRecentImports()->trackPredicate(), near.trackPredicate | recent);
    EXPECT_EQ(world.picker.nearPhotosAndRecentImports()->waypointPredicate(),
              near.waypointPredicate | recent);
    world.picker.setSelectedSourceList(world.picker.nearPhotos());
    EXPECT_TRUE(runEventLoopUntil([&] { return list.tracksAndWaypoints()->size() == 1; }));
    world.manager.removePhotos(*world.manager.photos());
    EXPECT_TRUE(runEventLoopUntil([&] { return list.tracksAndWaypoints()->empty(); }));
}

TEST(TrackPickerTest, TheMapGoesToWhatWasImported) {
    PickerWorld world;
    world.picker.setSelectedSourceList(world.picker.allWaypoints());
    GeotaggingWorld::set("defaultAutoZoomRecentTrackImportsStyle", 0);
    const auto file = world.trackAt(0, "46", "14");
    world.import({file});
    EXPECT_EQ(world.picker.selectedSourceList(), world.picker.allWaypoints());
    GeotaggingWorld::set("defaultAutoZoomRecentTrackImportsStyle", 2);
    world.import({file, world.trackAt(5, "46.5", "14.5")});
    EXPECT_EQ(world.picker.selectedSourceList(), world.picker.nearPhotosAndRecentImports());
    EXPECT_TRUE(runEventLoopUntil([&] { return std::abs(world.map.longitude() - 14.25) < 0.01; }));
    const double scale = world.map.scale();
    GeotaggingWorld::set("defaultAutoZoomRecentTrackImportsStyle", 1);
    world.picker.setSelectedSourceList(world.picker.recentImports());
    world.import({world.trackAt(5, "-20", "-60")});
    EXPECT_TRUE(runEventLoopUntil([&] { return std::abs(world.map.longitude() + 60) < 1; }));
    EXPECT_EQ(world.map.scale(), scale) << "revealing keeps the scale";
    EXPECT_EQ(world.picker.selectedSourceList(), world.picker.recentImports());
}
