#include "platform/common/KTUnitConverter.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"

#include <QLocale>
#include <cmath>

namespace {

constexpr double kMetresPerFoot = 0.3048;
constexpr double kMetresPerMile = 1609.344;
constexpr double kMetresPerNauticalMile = 1852;

struct DurationPart {
    std::int64_t seconds;
    const char* singular;
    const char* plural;
};
constexpr DurationPart kDurationParts[] = {{86400, "1 day", "%d days"},
                                           {3600, "1 hour", "%d hours"},
                                           {60, "1 minute", "%d minutes"},
                                           {1, "1 second", "%d seconds"}};

std::string numberText(double number, int decimals) {
    QLocale locale;
    locale.setNumberOptions(QLocale::DefaultNumberOptions); // groups also where the C locale would not
    return locale.toString(number, 'f', decimals).toStdString();
}

std::string filled(const char* format, const std::string& number) {
    return KTStringWithFormat(KTLocalizedString(format), {number});
}

/// @p parts of the duration at most, beginning with its largest.
std::string durationText(std::uint64_t seconds, std::size_t parts) {
    std::vector<std::string> texts;
    std::size_t left = 0;
    for (const DurationPart& part : kDurationParts) {
        const std::uint64_t count = seconds / static_cast<std::uint64_t>(part.seconds);
        seconds %= static_cast<std::uint64_t>(part.seconds);
        left = left == 0 && count != 0 ? parts : left;
        if (count != 0)
            texts.push_back(KTLocalizedCount(part.singular, part.plural, count));
        if (left != 0 && --left == 0)
            break;
    }
    return texts.empty() ? KTLocalizedCount(kDurationParts[3].singular, kDurationParts[3].plural, 0)
                         : KTJoin(texts, " ");
}

/// Two significant digits below ten, none after the point above: "1.2", "25", "140".
std::string roundedNumber(double number) {
    return std::abs(number) < 9.95 && std::round(number * 10) != std::round(number) * 10
               ? numberText(number, 1)
               : numberText(number, 0);
}

} // namespace

KTUnitConverter& KTUnitConverter::sharedUnitConverter() {
    static KTUnitConverter shared;
    return shared;
}

std::optional<KTUnitConverter::Units> KTUnitConverter::unitsFromName(std::string_view name) {
    if (name == "metric")
        return Units::Metric;
    if (name == "imperial")
        return Units::Imperial;
    if (name == "nautical")
        return Units::Nautical;
    return std::nullopt;
}

void KTUnitConverter::setDistanceUnits(Units newUnits) {
    willChange("distanceUnits");
    units = newUnits;
    didChange("distanceUnits");
}

std::string KTUnitConverter::descriptionFromSeconds(std::int64_t seconds) const {
    return durationText(static_cast<std::uint64_t>(std::abs(std::max(seconds, -INT64_MAX))),
                        std::size(kDurationParts));
}

std::string KTUnitConverter::roundedDescriptionFromSeconds(std::int64_t seconds) const {
    std::int64_t magnitude = std::abs(std::clamp<std::int64_t>(seconds, -(INT64_MAX >> 1), INT64_MAX >> 1));
    for (std::size_t i = 0; i + 2 < std::size(kDurationParts); ++i)
        if (magnitude >= kDurationParts[i].seconds) { // what comes after the second part is rounded into it
            const std::int64_t step = kDurationParts[i + 1].seconds;
            magnitude = (magnitude + step / 2) / step * step;
            break;
        }
    return durationText(static_cast<std::uint64_t>(magnitude), 2);
}

std::string KTUnitConverter::roundedDefaultDistanceDescriptionFromMeters(double metres) const {
    if (!std::isfinite(metres))
        return "?";
    switch (distanceUnits()) {
    case Units::Imperial:
        if (double feet = metres / kMetresPerFoot; std::abs(feet) < 999.5)
            return filled("%@ ft", roundedNumber(feet));
        return filled("%@ mi", roundedNumber(metres / kMetresPerMile));
    case Units::Nautical:
        if (std::abs(metres) < kMetresPerNauticalMile / 2)
            return filled("%@ m", roundedNumber(metres));
        return filled("%@ NM", roundedNumber(metres / kMetresPerNauticalMile));
    default:
        if (std::abs(metres) < 999.5)
            return filled("%@ m", roundedNumber(metres));
        return filled("%@ km", roundedNumber(metres / 1000));
    }
}

std::string KTUnitConverter::heightDescriptionFromMeters(const KTDecimal& metres) const {
    if (metres.isNaN())
        return "?";
    if (distanceUnits() == Units::Metric) {
        const KTDecimal rounded = metres.rounded(1);
        return filled("%@ m", numberText(rounded.toDouble(), rounded == rounded.rounded(0) ? 0 : 1));
    }
    const KTDecimal feet = metres / KTDecimal::fromDouble(kMetresPerFoot);
    return filled("%@ ft", numberText(feet.rounded(0).toDouble(), 0));
}
