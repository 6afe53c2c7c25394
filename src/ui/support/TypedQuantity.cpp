#include "ui/support/TypedQuantity.h"

#include <QRegularExpression>
#include <cmath>

namespace TypedQuantity {

namespace {

constexpr double kFoot = 0.3048, kMile = 1609.344, kNauticalMile = 1852; // metres

struct Unit {
    const char* names; ///< separated by blanks
    double size;
};
constexpr Unit kDurations[] = {{"s sec secs second seconds", 1},
                               {"min mins minute minutes m '", 60},
                               {"h hr hrs hour hours", 3600},
                               {"d day days", 86400}};
constexpr Unit kDistances[] = {{"m metre metres meter meters", 1},
                               {"km kilometre kilometres kilometer kilometers", 1000},
                               {"ft foot feet '", kFoot},
                               {"mi mile miles", kMile},
                               {"nm nmi", kNauticalMile}};

template<std::size_t count>
std::optional<double> sizeOf(const QString& name, const Unit (&units)[count]) {
    for (const Unit& unit : units)
        if (QString(unit.names).split(' ').contains(name, Qt::CaseInsensitive))
            return unit.size;
    return std::nullopt;
}

/// The sum of "number unit" pairs.
template<std::size_t count>
std::optional<double> sumOf(const QString& text, const Unit (&units)[count], double bareUnit) {
    static const QRegularExpression pair("\\s*(\\d+(?:[.,]\\d+)?|[.,]\\d+)\\s*([^\\d\\s.,]*)\\s*");
    double sum = 0;
    qsizetype at = 0;
    while (at < text.size()) {
        const auto match = pair.match(text, at, QRegularExpression::NormalMatch,
                                      QRegularExpression::AnchorAtOffsetMatchOption);
        if (!match.hasMatch())
            return std::nullopt;
        const QString name = match.captured(2);
        const auto size = name.isEmpty() ? std::optional(bareUnit) : sizeOf(name, units);
        if (!size)
            return std::nullopt;
        sum += match.captured(1).replace(',', '.').toDouble() * *size;
        at = match.capturedEnd();
    }
    return text.trimmed().isEmpty() ? std::nullopt : std::optional(sum);
}

QString number(double value) {
    return QString::number(std::round(value * 100) / 100, 'g', 10);
}

} // namespace

std::optional<double> secondsFrom(const QString& text) {
    static const QRegularExpression clock("^\\s*(?:(\\d+):)?(\\d+):([0-5]?\\d)\\s*$");
    if (const auto match = clock.match(text); match.hasMatch())
        return match.captured(1).toDouble() * 3600 + match.captured(2).toDouble() * 60 +
               match.captured(3).toDouble();
    return sumOf(text, kDurations, 60);
}

std::optional<double> metresFrom(const QString& text, KTUnitConverter::Units units) {
    return sumOf(text, kDistances, units == KTUnitConverter::Units::Imperial ? kFoot : 1);
}

QString textOfSeconds(double seconds) {
    auto isWhole = [&](double unit) { return std::fmod(seconds, unit) == 0; };
    if (seconds >= 3600 && isWhole(3600))
        return number(seconds / 3600) + " h";
    if (seconds >= 120 && isWhole(60))
        return number(seconds / 60) + " min";
    return seconds == 60 ? "1 min" : number(seconds) + " s";
}

QString textOfMetres(double metres, KTUnitConverter::Units units) {
    if (units == KTUnitConverter::Units::Imperial)
        return metres >= kMile ? number(metres / kMile) + " mi" : number(metres / kFoot) + " ft";
    if (units == KTUnitConverter::Units::Nautical && metres >= kNauticalMile)
        return number(metres / kNauticalMile) + " nm";
    return metres >= 1000 && units == KTUnitConverter::Units::Metric ? number(metres / 1000) + " km"
                                                                     : number(metres) + " m";
}

} // namespace TypedQuantity
