#include "geotagging/KTGeotaggingCounters.h"

void KTGeotaggingCounters::count(KTGeotaggingVerdict verdict, const std::optional<KTPointChoice>& choice) {
    switch (verdict) {
    case KTGeotaggingVerdict::Accepted:
        totalSuccesses += choice ? 1 : 0;
        totalPreceding += choice == KTPointChoice::Preceding ? 1 : 0;
        totalNext += choice == KTPointChoice::Next ? 1 : 0;
        break;
    case KTGeotaggingVerdict::PreviouslyGeotagged:
        ++previouslyGeotaggedFailures;
        break;
    case KTGeotaggingVerdict::NoDateTimeOriginal:
        ++noDateTimeOriginalFailures;
        break;
    case KTGeotaggingVerdict::TimeCriteriaFailure:
        ++timeCriteriaFailures;
        break;
    case KTGeotaggingVerdict::DistanceCriteriaFailure:
        ++distanceCriteriaFailures;
        break;
    case KTGeotaggingVerdict::TimeAndDistanceFailure:
        ++timeAndDistanceFailures;
        break;
    }
}

std::size_t KTGeotaggingCounters::totalFailures() const {
    return previouslyGeotaggedFailures + noDateTimeOriginalFailures + timeCriteriaFailures +
           distanceCriteriaFailures + timeAndDistanceFailures;
}
