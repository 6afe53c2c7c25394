#pragma once
#include "app/AppPreferencesWindowController.h"
#include "app/WaymarkAppController.h"
#include "app/WaymarkMainMenu.h"
#include "app/WaymarkWindowController.h"
#include "collection/KTPhotoManager.h"
#include "collection/KTPhotoOperationWindowController.h"
#include "collection/KTTagDetailsWindowController.h"
#include "geotagging/KTAppTrackPickerController.h"
#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTTimeZoneManager.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/desktop/KTSystemTimeZone.h"
#include "platform/gazetteer/KTGazetteer.h"
#include "tests/platform/tracklibrary/TrackTestSupport.h"
#include "tests/support/EventLoop.h"
#include "tests/support/FakePresenter.h"
#include "tests/support/FakeReverseGeocoder.h"
#include "tests/support/TestPhotos.h"

#include <algorithm>
#include <gtest/gtest.h>

/// Windows that are never shown; the test looks at what they were asked.
struct FakeUserInterface : WaymarkUserInterface {
    struct MainWindow : WaymarkWindow {
        explicit MainWindow(FakeUserInterface& owner) : ui(owner) { ++ui.mainWindows; }
        ~MainWindow() override { --ui.mainWindows; }
        void presentAlert(KTAlert alert) override { ui.asked.presentAlert(std::move(alert)); }
        void presentFilePanel(KTFilePanel panel) override { ui.asked.presentFilePanel(std::move(panel)); }
        void presentSettingsSheet(KTSettingsSheet sheet) override {
            ui.asked.presentSettingsSheet(std::move(sheet));
        }
        void revealFiles(const std::vector<std::filesystem::path>& files) override {
            ui.asked.revealFiles(files);
        }
        KTViewHandle viewHandle() override { return this; }
        void chooseTagsToPaste(const KTCopiedTags& tags, std::size_t,
                               std::function<void(const KTCopiedTags&)> paste) override {
            paste(tags);
        }
        FakeUserInterface& ui;
    };
    struct OtherWindow : KTWindow {
        explicit OtherWindow(int& number) : count(number) { ++count; }
        ~OtherWindow() override { --count; }
        int& count;
    };

    std::unique_ptr<WaymarkWindow> makeWaymarkWindow(WaymarkWindowController& controller) override {
        EXPECT_NE(controller.geotaggingController(), nullptr);
        EXPECT_NE(controller.mapController(), nullptr);
        return std::make_unique<MainWindow>(*this);
    }
    Window makePreferencesWindow(AppPreferencesWindowController&) override { return other(); }
    Window makeTagDetailsWindow(KTTagDetailsWindowController&) override { return other(); }
    Window makePhotoOperationWindow(KTPhotoOperationWindowController&) override { return other(); }
    Window makeTrackPickerWindow(KTAppTrackPickerController&) override { return other(); }
    Window makeDateToolsWindow(KTDateToolsWindowController&) override {
        return hasDateTools ? std::make_unique<OtherWindow>(dateToolWindows) : nullptr;
    }
    Window other() { return std::make_unique<OtherWindow>(otherWindows); }
    void showAboutBox() override {}
    KTPresenter& presenter() override { return asked; }
    std::string clipboardText() override { return clipboard; }
    void setClipboardText(const std::string& text) override { clipboard = text; }
    void terminate() override { ++terminations; }
    int toolkitVersion() const override { return version; }

    FakePresenter asked;
    std::string clipboard;
    bool hasDateTools = false;
    int dateToolWindows = 0, mainWindows = 0, otherWindows = 0, terminations = 0, version = 60402;
};

/// A whole application, without its screen, on a collection and a track library of its own. Without plug-ins
/// but for those of the test.
struct AppWorld {
    AppWorld() {
        KTUserDefaults::useThrowAwayDomain();
        setenv("XDG_DATA_HOME", (folder / "data").c_str(), 1);
        setenv("WAYMARK_PLUGINS", (folder / "program").c_str(), 1);
        for (const char* key : {"defaultLatLonCreatedShouldReverseGeocodeLocationCreated",
                                "defaultLatLonCreatedShouldReverseGeocodeLocationShown",
                                "defaultLatLonShownShouldReverseGeocodeLocationShown"})
            KTUserDefaults::standardUserDefaults().setValue(key, false);
    }
    ~AppWorld() { KTUserDefaults::useThrowAwayDomain(); }

    WaymarkModel model() {
        return {.photoManager = &manager,
                .metadataFieldManager = &KTMetadataFieldManager::sharedMetadataFieldManager(),
                .trackManager = &tracks,
                .timeZoneManager = &KTTimeZoneManager::sharedTimeZoneManager(),
                .gazetteer = &gazetteer,
                .systemTimeZone = systemTimeZone};
    }
    void start() {
        app.setupModel();
        app.setupControllers();
        app.showWaymarkWindow();
    }
    bool waitForPhotos(std::size_t count) {
        return runEventLoopUntil(
            [&] { return manager.numberOfPhotos() == count && !manager.importInProgress(); });
    }
    bool waitForTracks(std::size_t count) {
        return runEventLoopUntil(
            [&] { return tracks.store().tracks().size() == count && !tracks.importInProgress(); });
    }

    TemporaryFolder folder;
    FakeUserInterface ui;
    std::shared_ptr<FakeReverseGeocoder> geocoder =
        std::make_shared<FakeReverseGeocoder>(KTPlaceAnswer{.place = {{"city", "Corvallis"}}});
    KTGazetteer gazetteer{geocoder};
    std::shared_ptr<KTSystemTimeZone> systemTimeZone = std::make_shared<KTSystemTimeZone>();
    KTTrackManager tracks{openStore()};
    KTPhotoManager manager;
    WaymarkAppController app{ui, model()};
};
