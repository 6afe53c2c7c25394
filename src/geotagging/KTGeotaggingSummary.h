#pragma once
#include "geotagging/KTGeotaggingCounters.h"

#include <string>

/// The counts of a computation as sentences for the user, in the user's language and units. Texts without an
/// occasion are empty.
struct KTGeotaggingSummary {
    bool hasSuccesses = false;
    std::string successTitle, successDescription, successButtonTitle;

    bool hasFailures = false; ///< photos already geotagged are no failures here
    std::string failureTitle, failureDescription;
    bool hasFailureTip = false; ///< only where all failures are of one kind
    std::string failureTip;

    bool hasAlreadyGeotagged = false;
    std::string alreadyGeotaggedDescription;

    /// @p criteria are those under which @p counters came about; their restrictions are named in the texts.
    static KTGeotaggingSummary summaryOf(const KTGeotaggingCounters& counters,
                                         const KTGeotaggingCriteria& criteria);
};
