#pragma once
#include "platform/common/KTTimeZone.h"
#include "platform/observing/KTObservable.h"

#include <mutex>

/// Holds the zone in which the application shows dates. Observable under "timeZone". Any thread.
class KTTimeZoneManager : public KTObservable {
public:
    /// The application's; starts with the computer's zone.
    static KTTimeZoneManager& sharedTimeZoneManager();

    KTTimeZone timeZone() const;
    void setTimeZone(const KTTimeZone& zone);

private:
    mutable std::mutex mutex;
    KTTimeZone zone = KTTimeZone::system();
};
