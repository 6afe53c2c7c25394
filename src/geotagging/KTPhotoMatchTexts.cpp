#include "geotagging/KTPhotoMatchTexts.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/common/KTTimeZone.h"
#include "platform/common/KTUnitConverter.h"
#include "platform/geodesy/KTGeodesy.h"

#include <cmath>

namespace {

using enum KTGeotaggingVerdict;

/// "2014-06-01 12:00:00", as clocks show it that are @p secondsEast of UTC.
std::string readingAt(KTInstant instant, int secondsEast) {
    std::string text = KTISO8601Text(instant + std::chrono::seconds(secondsEast)).substr(0, 19);
    if (text.size() > 10)
        text[10] = ' ';
    return text;
}

/// "2014-06-01 10:00:00 UTC (2014-06-01 12:00:00 +02:00)".
std::string bothReadings(KTInstant instant, const KTTimeZone& zone) {
    const std::string utc = readingAt(instant, 0) + " UTC";
    const int east = zone.secondsFromGMT(instant);
    return east == 0 ? utc : utc + " (" + readingAt(instant, east) + " " + zone.offsetText(instant) + ")";
}

std::string duration(double seconds) {
    return KTUnitConverter::sharedUnitConverter().roundedDescriptionFromSeconds(std::llround(seconds));
}

std::string distance(double metres) {
    return KTUnitConverter::sharedUnitConverter().roundedDefaultDistanceDescriptionFromMeters(metres);
}

std::string format(const char* text, std::string argument) {
    return KTStringWithFormat(KTLocalizedString(text), {std::move(argument)});
}

/// Metres between the two neighbours; nothing where one of them or its position
/// is missing.
std::optional<double> wayBetween(const KTLinkedPoints& links) {
    if (!links.preceding || !links.next || !links.preceding->hasPosition() || !links.next->hasPosition())
        return std::nullopt;
    return KTEarthDistance(links.preceding->longitude()->toDouble(), links.preceding->latitude()->toDouble(),
                           links.next->longitude()->toDouble(), links.next->latitude()->toDouble());
}

std::string reason(KTGeotaggingVerdict verdict, const KTGeotaggingCriteria& criteria) {
    const std::string limit = duration(std::trunc(criteria.timeRestriction));
    const std::string width = distance(criteria.distanceRestriction);
    switch (verdict) {
    case TimeCriteriaFailure:
        return format("The photo is more than %@ from the nearest track point.", limit);
    case DistanceCriteriaFailure:
        return format("The photo is not between points less than %@ apart.", width);
    case TimeAndDistanceFailure:
        return KTStringWithFormat(
            KTLocalizedString("The photo is more than %@ from the nearest track point, and "
                              "not between points less than %@ apart."),
            {limit, width});
    case NoDateTimeOriginal:
        return KTLocalizedString("The photo has no capture date.");
    case PreviouslyGeotagged:
        return KTLocalizedString("The photo has a location already.");
    case Accepted:
        break;
    }
    return KTLocalizedString("The photo can be geotagged.");
}

std::string firstLine(const KTGeotaggingFate& fate, bool hasPoint, const KTGeotaggingCriteria& criteria) {
    if (!fate.links && fate.verdict != NoDateTimeOriginal && fate.verdict != PreviouslyGeotagged)
        return KTLocalizedString("Looking for track points…");
    if (fate.verdict == Accepted && !hasPoint)
        return KTLocalizedString("There are no track points.");
    return reason(fate.verdict, criteria);
}

std::string statusOf(const KTGeotaggingFate& fate, const std::optional<double>& gap) {
    if (fate.verdict == PreviouslyGeotagged)
        return {};
    if (fate.verdict == NoDateTimeOriginal)
        return KTLocalizedString("No capture date");
    if (!fate.links)
        return KTLocalizedString("Looking for track points…");
    if (!gap)
        return KTLocalizedString("No track points");
    if (fate.verdict == Accepted)
        return format("Track point %@ away", duration(*gap));
    if (fate.verdict == DistanceCriteriaFailure)
        return KTLocalizedString("No match: track points too far apart");
    return format("No match: nearest track point %@ away", duration(*gap));
}

} // namespace

KTLinkedPoints::Point KTNearestPoint(const KTLinkedPoints& links) {
    auto gap = [&](const KTLinkedPoints::Point& point) {
        return point && point->date() && links.instant
                   ? std::optional(KTSecondsBetween(*links.instant, *point->date()))
                   : std::nullopt;
    };
    const auto before = gap(links.preceding), after = gap(links.next);
    if (before && after)
        return *before <= *after ? links.preceding : links.next;
    return before ? links.preceding : after ? links.next : nullptr;
}

KTPhotoMatchTexts KTPhotoMatchTexts::textsOf(const KTGeotaggingFate& fate,
                                             const KTGeotaggingCriteria& criteria,
                                             const KTTimeZone& displayZone) {
    const KTLinkedPoints::Point nearest = fate.links ? KTNearestPoint(*fate.links) : nullptr;
    std::optional<double> gap;
    if (nearest)
        gap = KTSecondsBetween(*fate.links->instant, *nearest->date());
    KTPhotoMatchTexts texts;
    texts.status = statusOf(fate, gap);

    std::vector<std::string> lines{firstLine(fate, gap.has_value(), criteria)};
    if (fate.links && fate.links->instant)
        lines.push_back(format("Photo: %@", bothReadings(*fate.links->instant, displayZone)));
    if (nearest) {
        lines.push_back(format("Nearest track point: %@", bothReadings(*nearest->date(), displayZone)));
        lines.push_back(nearest == fate.links->preceding ? format("%@ before photo.", duration(*gap))
                                                         : format("%@ after photo.", duration(*gap)));
        if (const auto way = wayBetween(*fate.links); way && criteria.shouldUseDistanceRestriction)
            lines.push_back(format("The track points before and after it are %@ apart.", distance(*way)));
    }
    texts.explanation = KTJoin(lines, "\n");
    return texts;
}
