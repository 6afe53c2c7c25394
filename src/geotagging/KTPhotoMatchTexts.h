#pragma once
#include "geotagging/KTGeotaggingComputation.h"

class KTTimeZone;

/// What came of one photo's search for track points, for the user, in the
/// user's language and units.
struct KTPhotoMatchTexts {
    /// A few words for a column: how far in time the nearest track point is, or
    /// what stands in the way. Empty for a photo that has a position and is left
    /// alone.
    std::string status;
    /// For a tool tip, a line each: the reason, the capture instant and the
    /// nearest track point's, in UTC and in the display zone, the time between
    /// the two, and, where that matters, the way between the two neighbouring
    /// track points.
    std::string explanation;

    static KTPhotoMatchTexts textsOf(const KTGeotaggingFate& fate, const KTGeotaggingCriteria& criteria,
                                     const KTTimeZone& displayZone);
};

/// The track point of @p links that is nearer in time to the photo; null where
/// there is none.
KTLinkedPoints::Point KTNearestPoint(const KTLinkedPoints& links);
