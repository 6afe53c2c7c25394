#include "geotagging/KTGeotaggingComputation.h"

#include "geotagging/KTAsynchronousWaymark.h"

namespace {

const KTLinkedPoints kNoPoints;

KTGeotaggingFate fateOf(const KTPhotoManager::Photo& photo, const KTGeotaggingCriteria& criteria,
                        const KTAsynchronousWaymark& linker) {
    KTGeotaggingFate fate{photo, linker.linkedPointsForPhoto(photo)};
    const auto instant = photo->dateTimeOriginal();
    if (fate.links && fate.links->instant != instant)
        fate.links = nullptr; // the change is about to be announced to the linker
    const KTTrackNeighbours& neighbours = (fate.links ? *fate.links : kNoPoints).neighbours;
    fate.verdict = KTJudgePhoto(criteria, photo->isGeotagged(), instant, neighbours);
    if (fate.verdict == KTGeotaggingVerdict::Accepted && fate.links && instant)
        fate.choice = KTChoosePoint(criteria, *instant, neighbours);
    if (!fate.point())
        fate.choice.reset();
    return fate;
}

} // namespace

const KTLinkedPoints::Point& KTGeotaggingFate::point() const {
    static const KTLinkedPoints::Point none;
    if (!choice || !links)
        return none;
    return *choice == KTPointChoice::Preceding ? links->preceding
           : *choice == KTPointChoice::Next    ? links->next
                                               : links->interpolated;
}

KTGeotaggingComputation KTGeotaggingComputation::computationOf(const KTPhotoManager::Photos& photos,
                                                               const KTGeotaggingCriteria& criteria,
                                                               const KTAsynchronousWaymark& linker) {
    KTGeotaggingComputation computation{criteria};
    computation.fates.reserve(photos.size());
    for (const auto& photo : photos) {
        const KTGeotaggingFate& fate = computation.fates.emplace_back(fateOf(photo, criteria, linker));
        computation.counters.count(fate.verdict, fate.choice);
        computation.photosBeingLinked += fate.links ? 0 : 1;
        if (fate.point())
            computation.batchPointArray.push_back(fate.point());
    }
    return computation;
}

KTGeotaggingComputation::Operations KTGeotaggingComputation::operations() const {
    Operations operations;
    for (const KTGeotaggingFate& fate : fates) {
        if (!fate.point())
            continue;
        operations.push_back(std::make_shared<KTOperation>(
            [photo = fate.photo, point = fate.point(), instant = fate.links->instant,
             sparesGeotagged = criteria.shouldIgnorePreviouslyTaggedPhotos] {
                if (photo->dateTimeOriginal() == instant && !(sparesGeotagged && photo->isGeotagged()))
                    photo->setLocationCreatedFromLinkablePoint(point);
            }));
    }
    return operations;
}
