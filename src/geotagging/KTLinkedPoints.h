#pragma once
#include "geotagging/KTGeotaggingVerdict.h"
#include "photo/KTLinkablePoint.h"

/// The candidate locations of a photo, as they were found for one capture instant.
struct KTLinkedPoints {
    using Point = std::shared_ptr<KTLinkablePoint>;

    std::optional<KTInstant> instant;    ///< the capture instant; nothing for a photo without
    Point preceding, next, interpolated; ///< null where there is none
    KTTrackNeighbours neighbours;        ///< the first two, as the criteria see them
};
