#include "export/slideshow/KTSlideShowExporterClass.h"
#include "export/slideshow/KTSlideShowScreen.h"
#include "export/slideshow/SlideShowController.h"
#include "platform/defaults/KTUserDefaults.h"
#include "tests/export/ExportFixture.h"

namespace {

/// Keeps what it is asked for. Its window notes what the show does.
struct FakeScreen final : KTSlideShowScreen {
    struct Window final : KTSlideShowWindow {
        explicit Window(FakeScreen& owner) : screen(owner) {}
        ~Window() override { screen.show = nullptr; }
        FakeScreen& screen;
    };

    std::shared_ptr<void> makeSettingsView() override { return std::make_shared<int>(); }
    std::unique_ptr<KTSlideShowWindow> makeWindow(SlideShowController& controller, KTViewHandle) override {
        show = &controller;
        observation = controller.observe([this](const KTChange& change) {
            if (change.isPrior)
                return;
            if (change.key == "currentPhoto")
                events += show->photoBeside()->filename().substr(4, 1);
            else if (change.key == "isRunning")
                events += show->isRunning() ? '<' : '>';
        });
        return std::make_unique<Window>(*this);
    }
    std::filesystem::path folderIcon() override { return "/icons/folder.svg"; }

    SlideShowController* show = nullptr; // while there is a window
    std::string events;                  // begin, numbers of the photos shown, end
    KTObservable::Observation observation;
};

class SlideShowTest : public ExportFixture {
protected:
    SlideShowTest() {
        KTUserDefaults::useThrowAwayDomain();
        defaults.setValue("slideshowPlugin.autoAdvanceInterval", KTValue(std::int64_t(0)));
    }
    ~SlideShowTest() override { endAll(); } // before the screen

    void select(const std::vector<std::size_t>& indexes) {
        std::vector<KTPhotoManager::Photo> selected;
        for (std::size_t index : indexes)
            selected.push_back(photos.photos()->at(index));
        photos.setSelectedPhotos(std::move(selected));
    }
    /// Chooses the slide show, presses "Export" and waits for its begin, and its end where there is one at
    /// once.
    void begin() {
        exports->shouldBeginExportProcessWithPlugin(pluginClass);
        ASSERT_EQ(presenter.sheets.size(), 1u);
        EXPECT_NE(presenter.sheets[0].settingsView, nullptr);
        const auto completion = presenter.sheets[0].completion;
        presenter.sheets.clear();
        completion(true);
        ASSERT_NE(exports->mainQueueOperation(), nullptr);
        ASSERT_TRUE(runEventLoopUntil([&] { return !screen.events.empty(); }));
    }
    bool isGone() {
        return runEventLoopUntil([&] { return screen.show == nullptr; });
    }
    KTGuardedExportPlugin& plugin() { return *exports->mainQueueOperation()->plugin(); }
    SlideShowController& show() { return *screen.show; }

    KTUserDefaults& defaults = KTUserDefaults::standardUserDefaults();
    FakeScreen screen;
    std::shared_ptr<KTSlideShowExporterClass> pluginClass =
        std::make_shared<KTSlideShowExporterClass>(screen);
};

} // namespace

TEST_F(SlideShowTest, IsTheLastPluginOfTheMenu) {
    plugins = std::make_unique<KTPluginManager>(exports, KTPluginManager::BuiltInClasses{pluginClass});
    bundle("program/A.ktplugin", 1);
    EXPECT_EQ(loadAll(), "");
    EXPECT_EQ(names(), "A Slide Show ");
    plugins->importPluginsAtPaths({bundle("import/B.ktplugin", 2)});
    EXPECT_EQ(names(), "A B Slide Show ");
    EXPECT_EQ(pluginClass->uuid(), "6090755A-2E9D-450D-B18E-C3E2B1F39221");
    EXPECT_EQ(pluginClass->icon(), "/icons/folder.svg");
}

TEST_F(SlideShowTest, ShowsTheSelectedPhotosOrAllFromTheSelectedOneOn) {
    select({0, 2});
    begin();
    show().nextPhoto();
    show().nextPhoto();
    show().previousPhoto();
    show().stop();
    EXPECT_EQ(screen.events, "<1313>");
    ASSERT_TRUE(isGone());

    screen.events.clear();
    select({1});
    begin();
    for (int steps = 0; steps < 4; ++steps)
        show().nextPhoto();
    show().stop();
    EXPECT_EQ(screen.events, "<23123>");
    ASSERT_TRUE(isGone());

    screen.events.clear();
    select({});
    begin();
    show().previousPhoto();
    show().stop();
    EXPECT_EQ(screen.events, "<13>");
    ASSERT_TRUE(isGone());

    screen.events.clear();
    photos.removePhotos(*photos.photos());
    begin(); // nothing to show
    EXPECT_EQ(screen.events, "<>");
    ASSERT_TRUE(isGone());
}

TEST_F(SlideShowTest, IsTheExportOfTheMainThreadAsLongAsItRuns) {
    begin();
    EXPECT_EQ(plugin().message(), "Slide show in progress");
    EXPECT_EQ(plugin().currentValue(), 0u);
    EXPECT_EQ(plugin().totalValue(), 2);
    EXPECT_FALSE(plugin().indeterminateProgress());
    EXPECT_FALSE(plugin().canExportOnBackgroundThread());
    EXPECT_FALSE(plugin().wantsDestinationPathPrompt());
    testing::internal::CaptureStderr();
    exports->shouldBeginExportProcessWithPlugin(pluginClass);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Main thread export operation already in progress!\n");

    auto operation = exports->mainQueueOperation();
    show().stop();
    EXPECT_EQ(exports->mainQueueOperation(), nullptr);
    EXPECT_EQ(operation->plugin()->concludingDescription(), "Exported 2 photos");
    EXPECT_EQ(exports->exportQueue().operationCount(), 0u);
    operation.reset();
    EXPECT_TRUE(isGone());
}

TEST_F(SlideShowTest, CanBeCancelledBeforeAndWhileItRuns) {
    exports->shouldBeginExportProcessWithPlugin(pluginClass);
    presenter.sheets.at(0).completion(false);
    EXPECT_EQ(exports->mainQueueOperation(), nullptr);
    presenter.sheets.clear();

    begin();
    auto operation = exports->mainQueueOperation();
    operation->plugin()->shouldCancelExport();
    EXPECT_EQ(operation->plugin()->concludingDescription(), "Export canceled.");
    EXPECT_EQ(exports->mainQueueOperation(), nullptr);
    EXPECT_TRUE(screen.events.ends_with('>'));
    operation.reset();
    EXPECT_TRUE(isGone());

    screen.events.clear();
    begin();
    endManager(); // at the end of the program
    EXPECT_TRUE(isGone());
    EXPECT_TRUE(screen.events.ends_with('>'));
}

TEST_F(SlideShowTest, AdvancesByItselfUnlessItIsPausedOrAPhotoIsStillBeingLoaded) {
    defaults.setValue("slideshowPlugin.autoAdvanceInterval", *KTDecimal::fromText("0.01"));
    begin();
    EXPECT_TRUE(show().automaticallyAdvances());
    ASSERT_TRUE(runEventLoopUntil([&] { return screen.events.size() >= 6; }));
    EXPECT_EQ(screen.events.substr(0, 6), "<12121");

    auto shownWithin = [&](std::chrono::milliseconds time) {
        const auto before = screen.events;
        const auto end = std::chrono::steady_clock::now() + time;
        runEventLoopUntil([&] { return std::chrono::steady_clock::now() > end; });
        return screen.events.substr(before.size());
    };
    using std::chrono_literals::operator""ms;
    show().setLoadsPhoto(true);
    EXPECT_EQ(shownWithin(80ms), "");
    show().setLoadsPhoto(false);
    ASSERT_TRUE(runEventLoopUntil([&] { return screen.events.size() >= 9; }));
    show().setAutomaticallyAdvances(false);
    EXPECT_EQ(shownWithin(80ms), "");
    show().nextPhoto(); // by hand, which does not end the pause
    EXPECT_EQ(shownWithin(80ms), "");
    show().setAutomaticallyAdvances(true);
    EXPECT_NE(shownWithin(80ms), "");
    show().stop();
    EXPECT_EQ(shownWithin(50ms), "");
    ASSERT_TRUE(isGone());

    for (const char* interval : {"0", "-1"}) {
        screen.events.clear();
        defaults.setValue("slideshowPlugin.autoAdvanceInterval", *KTDecimal::fromText(interval));
        begin();
        EXPECT_EQ(shownWithin(50ms), "") << interval;
        show().stop();
        ASSERT_TRUE(isGone());
    }
}

TEST_F(SlideShowTest, CyclesThroughTheTransitions) {
    defaults.setValue("slideshowPlugin.transitionStyle", KTValue(std::int64_t(12)));
    begin();
    EXPECT_EQ(show().transitionStyle(), 12u);
    show().nextPhoto();
    EXPECT_EQ(show().transitionStyle(), 12u);
    show().setCyclesTransitionStyles(true);
    std::string styles;
    for (int steps = 0; steps < 3; ++steps) {
        show().nextPhoto();
        styles += std::to_string(show().transitionStyle()) + ' ';
    }
    EXPECT_EQ(styles, "0 1 2 ");
    show().stop();
    ASSERT_TRUE(isGone());
    EXPECT_EQ(SlideShowController(4, 2, 13).transitionStyle(), 0u); // no such style
}

TEST_F(SlideShowTest, TheMapFollowsAsTheSettingSays) {
    auto beginWithZoom = [&](std::int64_t style) {
        screen.events.clear();
        defaults.setValue("slideshowPlugin.autoZoomPhotoStyle", KTValue(style));
        begin();
        show().mapController().setViewState(KTMapViewState({0, 0}, 4, 400, 300));
    };
    beginWithZoom(2);
    show().nextPhoto();
    EXPECT_NEAR(show().mapController().latitude(), 47, 1e-6);
    EXPECT_NEAR(show().mapController().longitude(), 14, 1e-6);
    EXPECT_EQ(show().mapController().scale(), KTMapController::kFittingScale);
    EXPECT_EQ(show().photosOnMap().spatialObjects().size(), 2u);
    EXPECT_EQ(show().photosOnMap().spatialObjectSelectionIndexes(), (std::vector<std::size_t>{1}));
    show().mapController().setViewState(KTMapViewState({0, 0}, 4, 400, 300));
    show().moveMapToPhoto();
    EXPECT_NEAR(show().mapController().latitude(), 47, 1e-6);
    show().showPhoto(*show().photos()[0]); // chosen on the map
    EXPECT_EQ(show().currentIndex(), 0u);
    show().stop();
    ASSERT_TRUE(isGone());

    beginWithZoom(1);
    show().nextPhoto();
    EXPECT_EQ(show().mapController().scale(), 4); // large enough
    EXPECT_GT(show().mapController().latitude(), 20);
    show().stop();
    ASSERT_TRUE(isGone());

    for (std::int64_t style : {0, 3}) {
        beginWithZoom(style);
        show().nextPhoto();
        EXPECT_EQ(show().mapController().latitude(), 0);
        show().stop();
        ASSERT_TRUE(isGone());
    }
}

TEST_F(SlideShowTest, GoesWithoutPlacesAndShowsTracksIfTheUserWishes) {
    begin();
    EXPECT_TRUE(show().hasGeotaggedPhotos());
    ASSERT_EQ(show().tracks().size(), 1u);
    EXPECT_EQ(show().tracks()[0]->name(), "near");
    show().stop();
    ASSERT_TRUE(isGone());

    screen.events.clear();
    defaults.setValue("slideshowPlugin.shouldShowNearbyTracks", KTValue(false));
    for (const auto& photo : *photos.photos())
        photo->removeAllGPSValues();
    begin();
    EXPECT_FALSE(show().hasGeotaggedPhotos());
    EXPECT_TRUE(show().tracks().empty());
    show().nextPhoto();
    show().stop();
    EXPECT_EQ(screen.events, "<12>");
    ASSERT_TRUE(isGone());
}
