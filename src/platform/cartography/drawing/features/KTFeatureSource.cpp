#include "platform/cartography/drawing/features/KTFeatureSource.h"

KTFeatureSource::KTFeatureSource(KTSpatialObjectController& featureController,
                                 std::function<void()> changeHandler)
    : features(featureController), hasChanged(std::move(changeHandler)),
      observation(featureController.observe([this](const KTChange& change) {
          if (!change.isPrior && change.key.starts_with("spatialObject"))
              setNeedsSnapshot();
      })) {}

const std::shared_ptr<const FeatureSnapshot>& KTFeatureSource::snapshot() {
    if (std::exchange(isOutOfDate, false))
        current = FeatureSnapshot::of(features, current.get());
    return current;
}

void KTFeatureSource::setNeedsSnapshot() {
    isOutOfDate = true;
    hasChanged();
}

KTSpatialObjectController::Objects KTFeatureSource::objectsOf(std::span<const std::uint32_t> numbers) {
    const auto objects = features.spatialObjects();
    KTSpatialObjectController::Objects found;
    for (const std::uint32_t number : numbers)
        if (const std::size_t object = snapshot()->features()[number].object; object < objects.size())
            found.push_back(objects[object]);
    return found;
}
