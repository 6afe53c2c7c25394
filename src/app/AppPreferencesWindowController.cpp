#include "app/AppPreferencesWindowController.h"

#include "metadata/KTMetadataFieldManager.h"
#include "platform/cartography/KTMapController.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/common/KTTimeZoneManager.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/gazetteer/KTGazetteer.h"

namespace {

constexpr const char* kBackups = "defaultShouldBackupWhenWritingToImageFiles";
constexpr const char* kBackupFolder = "defaultBackupPathBookmark";
constexpr const char* kAltitudeIsEditable = "AltitudeFieldIsEditableDefault";
constexpr const char* kSampleLatitude = "defaultSampleLatitude";
constexpr const char* kSampleLongitude = "defaultSampleLongitude";

KTUserDefaults& defaults() {
    return KTUserDefaults::standardUserDefaults();
}

std::vector<AppPreferencesWindowController::Pane> allPanes() {
    return {
        {KTLocalizedString("General"),
         "General",
         {"distanceUnits", "applicationShouldAlwaysUsePhotosTimeZoneDefault", "defaultPhotoView",
          "shouldShowTitleDefault", "shouldShowSubtitleDefault", "defaultPhotoCellSize",
          "defaultAutoZoomPhotoSelectionStyle", "defaultAutoZoomRecentTrackImportsStyle"}},
        {KTLocalizedString("Geotagging"),
         "Geotagging",
         {"defaultShouldSaveAltitude", "defaultShouldOverwriteAltitude", kAltitudeIsEditable,
          "defaultSetImageDirectionFromLatLonShown", "defautShouldOverwriteImageDirection",
          "shouldIgnorePreviouslyTaggedPhotos", "shouldAutoAdvanceToNextPhotoDefault"}},
        {KTLocalizedString("Photos"),
         "Photos",
         {"defaultXMPSidecarStyle", kBackups, kBackupFolder, "defaultShouldPreserveModificationDate",
          "defaultShouldInterpretLastKeywordAsEvent", "exifToolFolder"}},
        {KTLocalizedString("Reverse Geocoding"),
         "Maps",
         {"reverseGeocoder", "reverseGeocoderServer", kSampleLatitude, kSampleLongitude,
          "defaultLatLonCreatedShouldReverseGeocodeLocationCreated", "defaultShouldSaveCityCreated",
          "defaultShouldSaveStateCreated", "defaultShouldSaveCountryCreated",
          "defaultShouldOverwriteLocationCreated", "defaultLatLonCreatedShouldReverseGeocodeLocationShown",
          "defaultLatLonShownShouldReverseGeocodeLocationShown", "defaultShouldSaveCityShown",
          "defaultShouldSaveStateShown", "defaultShouldSaveCountryShown",
          "defaultShouldOverwriteLocationShown"}},
        {KTLocalizedString("Maps"),
         "Scroll",
         {"KTMapLaunchesToPreviousLocationDefault", "mapTilesContact", "mapTilesPattern",
          "mapTilesSubdomains", "mapTilesKey", "mapTilesAttribution", "mapTilesMinimumZoom",
          "mapTilesMaximumZoom", "mapTilesSize", "mapTilesCountFromSouth", "mapTilesCacheMegabytes"}},
    };
}

} // namespace

template<class Property>
void AppPreferencesWindowController::set(std::string_view key, Property& property, Property value) {
    willChange(key);
    property = std::move(value);
    didChange(key);
}

AppPreferencesWindowController::AppPreferencesWindowController(KTMetadataFieldManager& catalogue,
                                                               KTMapController* map, KTGazetteer& gazetteer,
                                                               KTTimeZoneManager& timeZoneManager)
    : metadataFieldManager(catalogue), mapController(map), sharedGazetteer(gazetteer),
      sharedTimeZoneManager(timeZoneManager), toolbar(allPanes()),
      folder(defaults().textForKey(kBackupFolder)),
      self(std::make_shared<AppPreferencesWindowController*>(this)) {}

AppPreferencesWindowController::~AppPreferencesWindowController() = default;

void AppPreferencesWindowController::setWindowVisible(bool visible) {
    set("isWindowVisible", isVisible, visible);
}

bool AppPreferencesWindowController::shouldBackupImageFiles() const {
    return defaults().boolForKey(kBackups);
}

void AppPreferencesWindowController::setShouldBackupImageFiles(bool should) {
    willChange("shouldBackupImageFiles");
    defaults().setValue(kBackups, should);
    didChange("shouldBackupImageFiles");
    if (should)
        chooseBackupFolder();
}

void AppPreferencesWindowController::chooseBackupFolder() {
    if (presenter == nullptr)
        return;
    presenter->presentFilePanel({.kind = KTFilePanel::Kind::ChooseFolder,
                                 .directory = folder,
                                 .title = KTLocalizedString("Select a backup folder"),
                                 .completion = [alive = std::weak_ptr(self)](const auto& paths) {
                                     const auto controller = alive.lock();
                                     if (!controller || paths.empty())
                                         return;
                                     const std::string chosen = paths.front().string();
                                     defaults().setValue(kBackupFolder, chosen);
                                     (*controller)->set("backupPath", (*controller)->folder, chosen);
                                 }});
}

bool AppPreferencesWindowController::allowManualEditingOfAltitudeField() const {
    const KTMetadataField* altitude = metadataFieldManager.metadataFieldForKey("altitude");
    return altitude != nullptr && altitude->directlyUserEditable();
}

/// The field of the catalogue, and every copy of it, follows the setting.
void AppPreferencesWindowController::setAllowManualEditingOfAltitudeField(bool allow) {
    willChange("allowManualEditingOfAltitudeField");
    defaults().setValue(kAltitudeIsEditable, allow);
    didChange("allowManualEditingOfAltitudeField");
}

std::optional<KTDecimal> AppPreferencesWindowController::sampleLatitude() const {
    return defaults().valueForKey(kSampleLatitude).number();
}

std::optional<KTDecimal> AppPreferencesWindowController::sampleLongitude() const {
    return defaults().valueForKey(kSampleLongitude).number();
}

void AppPreferencesWindowController::setSampleLatitude(const std::optional<KTDecimal>& degrees) {
    willChange("sampleLatitude");
    defaults().setValue(kSampleLatitude, degrees);
    didChange("sampleLatitude");
}

void AppPreferencesWindowController::setSampleLongitude(const std::optional<KTDecimal>& degrees) {
    willChange("sampleLongitude");
    defaults().setValue(kSampleLongitude, degrees);
    didChange("sampleLongitude");
}

void AppPreferencesWindowController::sample() {
    set("sampleDescription", description,
        KTStringWithFormat(KTLocalizedString("Fetching the location description from %@…"),
                           {sharedGazetteer.selectedReverseGeocoder()->name()}));
    fetchLocationDescription();
}

void AppPreferencesWindowController::fetchLocationDescription() {
    const auto latitude = sampleLatitude(), longitude = sampleLongitude();
    if (isRequested || !latitude || !longitude)
        return;
    set("requestMade", isRequested, true);
    set("requestCompleted", isCompleted, false);
    sharedGazetteer.descriptionForLatitude(
        latitude->toDouble(), longitude->toDouble(),
        [alive = std::weak_ptr(self)](const KTValue::Dictionary& answer) {
            KTPerformOnMainThread([alive, text = KTGazetteer::locationDescriptionFromDictionary(answer)] {
                if (const auto controller = alive.lock())
                    (*controller)->setRequestedLocationDictionary(text);
            });
        });
}

void AppPreferencesWindowController::setRequestedLocationDictionary(const std::string& answer) {
    set("requestMade", isRequested, false);
    set("requestCompleted", isCompleted, true);
    set("sampleDescription", description, answer);
}

void AppPreferencesWindowController::setMapCenterDefaultAction() {
    if (mapController == nullptr)
        return;
    mapController->setDefaultMapDataSource(mapController->mapDataSource());
    mapController->setDefaultLatitudeLongitude(mapController->latitudeLongitude());
    mapController->setDefaultScale(mapController->scale());
}
