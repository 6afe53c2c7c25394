#pragma once
#include "platform/common/KTUnitConverter.h"

#include <QString>
#include <optional>

/// Durations and distances as people type them.
namespace TypedQuantity {

/// "5 min", "90 s", "1:30", "1 h 30 min", "5 minutes" as seconds; a bare number counts minutes. Decimal point
/// or comma. Nothing for what is no duration, or negative.
std::optional<double> secondsFrom(const QString& text);

/// "25 m", "80 ft", "1.5 km", "0.3 mi", "2 nm" as metres; a bare number counts metres, or feet where these
/// are the user's units.
std::optional<double> metresFrom(const QString& text, KTUnitConverter::Units units);

/// The shortest text that reads back as that many seconds: "5 min", "90 s", "2 h".
QString textOfSeconds(double seconds);
/// The same for metres, in the user's units: "25 m", "82 ft", "1.5 km".
QString textOfMetres(double metres, KTUnitConverter::Units units);

} // namespace TypedQuantity
