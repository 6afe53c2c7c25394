#include "geotagging/KTGeotaggingSummary.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/common/KTUnitConverter.h"

#include <algorithm>

namespace {

/// A text for one photo and one for several, which are looked up and filled by count.
struct CountedText {
    std::string_view one, several;

    /// "%d" takes @p count, "%@" takes @p restriction.
    std::string text(std::size_t count, const std::string& restriction = {}) const {
        return KTStringWithFormat(KTLocalizedCount(one, several, count), {restriction});
    }
};

/// What is said of one kind of failure.
struct FailureTexts {
    std::size_t KTGeotaggingCounters::*counter;
    std::string (*restriction)(const KTGeotaggingCriteria&);
    CountedText alone; ///< when all failures are of this kind, with the tip
    std::string_view tip;
    CountedText item; ///< in the list of several kinds
};

std::string timeRestrictionText(const KTGeotaggingCriteria& criteria) {
    constexpr double kLimit = 1e15; // seconds; what lies beyond is no duration of photos
    const double seconds = std::clamp(criteria.timeRestriction, 0.0, kLimit);
    return KTUnitConverter::sharedUnitConverter().roundedDescriptionFromSeconds(
        static_cast<std::int64_t>(seconds));
}

std::string distanceRestrictionText(const KTGeotaggingCriteria& criteria) {
    return KTUnitConverter::sharedUnitConverter().roundedDefaultDistanceDescriptionFromMeters(
        criteria.distanceRestriction);
}

std::string noRestrictionText(const KTGeotaggingCriteria&) {
    return {};
}

constexpr FailureTexts kFailures[] = {
    {&KTGeotaggingCounters::timeCriteriaFailures,
     timeRestrictionText,
     {"1 photo is more than %@ from the nearest track point.",
      "%d photos are more than %@ from the nearest track point."},
     "Tip: Try adjusting the camera's time zone.",
     {"1 photo failed the time criteria", "%d photos failed the time criteria"}},
    {&KTGeotaggingCounters::distanceCriteriaFailures,
     distanceRestrictionText,
     {"1 photo is not between points less than %@ apart.",
      "%d photos are not between points less than %@ apart."},
     "Tip: Edit the distance criteria or even manually geotag the photos.",
     {"1 photo failed the distance criteria", "%d photos failed the distance criteria"}},
    {&KTGeotaggingCounters::timeAndDistanceFailures,
     noRestrictionText,
     {"1 photo fails both the time and distance critieria.",
      "%d photos fail both the time and distance critieria."},
     "Tip: Edit the distance or time criteria; or manually geotag the photos.",
     {"1 photo failed both the time & distance criteria",
      "%d photos failed both the time & distance criteria"}},
    {&KTGeotaggingCounters::noDateTimeOriginalFailures,
     noRestrictionText,
     {"1 photo does not have a time stamp.", "%d photos do not have a time stamp."},
     "Tip: Use the date & time setter to add a time to the photo.",
     {"1 photo does not have a time stamp", "%d photos do not have stamps"}},
};
constexpr CountedText kFailureTitle = {"Unable To Geotag 1 Photo", "Unable To Geotag %d Photos"};
constexpr CountedText kSuccessDescription = {"1 photo can be geotagged.", "%d photos can be geotagged"};
constexpr CountedText kSuccessButton = {"Geotag 1 Photo", "Geotag %d Photos"};
constexpr CountedText kAlreadyGeotagged = {"1 photo already geotagged.", "%d photos already geotagged."};

std::string listOf(const std::vector<const FailureTexts*>& kinds, const KTGeotaggingCounters& counters) {
    std::string list;
    for (std::size_t left = kinds.size(); const FailureTexts* kind : kinds) {
        list += kind->item.text(counters.*kind->counter);
        list += left == 1 ? "." : left == 2 ? KTLocalizedString(" and ") : ", ";
        --left;
    }
    return list;
}

void describeFailures(KTGeotaggingSummary& summary, const KTGeotaggingCounters& counters,
                      const KTGeotaggingCriteria& criteria) {
    std::vector<const FailureTexts*> kinds;
    std::size_t failures = 0;
    for (const FailureTexts& kind : kFailures)
        if (const std::size_t count = counters.*kind.counter; count != 0) {
            kinds.push_back(&kind);
            failures += count;
        }
    summary.hasFailures = failures != 0;
    summary.failureTitle = kFailureTitle.text(failures);
    summary.hasFailureTip = kinds.size() == 1;
    if (summary.hasFailureTip) {
        const FailureTexts& kind = *kinds.front();
        summary.failureDescription = kind.alone.text(failures, kind.restriction(criteria));
        summary.failureTip = KTLocalizedString(kind.tip);
    } else {
        summary.failureDescription = listOf(kinds, counters);
    }
}

} // namespace

KTGeotaggingSummary KTGeotaggingSummary::summaryOf(const KTGeotaggingCounters& counters,
                                                   const KTGeotaggingCriteria& criteria) {
    KTGeotaggingSummary summary;
    const std::size_t successes = counters.totalSuccesses;
    summary.hasSuccesses = successes != 0;
    summary.successButtonTitle = KTLocalizedString("Geotag Photos");
    if (summary.hasSuccesses) {
        summary.successTitle = KTLocalizedString("Proposed Locations");
        summary.successDescription = kSuccessDescription.text(successes);
        summary.successButtonTitle = kSuccessButton.text(successes);
    }
    describeFailures(summary, counters, criteria);
    const std::size_t already = counters.previouslyGeotaggedFailures;
    summary.hasAlreadyGeotagged = already != 0;
    if (summary.hasAlreadyGeotagged)
        summary.alreadyGeotaggedDescription = kAlreadyGeotagged.text(already);
    return summary;
}
