#include "app/KTMapAndToolbarViewController.h"
#include "app/WaymarkAppDelegate.h"
#include "collection/KTBatchOperationController.h"
#include "export/KTPhotoExportPluginManager.h"
#include "geotagging/KTGeotaggingController.h"
#include "platform/cartography/KTMapController.h"
#include "tests/app/controllers/AppWorld.h"

namespace {

const std::string kTrack = gpxTrack(trackPoint("46.05", "14.5", "2014-06-01T10:00:00Z"));

struct Photos {
    explicit Photos(AppWorld& world) {
        for (const char* name : {"a.jpg", "b.jpg", "c.jpg"})
            files.push_back(
                makePhoto(world.folder, name, {{"EXIF:DateTimeOriginal", "2014:06:01 10:00:30"}}));
    }
    WaymarkAppController::Paths files;
};

} // namespace

TEST(AppControllerTest, StartsInItsOrderAndMakesAClosedWindowAnew) {
    AppWorld world;
    std::string heard;
    auto observation = world.app.observe([&](const KTChange& change) {
        if (!change.isPrior)
            heard += std::string(change.key) + " ";
    });
    world.start();
    ASSERT_NE(world.app.waymarkWindowController(), nullptr);
    EXPECT_TRUE(world.app.waymarkWindowController()->isWindowVisible());
    EXPECT_EQ(world.manager.undoManager(), world.app.undoManager());
    EXPECT_STREQ(world.app.undoQueue()->label, "com.Brightfold.UndoQueue");
    const auto& layers = world.app.waymarkWindowController()->mapController()->spatialObjectControllers();
    ASSERT_EQ(layers.size(), 2u);
    EXPECT_EQ(layers[0]->name() + layers[1]->name(), "PhotosLinkable Points");
    EXPECT_EQ(world.ui.otherWindows, 2) << "track library and operation log";
    world.app.showWaymarkWindow();
    EXPECT_EQ(world.ui.mainWindows, 1);

    world.app.togglePreferencesWindow();
    world.app.waymarkWindowController()->setWindowVisible(false); // the user closes it
    EXPECT_TRUE(runEventLoopUntil([&] { return world.app.waymarkWindowController() == nullptr; }));
    EXPECT_EQ(world.app.appPreferencesWindowController(), nullptr) << "it knows the window's map";
    EXPECT_EQ(world.ui.mainWindows, 0);
    world.app.showWaymarkWindow();
    EXPECT_EQ(world.ui.mainWindows, 1);
    EXPECT_NE(heard.find("waymarkWindowController appPreferencesWindowController"), std::string::npos)
        << heard;
}

TEST(AppControllerTest, RoutesWhatIsDropped) {
    AppWorld world;
    world.start();
    std::filesystem::create_directories(world.folder / "trip" / "deep" / "x.ktplugin");
    makePhoto(world.folder, "trip/deep/a.jpg");
    makePhoto(world.folder, "trip/deep/x.ktplugin/inside.png");
    world.folder.file("trip/deep/t.GPX", kTrack);
    world.folder.file("trip/notes.txt", "nothing");
    world.app.importFilesAtPaths({world.folder / "trip" / ""});
    EXPECT_TRUE(world.waitForPhotos(2));
    EXPECT_TRUE(world.waitForTracks(1));
    EXPECT_TRUE(world.app.trackPickerController()->isWindowVisible());
    EXPECT_TRUE(world.ui.asked.alerts.empty());

    makePhoto(world.folder, "beside.jpg");
    const auto sidecar = world.folder.file("beside.xmp", "<x:xmpmeta xmlns:x='adobe:ns:meta/'/>");
    world.app.importFilesFromPasteboard({.files = {sidecar}});
    EXPECT_TRUE(world.waitForPhotos(3)) << "the image beside a sidecar";

    std::filesystem::rename(makePhoto(world.folder, "raw.jpg", {{"XMP:Title", "raw"}}),
                            world.folder / "raw.crw");
    world.app.importFilesAtPaths({world.folder / "raw.crw"});
    EXPECT_TRUE(world.waitForPhotos(4));
    EXPECT_TRUE(std::filesystem::exists(world.folder / "raw.xmp")) << "such a file cannot hold the edits";

    world.app.importFilesAtPaths({world.folder.file("broken.gpx", "<gpx>")});
    EXPECT_TRUE(runEventLoopUntil([&] { return !world.ui.asked.alerts.empty(); }));
    EXPECT_NE(world.ui.asked.alerts[0].informativeText.find("broken.gpx"), std::string::npos);

    for (const char* type : {"com.apple.MediaLibrary.PboardType.MediaObjectIdentifiersPlist",
                             "com.apple.MediaLibrary.PBoardType.MediaObjectIdentifiersPlist"}) {
        KTPasteboard items{.propertyLists = {{type, KTValue::Dictionary{}}},
                           .files = {world.folder / "b.jpg"}};
        world.app.importFilesFromPasteboard(items);
    }
    EXPECT_TRUE(runEventLoopUntil([&] { return !world.manager.importInProgress(); }));
}

TEST(AppControllerTest, SaysBeforeADropWhatItWouldDo) {
    AppWorld world;
    std::filesystem::create_directory(world.folder / "folder");
    const std::filesystem::path folder = world.folder / "folder";
    using Paths = WaymarkAppController::Paths;
    const std::pair<Paths, const char*> drops[] = {
        {{}, ""},
        {{"a.txt", "b.ktplugin"}, ""},
        {{"a.JPG"}, "Add 1 photo"},
        {{"a.jpg", "b.xmp", "c.nef", "t.gpx"}, "Add 3 photos and 1 track"},
        {{"a.txt", "t.gpx", "u.FIT", folder}, "Add 2 tracks and 1 folder"},
        {{"a.jpg", "t.gpx", folder, folder}, "Add 1 photo, 1 track and 2 folders"},
    };
    for (const auto& [paths, text] : drops) {
        EXPECT_EQ(world.app.descriptionOfDrop(paths), text);
        EXPECT_EQ(world.app.validateFilesAtPaths(paths), *text != 0);
    }
}

TEST(AppControllerTest, InstallsPluginsThatAreOpenedAndDoesNotLookIntoThem) {
    AppWorld world;
    world.start();
    const auto bundle = world.folder / "new.ktplugin";
    std::filesystem::create_directories(bundle);
    makePhoto(world.folder, "new.ktplugin/inside.jpg");
    const auto photo = makePhoto(world.folder, "outside.jpg");
    world.app.importFilesFromOpenFilesAppDelegateAtPaths({bundle, photo});
    EXPECT_TRUE(world.waitForPhotos(1));
    EXPECT_EQ(world.manager.photos()->front()->filename(), "outside.jpg");
    EXPECT_TRUE(std::filesystem::exists(world.folder / "data/waymark/PlugIns/new.ktplugin/inside.jpg"));
}

TEST(AppControllerTest, AsksBeforeUnsavedPhotosAreLost) {
    AppWorld world;
    world.start();
    EXPECT_EQ(world.app.applicationShouldTerminate(), WaymarkAppController::TerminateReply::Now);
    world.app.importFilesAtPaths(Photos(world).files);
    ASSERT_TRUE(world.waitForPhotos(3));
    for (const auto& photo : *world.manager.photos())
        photo->setValueForKey("title", "new");
    EXPECT_EQ(world.app.applicationShouldTerminate(), WaymarkAppController::TerminateReply::Later);
    world.app.quit(); // a second wish while the question stands
    ASSERT_EQ(world.ui.asked.alerts.size(), 1u);
    const KTAlert& alert = world.ui.asked.alerts[0];
    EXPECT_EQ(alert.message, "You have 3 photos with unsaved changes. Are you sure you want to quit?");
    EXPECT_EQ(alert.informativeText, "If you don't save, all changes will be lost.");
    EXPECT_EQ(alert.buttons, (std::vector<std::string>{"Discard Changes & Quit", "Cancel"}));
    alert.completion(1);
    EXPECT_EQ(world.ui.terminations, 0);
    EXPECT_EQ(world.manager.unsavedPhotos()->size(), 3u);
    world.app.quit();
    ASSERT_EQ(world.ui.asked.alerts.size(), 2u);
    world.ui.asked.alerts[1].completion(0);
    EXPECT_EQ(world.ui.terminations, 1);
}

TEST(AppControllerTest, EndsInTheMiddleOfEverything) {
    auto world = std::make_unique<AppWorld>();
    world->start();
    WaymarkAppController::Paths files;
    for (int i = 0; i < 40; ++i)
        files.push_back(makePhoto(world->folder, "p" + std::to_string(i) + ".jpg"));
    world->app.importFilesAtPaths(files);
    EXPECT_TRUE(runEventLoopUntil([&] { return world->manager.numberOfPhotos() > 2; }));
    world->app.selectAllPhotos();
    world->app.waymarkWindowController()->mapController()->setLatitudeLongitude({1, 2});
    world->app.geotagToMapCenter();
    world->app.importFilesAtPaths({world->folder.file("t.gpx", kTrack)});
    world->app.applicationWillTerminate();
    world.reset();
}

TEST(AppControllerTest, OpensAndClosesTheOtherWindows) {
    AppWorld world;
    world.start();
    world.app.toggleTagDetailsWindow();
    world.app.togglePreferencesWindow();
    ASSERT_NE(world.app.tagDetailsWindowController(), nullptr);
    EXPECT_TRUE(world.app.tagDetailsWindowController()->isWindowVisible());
    EXPECT_EQ(world.ui.otherWindows, 4);
    world.app.toggleTagDetailsWindow();
    world.app.appPreferencesWindowController()->setWindowVisible(false); // by the user
    EXPECT_TRUE(runEventLoopUntil([&] {
        return world.app.tagDetailsWindowController() == nullptr &&
               world.app.appPreferencesWindowController() == nullptr;
    }));
    EXPECT_EQ(world.ui.otherWindows, 2);
    world.app.togglePhotoOperationWindow();
    EXPECT_TRUE(world.app.photoOperationWindowController()->isWindowVisible());
    world.app.togglePhotoOperationWindow();
    EXPECT_FALSE(world.app.photoOperationWindowController()->isWindowVisible());
}

TEST(AppControllerTest, CopiesAndPastesCoordinatesAndGoesFromPhotoToPhoto) {
    AppWorld world;
    world.start();
    world.app.importFilesAtPaths(Photos(world).files);
    ASSERT_TRUE(world.waitForPhotos(3));
    const auto photos = world.manager.photos();
    auto latitude = [&](std::size_t index) { return photos->at(index)->decimalForKey("latitude"); };
    ASSERT_TRUE(runEventLoopUntil([&] { return world.manager.selectedPhotoIndexes().size() == 3; }))
        << "whoever begins finds the photos selected";
    world.manager.setSelectedPhotoIndexes({0});
    world.ui.clipboard = "somewhere";
    world.app.pasteCoordinates();
    ASSERT_EQ(world.ui.asked.alerts.size(), 1u);
    world.ui.clipboard = "46° 30′ N, 14° 15′ E";
    world.app.pasteCoordinates();
    EXPECT_TRUE(runEventLoopUntil([&] { return latitude(0) == KTDecimal::fromText("46.5"); }));
    world.app.copyCoordinates();
    EXPECT_EQ(world.ui.clipboard, "46.5, 14.25");

    world.app.selectNextPhoto();
    world.app.waymarkWindowController()->mapController()->setLatitudeLongitude({14, -33}, 6);
    world.app.geotagToMapCenterAndGoOn();
    EXPECT_EQ(world.manager.selectedPhotoIndexes(), (std::vector<std::size_t>{2}));
    world.app.geotagToMapCenter();
    const KTBatchOperationController& batches =
        *world.app.waymarkWindowController()->batchOperationController();
    EXPECT_TRUE(runEventLoopUntil([&] { return latitude(2).has_value() && !batches.batchSaveInProgress(); }));
    EXPECT_TRUE(latitude(1).has_value());
    EXPECT_NEAR(latitude(2)->toDouble(), -33, 1e-9);
    EXPECT_TRUE(runEventLoopUntil(
        [&] { return world.app.mainMenu()->itemWithIdentifier("undo")->title == "Undo Geotag Photos"; }));
    world.app.undoLastStep();
    EXPECT_TRUE(runEventLoopUntil([&] { return !latitude(2).has_value(); }));
}

TEST(AppDelegateTest, RefusesTooOldAPlatform) {
    AppWorld world;
    world.ui.version = 60303;
    WaymarkAppDelegate delegate(world.ui);
    ASSERT_EQ(world.ui.asked.alerts.size(), 1u);
    EXPECT_EQ(world.ui.asked.alerts[0].message, "Waymark requires a newer version of Qt");
    EXPECT_EQ(world.ui.asked.alerts[0].informativeText, "Waymark requires Qt 6.4 or later");
    EXPECT_EQ(world.ui.asked.alerts[0].buttons, std::vector<std::string>{"Quit"});
    delegate.applicationDidFinishLaunching();
    EXPECT_FALSE(delegate.applicationOpenFile("a.jpg"));
    EXPECT_EQ(world.ui.mainWindows, 0);
    world.ui.asked.alerts[0].completion(0);
    EXPECT_EQ(world.ui.terminations, 1);
}
