#pragma once
#include "platform/common/KTInstant.h"

#include <memory>
#include <string_view>

class QTimeZone;

/// A time zone: a fixed offset from UTC or a named region with its rules. A value type; const use is safe on
/// every thread.
class KTTimeZone {
public:
    KTTimeZone() = default; ///< UTC
    /// @p secondsEast of UTC, within a day either way (others are brought to the limit).
    static KTTimeZone fixed(int secondsEast);
    static KTTimeZone utc() { return {}; }
    /// The computer's zone, read anew at each call.
    static KTTimeZone system();
    /// A region such as "Europe/Berlin"; nothing when the system does not know it.
    static std::optional<KTTimeZone> named(std::string_view region);
    /// What a user types: "+02:00", "+0200", "+2", "Z", "UTC", "GMT", "Area/City"; nothing for anything else.
    static std::optional<KTTimeZone> fromText(std::string_view text);
    /// The zone suffix of a date text as image files hold it ("2012:07:04 10:00:00+02:00", "...Z"); nothing
    /// when the text carries none.
    static std::optional<KTTimeZone> timeZoneWithString(std::string_view dateText);

    bool isFixed() const { return !region; }
    /// Seconds east of UTC in force at @p instant.
    int secondsFromGMT(KTInstant instant) const;
    /// The instant at which clocks of this zone show @p local. A reading that a change of clocks skips or
    /// repeats is resolved as the platform does.
    KTInstant instantOfLocalTime(std::chrono::local_time<std::chrono::milliseconds> local) const;
    /// "Europe/Berlin", or "UTC", or an offset such as "+02:00".
    std::string name() const;
    /// "+02:00" or "Z" at @p instant.
    std::string offsetText(KTInstant instant) const;

    bool operator==(const KTTimeZone& other) const;

private:
    int offset = 0;                          // of a fixed zone
    std::shared_ptr<const QTimeZone> region; // of a named one
};
