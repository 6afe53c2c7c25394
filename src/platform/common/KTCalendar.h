#pragma once
#include "platform/common/KTDateComponents.h"

/// Turns components into instants and back in one time zone, by the proleptic Gregorian calendar. A small
/// value: every thread makes its own.
class KTCalendar {
public:
    explicit KTCalendar(KTTimeZone zone, KTCalendarIdentifier kind = KTCalendarIdentifier::Gregorian)
        : timeZone(std::move(zone)), identifier(kind) {}

    void setTimeZone(KTTimeZone zone) { timeZone = std::move(zone); }

    /// The instant of @p components in this calendar's zone (the components' own zone is not looked at).
    /// Unset parts count as the first month or day, or as 0; nothing without a year.
    std::optional<KTInstant> dateFromComponents(const KTDateComponents& components) const;
    /// Year to second of @p instant in this calendar's zone, with this calendar and zone set. Fractions of a
    /// second are cut off.
    KTDateComponents componentsFromDate(KTInstant instant) const;

private:
    KTTimeZone timeZone;
    KTCalendarIdentifier identifier;
};

/// The instant that @p components denote in their own calendar and zone; nothing when either is unset.
std::optional<KTInstant> KTInstantOfComponents(const KTDateComponents& components);
