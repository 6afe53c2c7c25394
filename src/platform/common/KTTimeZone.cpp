#include "platform/common/KTTimeZone.h"

#include <QDateTime>
#include <QTimeZone>
#include <algorithm>
#include <cstdio>

namespace {

std::string textOfOffset(int seconds) {
    int magnitude = std::abs(seconds);
    char text[24];
    std::snprintf(text, sizeof text, "%c%02d:%02d", seconds < 0 ? '-' : '+', magnitude / 3600,
                  magnitude / 60 % 60);
    std::string result = text;
    if (magnitude % 60 != 0) {
        std::snprintf(text, sizeof text, ":%02d", magnitude % 60);
        result += text;
    }
    return result;
}

/// "+02:00", "-0330", "+2" or "+02:00:30" as seconds; the whole of @p text must be the offset.
std::optional<int> parseOffset(std::string_view text) {
    if (text.size() < 2 || (text[0] != '+' && text[0] != '-'))
        return std::nullopt;
    std::string digits;
    int colons = 0;
    for (char c : text.substr(1)) {
        if (c >= '0' && c <= '9')
            digits += c;
        else if (c == ':' && !digits.empty() && digits.size() <= 4)
            digits.insert(0, digits.size() % 2 != 0 ? "0" : ""), ++colons;
        else
            return std::nullopt;
    }
    if (digits.size() == 1)
        digits.insert(0, "0");
    if (digits.size() != 2 && digits.size() != 4 && digits.size() != 6)
        return std::nullopt;
    digits.resize(6, '0');
    int hours = std::stoi(digits.substr(0, 2)), minutes = std::stoi(digits.substr(2, 2)),
        seconds = std::stoi(digits.substr(4, 2));
    if (hours > 23 || minutes > 59 || seconds > 59)
        return std::nullopt;
    int total = hours * 3600 + minutes * 60 + seconds;
    return text[0] == '-' ? -total : total;
}

} // namespace

KTTimeZone KTTimeZone::fixed(int secondsEast) {
    KTTimeZone zone;
    zone.offset = std::clamp(secondsEast, -86400, 86400);
    return zone;
}

KTTimeZone KTTimeZone::system() {
    return named(QTimeZone::systemTimeZoneId().toStdString()).value_or(utc());
}

std::optional<KTTimeZone> KTTimeZone::named(std::string_view region) {
    auto zone = std::make_shared<const QTimeZone>(QByteArray(region.data(), qsizetype(region.size())));
    if (!zone->isValid())
        return std::nullopt;
    KTTimeZone result;
    result.region = std::move(zone);
    return result;
}

std::optional<KTTimeZone> KTTimeZone::fromText(std::string_view text) {
    if (text == "Z" || text == "z" || text == "UTC" || text == "GMT")
        return utc();
    if (auto offset = parseOffset(text))
        return fixed(*offset);
    bool isRegion = text.find('/') != std::string_view::npos;
    return isRegion ? named(text) : std::nullopt;
}

std::optional<KTTimeZone> KTTimeZone::timeZoneWithString(std::string_view dateText) {
    while (!dateText.empty() && dateText.back() == ' ')
        dateText.remove_suffix(1);
    // A zone can only follow a time of day, so the signs of "2014-05-01" are not mistaken for one.
    auto time = dateText.find_first_of(" T");
    if (time == std::string_view::npos)
        return std::nullopt;
    std::string_view tail = dateText.substr(time + 1);
    if (!tail.empty() && (tail.back() == 'Z' || tail.back() == 'z'))
        return utc();
    auto sign = tail.find_first_of("+-");
    if (sign == std::string_view::npos || sign == 0)
        return std::nullopt;
    auto offset = parseOffset(tail.substr(sign));
    return offset ? std::optional(fixed(*offset)) : std::nullopt;
}

int KTTimeZone::secondsFromGMT(KTInstant instant) const {
    if (!region)
        return offset;
    return region->offsetFromUtc(QDateTime::fromMSecsSinceEpoch(instant.time_since_epoch().count(), Qt::UTC));
}

KTInstant KTTimeZone::instantOfLocalTime(std::chrono::local_time<std::chrono::milliseconds> local) const {
    KTInstant asUTC(local.time_since_epoch());
    if (!region)
        return asUTC - std::chrono::seconds(offset);
    QDateTime reading = QDateTime::fromMSecsSinceEpoch(asUTC.time_since_epoch().count(), Qt::UTC);
    return KTInstantFromMilliseconds(QDateTime(reading.date(), reading.time(), *region).toMSecsSinceEpoch());
}

std::string KTTimeZone::name() const {
    if (region)
        return region->id().toStdString();
    return offset == 0 ? "UTC" : textOfOffset(offset);
}

std::string KTTimeZone::offsetText(KTInstant instant) const {
    int seconds = secondsFromGMT(instant);
    return seconds == 0 ? "Z" : textOfOffset(seconds);
}

bool KTTimeZone::operator==(const KTTimeZone& other) const {
    if (!region || !other.region)
        return !region && !other.region && offset == other.offset;
    return region->id() == other.region->id();
}
