#pragma once
#include "platform/common/KTTimeZone.h"

#include <array>
#include <cstdint>

enum class KTCalendarIdentifier { Gregorian };

/// A date and time as separate parts, each of which may be unset, with an optional calendar and time zone.
/// Carries whole seconds. A value type.
struct KTDateComponents {
    /// The value of a part that is not set.
    static constexpr std::int64_t kUndefined = INT64_MAX;

    std::int64_t year = kUndefined;
    std::int64_t month = kUndefined;
    std::int64_t day = kUndefined;
    std::int64_t hour = kUndefined;
    std::int64_t minute = kUndefined;
    std::int64_t second = kUndefined;
    std::optional<KTCalendarIdentifier> calendar;
    std::optional<KTTimeZone> timeZone;

    /// Parses a date text of image metadata: year, month, day joined by colons (or hyphens), a blank (or T),
    /// hour, minute, second joined by colons, then optional fractional seconds and zone suffix, which are
    /// dropped. Also the partial dates year, year and month, date alone; parts that are blank, or 00 for
    /// month and day, are unset. The result carries the Gregorian calendar and no zone; nothing for a text
    /// that is not a date.
    static std::optional<KTDateComponents> dateComponentsWithString(std::string_view text);

    /// Which of year … second are set, in this order.
    std::array<bool, 6> unitFlags() const;
    /// Year … second as numbers equal; calendar and zone are not looked at.
    bool hasSameReading(const KTDateComponents& other) const;
    bool operator==(const KTDateComponents& other) const = default;

    /// Text forms of image metadata, numbers padded with zeros (year 4 digits, others 2).
    /// XMP: "2014:06:01 12:00:00"; a missing part is left out, an hour without minutes gets ":00"; nothing
    /// without a year.
    std::optional<std::string> xmpString() const;
    /// EXIF: as XMP, but a missing month, day, minute or second is ":" and two blanks, a missing hour three
    /// blanks.
    std::optional<std::string> exifString() const;
    /// IPTC date "2014:06:01"; a missing month or day is ":00"; nothing without a year.
    std::optional<std::string> iptcDateString() const;
    /// IPTC time "12:00:00"; missing parts are "00".
    std::string iptcTimeString() const;
};
