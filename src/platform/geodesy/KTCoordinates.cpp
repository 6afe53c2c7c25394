#include "platform/geodesy/KTCoordinates.h"

#include "platform/common/KTText.h"
#include "platform/geodesy/CoordinateReader.h"

namespace {

using Axis = CoordinateReader::Axis;
using Coordinates = std::vector<CoordinateReader::Coordinate>;
constexpr std::size_t kLongestText = 2000; // bytes

bool isWithin(const KTDecimal& degrees, std::int64_t limit) {
    return !degrees.isNaN() && degrees.abs() <= KTDecimal::fromInteger(limit);
}

std::optional<KTCoordinates> position(const KTDecimal& latitude, const KTDecimal& longitude) {
    if (!KTCoordinates::isLatitude(latitude) || !KTCoordinates::isLongitude(longitude))
        return std::nullopt;
    return KTCoordinates{latitude, longitude};
}

std::optional<KTCoordinates> positionOf(const Coordinates& pair) {
    if (pair.size() != 2)
        return std::nullopt;
    const bool isReversed = pair[0].axis == Axis::Longitude || pair[1].axis == Axis::Latitude;
    const auto& latitude = pair[isReversed ? 1 : 0];
    const auto& longitude = pair[isReversed ? 0 : 1];
    if (latitude.axis == Axis::Longitude || longitude.axis == Axis::Latitude)
        return std::nullopt;
    return position(latitude.degrees, longitude.degrees);
}

std::optional<KTDecimal> degreesOf(const Coordinates& one, Axis axis) {
    if (one.size() != 1 || (one[0].axis != Axis::Unknown && one[0].axis != axis))
        return std::nullopt;
    const bool isOnEarth = axis == Axis::Latitude ? KTCoordinates::isLatitude(one[0].degrees)
                                                  : KTCoordinates::isLongitude(one[0].degrees);
    return isOnEarth ? std::optional(one[0].degrees) : std::nullopt;
}

/// What the two readings of the commas of @p text give, where only one of them gives something.
template<class Meaning>
auto onlyReading(std::string_view text, const Meaning& meaning) {
    auto asSeparator = meaning(CoordinateReader::coordinatesOf(text, false));
    // With a decimal point in it, commas are no decimal ones.
    if (text.find('.') != std::string_view::npos || text.find(',') == std::string_view::npos)
        return asSeparator;
    auto asDecimal = meaning(CoordinateReader::coordinatesOf(text, true));
    if (asSeparator && asDecimal && *asSeparator != *asDecimal)
        return decltype(asSeparator)();
    return asSeparator ? asSeparator : asDecimal;
}

/// The plain numbers that @p text begins with, each followed by @p separator but the last.
std::optional<KTCoordinates> leadingPair(std::string_view text, char separator) {
    const auto middle = text.find(separator);
    if (middle == std::string_view::npos)
        return std::nullopt;
    const auto latitude = KTDecimal::fromText(text.substr(0, middle));
    text.remove_prefix(middle + 1);
    const auto longitude = KTDecimal::fromText(text.substr(0, text.find_first_not_of("+-.0123456789")));
    return latitude && longitude ? position(*latitude, *longitude) : std::nullopt;
}

std::optional<KTCoordinates> positionOfGeoLink(std::string_view link) {
    const std::string lower = KTLowercase(link);
    const auto system = lower.find(";crs=");
    if (system != std::string::npos && lower.compare(system + 5, 5, "wgs84") != 0)
        return std::nullopt;
    const auto end = link.find_first_of(";?");
    const auto found = leadingPair(link.substr(0, end), ',');
    // Behind the two numbers stands nothing, or the altitude.
    const auto parts = KTSplit(link.substr(0, end), ',');
    const bool isWhole =
        parts.size() >= 2 && parts.size() <= 3 && std::ranges::all_of(parts, [](const std::string& part) {
            return KTDecimal::fromText(part).has_value();
        });
    return isWhole ? found : std::nullopt;
}

std::string withoutPercentCommas(std::string_view address) {
    std::string plain(address);
    for (std::string_view code : {"%2C", "%2c"})
        for (auto at = plain.find(code); at != std::string::npos; at = plain.find(code, at))
            plain.replace(at, code.size(), ",");
    return plain;
}

/// What follows @p name in @p address, where that begins a part of it.
std::optional<std::string_view> behind(std::string_view address, std::string_view name) {
    for (auto at = address.find(name); at != std::string_view::npos; at = address.find(name, at + 1))
        if (at > 0 && std::string_view("?&#/;").find(address[at - 1]) != std::string_view::npos)
            return address.substr(at + name.size());
    return std::nullopt;
}

std::optional<KTCoordinates> positionOfAddress(std::string_view text) {
    const std::string plain = withoutPercentCommas(text);
    const std::string_view address = plain;
    const auto latitude = behind(address, "mlat="), longitude = behind(address, "mlon=");
    if (latitude && longitude) {
        const auto north = KTDecimal::fromPrefix(*latitude), east = KTDecimal::fromPrefix(*longitude);
        if (north && east)
            return position(*north, *east);
    }
    for (const char* name : {"@", "q=", "ll=", "query=", "center="})
        if (const auto rest = behind(address, name))
            if (const auto found = leadingPair(*rest, ','))
                return found;
    if (const auto rest = behind(address, "map="))
        if (const auto zoom = rest->find('/'); zoom != std::string_view::npos)
            return leadingPair(rest->substr(zoom + 1), '/');
    return std::nullopt;
}

std::string angleText(const KTDecimal& degrees, char positive, char negative, bool withSeconds) {
    const KTDecimal sixty = KTDecimal::fromInteger(60);
    // Rounded first, so that no part becomes 60.
    const KTDecimal smallest =
        withSeconds ? (degrees.abs() * sixty * sixty).rounded(3) : (degrees.abs() * sixty).rounded(5);
    const KTDecimal inMinutes = withSeconds ? smallest / sixty : smallest;
    const std::int64_t whole = inMinutes.toInteger() / 60;
    const KTDecimal minutes = inMinutes - KTDecimal::fromInteger(whole * 60);
    std::string text = std::to_string(whole) + "° ";
    if (withSeconds) {
        const std::int64_t wholeMinutes = minutes.toInteger();
        const KTDecimal seconds = smallest - KTDecimal::fromInteger((whole * 60 + wholeMinutes) * 60);
        text += std::to_string(wholeMinutes) + "′ " + seconds.toText() + "″ ";
    } else {
        text += minutes.toText() + "′ ";
    }
    return text + (degrees.isNegative() ? negative : positive);
}

} // namespace

std::optional<KTCoordinates> KTCoordinates::fromText(std::string_view text) {
    text = KTTrimmed(text);
    if (text.empty() || text.size() > kLongestText)
        return std::nullopt;
    if (KTEqualIgnoringCase(text.substr(0, 4), "geo:"))
        return positionOfGeoLink(text.substr(4));
    if (text.find("://") != std::string_view::npos)
        return positionOfAddress(text);
    return onlyReading(text, positionOf);
}

std::optional<KTDecimal> KTCoordinates::latitudeFromText(std::string_view text) {
    if (text.size() > kLongestText)
        return std::nullopt;
    return onlyReading(KTTrimmed(text),
                       [](const Coordinates& one) { return degreesOf(one, Axis::Latitude); });
}

std::optional<KTDecimal> KTCoordinates::longitudeFromText(std::string_view text) {
    if (text.size() > kLongestText)
        return std::nullopt;
    return onlyReading(KTTrimmed(text),
                       [](const Coordinates& one) { return degreesOf(one, Axis::Longitude); });
}

std::string KTCoordinates::text(Notation notation) const {
    switch (notation) {
    case Notation::Decimal:
        return latitude.rounded(7).toText() + ", " + longitude.rounded(7).toText();
    case Notation::GeoLink:
        return "geo:" + latitude.rounded(7).toText() + "," + longitude.rounded(7).toText();
    case Notation::DegreesMinutes:
    case Notation::DegreesMinutesSeconds:
        break;
    }
    const bool withSeconds = notation == Notation::DegreesMinutesSeconds;
    return angleText(latitude, 'N', 'S', withSeconds) + ", " + angleText(longitude, 'E', 'W', withSeconds);
}

bool KTCoordinates::isLatitude(const KTDecimal& degrees) {
    return isWithin(degrees, 90);
}

bool KTCoordinates::isLongitude(const KTDecimal& degrees) {
    return isWithin(degrees, 180);
}
