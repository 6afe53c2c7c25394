#pragma once
#include "platform/common/KTTimeZoneManager.h"

class KTMetadataFieldManager;

/// The zone in which the clocks of the cameras are taken, as the user chooses it. Each choice goes into the
/// catalogue, which keeps its present offset, and from there to every photo; by a setting it also becomes the
/// zone in which the application shows dates. Main thread.
class KTPhotoAssumedTimeZoneController : public KTTimeZoneManager {
public:
    /// @p catalogue must outlive the controller.
    explicit KTPhotoAssumedTimeZoneController(KTMetadataFieldManager& catalogue);

    /// Takes over the offset that the catalogue has kept. Until tearDown(), what is chosen goes where it
    /// should.
    void setup();
    void tearDown();

    /// The setting "applicationShouldAlwaysUsePhotosTimeZoneDefault". Switched off, the application's zone
    /// stays where it was.
    bool applicationTimeZoneShouldAlwaysUseAssumedTimeZone() const;
    void setApplicationTimeZoneShouldAlwaysUseAssumedTimeZone(bool isFollowed);

    void updateMetadataFieldManager();
    void updateApplicationTimeZone();

private:
    KTMetadataFieldManager& metadataFieldManager;
    Observation zoneObservation, settingObservation;
};
