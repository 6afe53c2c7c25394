#include "geotagging/KTPointChoice.h"

#include <limits>

namespace {

/// Seconds from @p instant to the point of @p date; endless for one without a date.
double gap(KTInstant instant, const std::optional<KTInstant>& date) {
    return date ? KTSecondsBetween(instant, *date) : std::numeric_limits<double>::infinity();
}

KTDecimal weighted(const KTDecimal& preceding, const KTDecimal& next, const KTDecimal& weight) {
    return (next - preceding) * weight + preceding;
}

} // namespace

std::optional<KTPointChoice> KTChoosePoint(const KTGeotaggingCriteria& criteria, KTInstant instant,
                                           const KTTrackNeighbours& neighbours) {
    const auto& [preceding, next] = neighbours;
    if (preceding && next) {
        if (criteria.shouldUseTimeWeightedAverage)
            return KTPointChoice::TimeWeighted;
        return gap(instant, preceding->date) <= gap(instant, next->date) ? KTPointChoice::Preceding
                                                                         : KTPointChoice::Next;
    }
    if (preceding)
        return KTPointChoice::Preceding;
    return next ? std::optional(KTPointChoice::Next) : std::nullopt;
}

std::optional<KTGeoPoint> KTTimeWeightedPosition(const KTGeoPoint& preceding, const KTGeoPoint& next,
                                                 KTInstant instant) {
    for (const KTGeoPoint* point : {&preceding, &next})
        if (!point->date || !point->latitude || !point->longitude)
            return std::nullopt;
    const double before = gap(instant, preceding.date), after = gap(instant, next.date);
    const KTDecimal weight =
        before + after > 0 ? KTDecimal::fromDouble(before / (before + after)) : KTDecimal();

    KTGeoPoint result;
    result.latitude = weighted(*preceding.latitude, *next.latitude, weight);
    result.longitude = weighted(*preceding.longitude, *next.longitude, weight);
    if (preceding.elevation && next.elevation)
        result.elevation = weighted(*preceding.elevation, *next.elevation, weight);
    return result;
}
