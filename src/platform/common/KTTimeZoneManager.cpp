#include "platform/common/KTTimeZoneManager.h"

#include "platform/defaults/KTUserDefaults.h"

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

KTTimeZone KTTimeZoneManager::defaultTimeZone() const {
    const KTUserDefaults& settings = KTUserDefaults::standardUserDefaults();
    const std::string name = settings.textForKey(zoneKey);
    if (settings.boolForKey(useComputerKey) || name.empty())
        return KTTimeZone::system();
    if (const auto typed = KTTimeZone::fromText(name))
        return *typed;
    return KTTimeZone::named(name).value_or(KTTimeZone::system()); // also "CET", which nobody types
}

void KTTimeZoneManager::setDefaultTimeZone(const KTTimeZone& picked) {
    KTUserDefaults& settings = KTUserDefaults::standardUserDefaults();
    if (!useComputerKey.empty())
        settings.setValue(useComputerKey, picked == KTTimeZone::system());
    if (!zoneKey.empty())
        settings.setValue(zoneKey, picked.name());
    setTimeZone(picked);
}
