#pragma once
#include "geotagging/KTPhotoAssumedTimeZoneController.h"

class KTSystemTimeZone;

/// The panel in which the user chooses the assumed time zone. Observable under the names of its properties.
/// Main thread.
class KTTimeZoneHUDController : public KTObservable {
public:
    /// @p catalogue and @p computer must outlive the controller.
    KTTimeZoneHUDController(KTMetadataFieldManager& catalogue, KTSystemTimeZone& computer);

    /// From setup() to tearDown() the zone that is chosen is in force. The zone in force at the start is the
    /// one that was kept, whichever option is selected.
    void setup();
    void tearDown();

    KTPhotoAssumedTimeZoneController& photoAssumedTimeZoneController() { return controller; }

    /// The computer's zone, by name, GMT, another one; in the user's language, empty up to setup().
    const std::vector<std::string>& timeZoneOptions() const { return options; }
    /// Kept in the setting "defaultTimeZoneOptionsSelectedIndex".
    unsigned timeZoneOptionsSelectedIndex() const;
    /// Chooses the computer's zone (0), as it is now, or GMT (1). Others leave the zone to the picker, which
    /// sets it by setDefaultTimeZone of the controller above.
    void setTimeZoneOptionsSelectedIndex(unsigned index);
    /// Whether the picker of another zone is hidden.
    bool shouldHideOtherTimeZoneOption() const { return isOtherHidden; }

    /// Makes the options anew.
    void handleSystemTimeZoneDidChange();

    /// What opens and closes the tool for shifting dates.
    void setToggleDateAndTimeShifter(std::function<void()> toggle) { toggleShifter = std::move(toggle); }
    void openDateAndTimeShifter();

private:
    void hideOtherTimeZoneOption(bool isHidden);

    KTSystemTimeZone& systemZone;
    KTPhotoAssumedTimeZoneController controller;
    std::vector<std::string> options;
    bool isOtherHidden = true;
    std::function<void()> toggleShifter;
    Observation observation;
};
