#include "geotagging/KTLinkingOperation.h"

#include "geotagging/KTPointChoice.h"
#include "photo/KTPhoto.h"
#include "platform/geodesy/KTGeodesy.h"

#include <cmath>

namespace {

double metresBetween(const KTTrackNeighbour& left, const KTTrackNeighbour& right) {
    return KTEarthDistance(left.longitude, left.latitude, right.longitude, right.latitude);
}

} // namespace

/// The capture instant is read once, so that both searches and the weights are of the same one; whoever
/// changes it meanwhile starts another operation.
void KTLinkingOperation::main() {
    auto linked = std::make_shared<KTLinkedPoints>();
    linked->instant = thePhoto->dateTimeOriginal();
    if (linked->instant) {
        const auto preceding = search->pointPrecedingTime(*linked->instant);
        const auto next = search->pointFollowingTime(*linked->instant);
        if (preceding) {
            linked->neighbours.preceding = *preceding;
            linked->preceding =
                KTLinkablePoint::initWithGeoPoint(preceding, KTLinkablePointTypePreceding, thePhoto);
        }
        if (next) {
            linked->neighbours.next = *next;
            linked->next = KTLinkablePoint::initWithGeoPoint(next, KTLinkablePointTypeNext, thePhoto);
        }
        if (preceding && next)
            linked->interpolated = timeWeightPointFromPoint(*preceding, *next, *linked->instant);
    }
    std::lock_guard guard(mutex);
    result = std::move(linked);
}

KTLinkingOperation::Point KTLinkingOperation::timeWeightPointFromPoint(const KTGeoPoint& preceding,
                                                                       const KTGeoPoint& next,
                                                                       KTInstant instant) const {
    const auto position = KTTimeWeightedPosition(preceding, next, instant);
    if (!position)
        return nullptr;
    auto point = KTLinkablePoint::initWithGeoPoint(position, KTLinkablePointTypeTimeWeighted, thePhoto);
    point->setPrecedingDistance(metresBetween(*position, preceding));
    point->setNextDistance(metresBetween(*position, next));
    point->setNeighboursSpanDateLine(std::abs(preceding.longitude->toDouble() - next.longitude->toDouble()) >
                                     180);
    return point;
}

KTLinkingOperation::Result KTLinkingOperation::linkedPoints() const {
    std::lock_guard guard(mutex);
    return result;
}

KTLinkingOperation::Point KTLinkingOperation::pointOf(Point KTLinkedPoints::*which) const {
    const Result linked = linkedPoints();
    return linked ? (*linked).*which : nullptr;
}
