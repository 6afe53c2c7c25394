#include "platform/cartography/KTMapController.h"
#include "platform/defaults/KTSettingsTable.h"
#include "tests/app/controllers/AppWorld.h"

#include <set>

namespace {

KTUserDefaults& settings() {
    return KTUserDefaults::standardUserDefaults();
}

} // namespace

TEST(PreferencesTest, HasFivePanesOfKnownSettings) {
    AppWorld world;
    AppPreferencesWindowController preferences(*world.model().metadataFieldManager, nullptr, world.gazetteer,
                                               *world.model().timeZoneManager);
    std::string labels, icons;
    std::set<std::string> shown;
    for (const auto& pane : preferences.panes()) {
        labels += pane.label + "|";
        icons += pane.icon + "|";
        for (const std::string& key : pane.settings) {
            EXPECT_NE(KTSettingsTable::settingForKey(key), nullptr) << key;
            EXPECT_TRUE(shown.insert(key).second) << key;
        }
    }
    EXPECT_EQ(labels, "General|Geotagging|Photos|Reverse Geocoding|Maps|");
    EXPECT_EQ(icons, "General|Geotagging|Photos|Maps|Scroll|");
    preferences.setMapCenterDefaultAction(); // without a map, nothing
}

TEST(PreferencesTest, AsksForABackupFolderWhenBackupsAreTurnedOn) {
    AppWorld world;
    AppPreferencesWindowController preferences(*world.model().metadataFieldManager, nullptr, world.gazetteer,
                                               *world.model().timeZoneManager);
    preferences.setPresenter(&world.ui.asked);
    preferences.setShouldBackupImageFiles(true);
    ASSERT_EQ(world.ui.asked.panels.size(), 1u);
    EXPECT_EQ(world.ui.asked.panels[0].title, "Select a backup folder");
    EXPECT_EQ(world.ui.asked.panels[0].kind, KTFilePanel::Kind::ChooseFolder);
    world.ui.asked.panels[0].completion({});
    EXPECT_EQ(preferences.backupPath(), "");
    EXPECT_TRUE(preferences.shouldBackupImageFiles());
    world.ui.asked.panels[0].completion({"/backups of mine"});
    EXPECT_EQ(preferences.backupPath(), "/backups of mine");
    EXPECT_EQ(settings().textForKey("defaultBackupPathBookmark"), "/backups of mine");
    preferences.setShouldBackupImageFiles(false);
    EXPECT_EQ(world.ui.asked.panels.size(), 1u);
    AppPreferencesWindowController later(*world.model().metadataFieldManager, nullptr, world.gazetteer,
                                         *world.model().timeZoneManager);
    EXPECT_EQ(later.backupPath(), "/backups of mine");

    EXPECT_FALSE(preferences.allowManualEditingOfAltitudeField());
    preferences.setAllowManualEditingOfAltitudeField(true);
    EXPECT_TRUE(preferences.allowManualEditingOfAltitudeField());
}

TEST(PreferencesTest, SamplesTheReverseGeocoder) {
    AppWorld world;
    auto preferences = std::make_unique<AppPreferencesWindowController>(
        *world.model().metadataFieldManager, nullptr, world.gazetteer, *world.model().timeZoneManager);
    EXPECT_EQ(preferences->sampleLatitude(), KTDecimal::fromText("44.5956"));
    EXPECT_EQ(preferences->sampleLongitude(), KTDecimal::fromText("-123.268"));
    world.geocoder->hold();
    preferences->sample();
    EXPECT_EQ(preferences->sampleDescription(), "Fetching the location description from Fake…");
    EXPECT_TRUE(preferences->requestMade());
    preferences->sample();
    world.geocoder->release();
    EXPECT_TRUE(runEventLoopUntil([&] { return preferences->requestCompleted(); }));
    EXPECT_EQ(preferences->sampleDescription(), "Corvallis");
    EXPECT_EQ(world.geocoder->asked().size(), 1u) << "one request at a time";

    preferences->setSampleLatitude(std::nullopt);
    EXPECT_EQ(preferences->sampleLatitude(), KTDecimal::fromText("44.5956")) << "back to the default";
    world.geocoder->hold();
    preferences->sample();
    preferences.reset(); // the answer comes too late
    world.geocoder->release();
}

TEST(PreferencesTest, KeepsWhereTheMapBegins) {
    AppWorld world;
    KTMapController map;
    map.setViewSize(800, 600, 1);
    map.setLatitudeLongitude({14.5, 46.05}, 9);
    AppPreferencesWindowController preferences(*world.model().metadataFieldManager, &map, world.gazetteer,
                                               *world.model().timeZoneManager);
    preferences.setMapCenterDefaultAction();
    settings().setValue("KTMapLaunchesToPreviousLocationDefault", false);
    KTMapController next;
    next.setViewSize(800, 600, 1);
    EXPECT_NEAR(next.latitude(), 46.05, 1e-6);
    EXPECT_NEAR(next.longitude(), 14.5, 1e-6);
    EXPECT_NEAR(next.scale(), 9, 1e-6);
}

/// The defaults of every setting, in a table of the test's own.
TEST(PreferencesTest, EverySettingHasItsDefault) {
    KTUserDefaults::useThrowAwayDomain();
    const KTValue yes = true, no = false;
    const std::pair<const char*, KTValue> defaults[] = {
        {"defaultShouldSaveAltitude", yes},
        {"defaultShouldOverwriteAltitude", yes},
        {"defaultLatLonCreatedShouldReverseGeocodeLocationCreated", yes},
        {"defaultLatLonCreatedShouldReverseGeocodeLocationShown", yes},
        {"defaultLatLonShownShouldReverseGeocodeLocationShown", yes},
        {"defaultSetImageDirectionFromLatLonShown", yes},
        {"defautShouldOverwriteImageDirection", yes},
        {"defaultShouldSaveCityCreated", yes},
        {"defaultShouldSaveStateCreated", yes},
        {"defaultShouldSaveCountryCreated", yes},
        {"defaultShouldOverwriteLocationCreated", yes},
        {"defaultShouldSaveCityShown", yes},
        {"defaultShouldSaveStateShown", yes},
        {"defaultShouldSaveCountryShown", yes},
        {"defaultShouldOverwriteLocationShown", yes},
        {"defaultXMPSidecarStyle", 1},
        {"defaultShouldBackupWhenWritingToImageFiles", no},
        {"defaultShouldPreserveModificationDate", no},
        {"defaultBackupPathBookmark", {}},
        {"defaultPhotoImportLocation", std::string(getenv("HOME"))},
        {"defaultSampleLatitude", KTDecimal::fromText("44.5956")},
        {"defaultSampleLongitude", KTDecimal::fromText("-123.268")},
        {"AltitudeFieldIsEditableDefault", no},
        {"defaultAssumedTimeZoneOffset", KTTimeZone::system().secondsFromGMT(KTInstantNow())},
        {"shouldAutoAdvanceToNextPhotoDefault", yes},
        {"shouldUseDistanceRestriction", no},
        {"distanceRestriction", KTDecimal::fromInteger(25)},
        {"shouldANDRestrictions", no},
        {"shouldUseTimeRestriction", yes},
        {"timeRestriction", KTDecimal::fromInteger(300)},
        {"shouldUseTimeWeightedAverage", no},
        {"shouldIgnorePreviouslyTaggedPhotos", yes},
        {"KTGeotaggingModeDefault", 0},
        {"applicationShouldAlwaysUsePhotosTimeZoneDefault", yes},
        {"shouldUseComputerTimeZoneForAssumedTimeZoneDefault", yes},
        {"defaultTimeZoneOptionsSelectedIndex", 0},
        {"defaultShouldInterpretLastKeywordAsEvent", yes},
        {"defaultMediaBrowserVisibility", no},
        {"defaultMediaBrowserFrameRect", {}},
        {"slideshowPlugin.autoAdvanceInterval", KTDecimal::fromInteger(4)},
        {"slideshowPlugin.transitionStyle", 0},
        {"slideshowPlugin.autoZoomPhotoStyle", 2},
        {"slideshowPlugin.shouldShowNearbyTracks", yes},
        {"defaultAutoZoomRecentTrackImportsStyle", 2},
        {"defaultAutoZoomPhotoSelectionStyle", 1},
        {"KTMapLaunchesToPreviousLocationDefault", yes},
        {"defaultPhotoView", 1},
        {"shouldShowTitleDefault", yes},
        {"shouldShowSubtitleDefault", no},
        {"defaultPhotoCellSize", KTDecimal::fromInteger(89)},
        {"defaultTableColumns", KTValue::listOfTexts({"filename", "dateTimeOriginalComponents", "latitude",
                                                      "longitude", "altitude", "cityShown", "stateShown"})},
        {"fade", {}},
        {"shiftSlowsAnimation", {}},
    };
    for (const auto& [key, value] : defaults) {
        EXPECT_NE(KTSettingsTable::settingForKey(key), nullptr) << key;
        EXPECT_EQ(settings().valueForKey(key), value)
            << key << ": " << settings().valueForKey(key).description();
    }
    EXPECT_NE(KTSettingsTable::settingForKey("defaultEditorGroups"), nullptr);
}
