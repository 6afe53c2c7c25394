#pragma once
#include "platform/observing/KTObservable.h"

#include <atomic>

/// Durations, distances and heights as texts in the user's units and language, rounded as a person would say
/// them. Observable under "distanceUnits". Any thread.
class KTUnitConverter : public KTObservable {
public:
    enum class Units { Metric, Imperial, Nautical };

    static KTUnitConverter& sharedUnitConverter();
    /// "metric", "imperial" or "nautical", as the setting of that name holds it.
    static std::optional<Units> unitsFromName(std::string_view name);

    Units distanceUnits() const { return units; }
    void setDistanceUnits(Units newUnits);

    /// Days, hours, minutes and seconds, parts that are zero left out: "1 minute 30 seconds". The sign is
    /// dropped.
    std::string descriptionFromSeconds(std::int64_t seconds) const;
    /// The same to its two largest parts at most, the last one rounded: "2 days 5 hours".
    std::string roundedDescriptionFromSeconds(std::int64_t seconds) const;
    /// "25 m", "1.2 km"; feet and miles, or metres and nautical miles, by the units. "?" for not-a-number.
    std::string roundedDefaultDistanceDescriptionFromMeters(double metres) const;
    /// A height above sea level, negative below: "434.5 m", "1,426 ft".
    std::string heightDescriptionFromMeters(const KTDecimal& metres) const;

private:
    std::atomic<Units> units = Units::Metric;
};
