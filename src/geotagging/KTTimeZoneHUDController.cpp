#include "geotagging/KTTimeZoneHUDController.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/desktop/KTSystemTimeZone.h"

namespace {

constexpr std::string_view kSelectedIndex = "defaultTimeZoneOptionsSelectedIndex";
enum Option : unsigned { Computer, GMT, Another };

} // namespace

KTTimeZoneHUDController::KTTimeZoneHUDController(KTMetadataFieldManager& catalogue,
                                                 KTSystemTimeZone& computer)
    : systemZone(computer), controller(catalogue) {}

void KTTimeZoneHUDController::setup() {
    controller.setup();
    observation = systemZone.observe([this](const KTChange&) { handleSystemTimeZoneDidChange(); });
    handleSystemTimeZoneDidChange();
    hideOtherTimeZoneOption(timeZoneOptionsSelectedIndex() < Another);
}

void KTTimeZoneHUDController::tearDown() {
    controller.tearDown();
    observation.stop();
}

void KTTimeZoneHUDController::handleSystemTimeZoneDidChange() {
    willChange("timeZoneOptions");
    options = {
        KTStringWithFormat(KTLocalizedString("my computer's time zone (%@)."), {KTTimeZone::system().name()}),
        KTLocalizedString("GMT."), KTLocalizedString("another time zone…")};
    didChange("timeZoneOptions");
}

unsigned KTTimeZoneHUDController::timeZoneOptionsSelectedIndex() const {
    return unsigned(KTUserDefaults::standardUserDefaults().integerForKey(kSelectedIndex));
}

void KTTimeZoneHUDController::setTimeZoneOptionsSelectedIndex(unsigned index) {
    willChange("timeZoneOptionsSelectedIndex");
    KTUserDefaults::standardUserDefaults().setValue(kSelectedIndex, std::int64_t(index));
    didChange("timeZoneOptionsSelectedIndex");
    if (index == Computer)
        controller.setTimeZone(KTTimeZone::system());
    else if (index == GMT)
        controller.setTimeZone(KTTimeZone::utc());
    hideOtherTimeZoneOption(index < Another);
}

void KTTimeZoneHUDController::hideOtherTimeZoneOption(bool isHidden) {
    willChange("shouldHideOtherTimeZoneOption");
    isOtherHidden = isHidden;
    didChange("shouldHideOtherTimeZoneOption");
}

void KTTimeZoneHUDController::openDateAndTimeShifter() {
    if (toggleShifter)
        toggleShifter();
}
