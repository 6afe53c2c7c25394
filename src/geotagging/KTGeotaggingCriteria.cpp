#include "geotagging/KTGeotaggingCriteria.h"

#include "platform/defaults/KTUserDefaults.h"

KTGeotaggingCriteria KTGeotaggingCriteria::criteriaFromDefaults(const KTUserDefaults& defaults) {
    return {
        .shouldUseDistanceRestriction = defaults.boolForKey("shouldUseDistanceRestriction"),
        .distanceRestriction = restrictionFromInput(defaults.doubleForKey("distanceRestriction")),
        .shouldUseTimeRestriction = defaults.boolForKey("shouldUseTimeRestriction"),
        .timeRestriction = restrictionFromInput(defaults.doubleForKey("timeRestriction")),
        .shouldANDRestrictions = defaults.boolForKey("shouldANDRestrictions"),
        .shouldUseTimeWeightedAverage = defaults.boolForKey("shouldUseTimeWeightedAverage"),
        .shouldIgnorePreviouslyTaggedPhotos = defaults.boolForKey("shouldIgnorePreviouslyTaggedPhotos"),
    };
}
