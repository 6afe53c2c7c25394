#pragma once
#include "geotagging/KTLinkedPoints.h"
#include "platform/concurrency/KTOperation.h"
#include "platform/tracklibrary/KTTrackPointSearch.h"

/// Finds the candidate locations of one photo. Looks at its cancellation only before it begins; a run that is
/// cancelled meanwhile has a result all the same, which nobody wants.
class KTLinkingOperation : public KTOperation {
public:
    using Point = KTLinkedPoints::Point;
    using Result = std::shared_ptr<const KTLinkedPoints>;

    KTLinkingOperation(std::shared_ptr<KTPhoto> linkedPhoto,
                       std::shared_ptr<const KTTrackPointSearch> trackSearch)
        : thePhoto(std::move(linkedPhoto)), search(std::move(trackSearch)) {}

    const std::shared_ptr<KTPhoto>& photo() const { return thePhoto; }
    /// The result; null before the end of the run and for an operation that was cancelled before. Any thread.
    Result linkedPoints() const;
    Point precedingPoint() const { return pointOf(&KTLinkedPoints::preceding); }
    Point nextPoint() const { return pointOf(&KTLinkedPoints::next); }
    Point interpolatedPoint() const { return pointOf(&KTLinkedPoints::interpolated); }

protected:
    void main() override;

private:
    Point pointOf(Point KTLinkedPoints::*which) const;
    Point timeWeightPointFromPoint(const KTGeoPoint& preceding, const KTGeoPoint& next,
                                   KTInstant instant) const;

    const std::shared_ptr<KTPhoto> thePhoto;
    const std::shared_ptr<const KTTrackPointSearch> search;
    mutable std::mutex mutex; // guards the result
    Result result;
};
