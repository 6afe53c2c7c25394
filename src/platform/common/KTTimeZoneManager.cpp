#include "platform/common/KTTimeZoneManager.h"

KTTimeZoneManager& KTTimeZoneManager::sharedTimeZoneManager() {
    static KTTimeZoneManager shared;
    return shared;
}

KTTimeZone KTTimeZoneManager::timeZone() const {
    std::lock_guard guard(mutex);
    return zone;
}

void KTTimeZoneManager::setTimeZone(const KTTimeZone& newZone) {
    willChange("timeZone");
    {
        std::lock_guard guard(mutex);
        zone = newZone;
    }
    didChange("timeZone");
}
