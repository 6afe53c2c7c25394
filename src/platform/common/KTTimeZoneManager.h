#pragma once
#include "platform/common/KTTimeZone.h"
#include "platform/observing/KTObservable.h"

#include <mutex>

/// Holds a time zone for others to follow; the shared one is that in which the application shows dates.
/// Observable under "timeZone". Any thread.
///
/// Beside it, it remembers the zone that the user picked last, in two settings whose names are given before
/// anybody asks: whether it is the computer's, and else which.
class KTTimeZoneManager : public KTObservable {
public:
    /// The application's; starts with the computer's zone.
    static KTTimeZoneManager& sharedTimeZoneManager();

    KTTimeZone timeZone() const;
    /// Every call is announced, on the calling thread. Not remembered as picked.
    void setTimeZone(const KTTimeZone& newZone);

    /// The names of the settings; while they are empty nothing is remembered.
    void setShouldUseComputerTimeZoneAutosaveName(std::string name) { useComputerKey = std::move(name); }
    void setDefaultTimeZoneAutosaveName(std::string name) { zoneKey = std::move(name); }
    /// The zone that the user picked last; the computer's where that was picked, or none, or one that this
    /// computer does not know.
    KTTimeZone defaultTimeZone() const;
    /// Remembers a zone as picked and makes it the time zone.
    void setDefaultTimeZone(const KTTimeZone& picked);

private:
    mutable std::mutex mutex;
    KTTimeZone zone = KTTimeZone::system();
    std::string useComputerKey, zoneKey;
};
