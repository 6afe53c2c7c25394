#include "geotagging/KTPhotoAssumedTimeZoneController.h"

#include "metadata/KTMetadataFieldManager.h"
#include "platform/defaults/KTUserDefaults.h"

namespace {

constexpr std::string_view kShouldFollow = "applicationShouldAlwaysUsePhotosTimeZoneDefault";

} // namespace

KTPhotoAssumedTimeZoneController::KTPhotoAssumedTimeZoneController(KTMetadataFieldManager& catalogue)
    : metadataFieldManager(catalogue) {
    setShouldUseComputerTimeZoneAutosaveName("shouldUseComputerTimeZoneForAssumedTimeZoneDefault");
    setDefaultTimeZoneAutosaveName("assumedTimeZoneDefaultOffset");
}

void KTPhotoAssumedTimeZoneController::setup() {
    zoneObservation = observe([this](const KTChange& change) {
        if (change.key != "timeZone" || change.isPrior)
            return;
        updateMetadataFieldManager();
        updateApplicationTimeZone();
    });
    settingObservation = KTUserDefaults::standardUserDefaults().observe([this](const KTChange& change) {
        if (change.key == kShouldFollow && !change.isPrior)
            updateApplicationTimeZone();
    });
    setTimeZone(metadataFieldManager.assumedTimeZone());
}

void KTPhotoAssumedTimeZoneController::tearDown() {
    settingObservation.stop();
    zoneObservation.stop();
}

bool KTPhotoAssumedTimeZoneController::applicationTimeZoneShouldAlwaysUseAssumedTimeZone() const {
    return KTUserDefaults::standardUserDefaults().boolForKey(kShouldFollow);
}

void KTPhotoAssumedTimeZoneController::setApplicationTimeZoneShouldAlwaysUseAssumedTimeZone(bool isFollowed) {
    willChange("applicationTimeZoneShouldAlwaysUseAssumedTimeZone");
    KTUserDefaults::standardUserDefaults().setValue(kShouldFollow, isFollowed);
    didChange("applicationTimeZoneShouldAlwaysUseAssumedTimeZone");
    updateApplicationTimeZone();
}

void KTPhotoAssumedTimeZoneController::updateMetadataFieldManager() {
    metadataFieldManager.setAssumedTimeZone(timeZone());
}

/// Every date on the screen is drawn anew when the application's zone is set.
void KTPhotoAssumedTimeZoneController::updateApplicationTimeZone() {
    KTTimeZoneManager& application = sharedTimeZoneManager();
    if (applicationTimeZoneShouldAlwaysUseAssumedTimeZone() && !(application.timeZone() == timeZone()))
        application.setTimeZone(timeZone());
}
