#pragma once
#include "collection/KTPhotoManager.h"
#include "geotagging/KTGeotaggingCounters.h"
#include "geotagging/KTLinkedPoints.h"

class KTAsynchronousWaymark;

/// What became of one photo in a computation.
struct KTGeotaggingFate {
    KTPhotoManager::Photo photo;
    std::shared_ptr<const KTLinkedPoints> links; ///< null for a photo that was being linked
    KTGeotaggingVerdict verdict = KTGeotaggingVerdict::Accepted;
    std::optional<KTPointChoice> choice = {}; ///< of an accepted photo for which there is a point

    /// The point that the photo is to get; null for none.
    const KTLinkedPoints::Point& point() const;
};

/// Which of some photos can be geotagged, from which points, and why the others cannot: one look at them
/// under one set of criteria. A value that never changes.
struct KTGeotaggingComputation {
    using Points = std::vector<KTLinkedPoints::Point>;
    using Operations = std::vector<std::shared_ptr<KTOperation>>;

    KTGeotaggingCriteria criteria;
    KTGeotaggingCounters counters = {};
    std::vector<KTGeotaggingFate> fates = {}; ///< of all photos, in their order
    Points batchPointArray = {};              ///< the points of the accepted ones, in that order
    std::size_t photosBeingLinked = 0; ///< judged as if they had no points; a later computation has them

    /// Judges @p photos by what @p linker knows of them now. Any thread.
    static KTGeotaggingComputation computationOf(const KTPhotoManager::Photos& photos,
                                                 const KTGeotaggingCriteria& criteria,
                                                 const KTAsynchronousWaymark& linker);
    /// New operations, one for each of the points, which write the point into its photo; see
    /// KTPhoto::setLocationCreatedFromLinkablePoint. A photo whose capture instant has changed since, or that
    /// has got a position where those that have one are to be left alone, is left alone.
    Operations operations() const;
};
