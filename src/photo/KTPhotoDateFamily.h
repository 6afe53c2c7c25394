#pragma once
#include "platform/common/KTCalendar.h"
#include "platform/concurrency/KTSerialQueue.h"

/// One of a photo's two capture dates: the reading of the camera's clock and how far it was moved from the
/// one saved in the file, guarded by a queue of its own. Any thread.
class KTPhotoDateFamily {
public:
    enum Which { Original, Digitized };

    /// The keys under which a photo has and announces the date.
    struct Keys {
        std::string_view components, timeZone, shift, instant;
        const char* actionName; ///< of the undo step, English
        const char* queueLabel;
    };
    static const Keys& keysOf(Which which);

    struct Reading {
        std::optional<KTDateComponents> components;
        double shift = 0; ///< seconds
    };

    explicit KTPhotoDateFamily(Which which) : queue(keysOf(which).queueLabel) {}

    Reading reading() const;
    /// The instant of the components in their zone; nothing without components, calendar or zone.
    std::optional<KTInstant> instant() const;

    // Each returns the reading that it replaces.
    Reading store(Reading reading);
    /// @p saved moved by @p seconds, in the units that it has, with the present calendar and zone; absent
    /// when there is no present date. No effect on a date without calendar or zone.
    Reading storeShifted(const KTDateComponents& saved, double seconds);
    /// No effect without a date.
    Reading storeTimeZone(const KTTimeZone& zone);
    Reading storeShift(double seconds);
    /// Stores the shift of @p before if the components are still its own.
    void restoreShift(const Reading& before);

private:
    mutable KTSerialQueue queue;
    Reading current;
};
