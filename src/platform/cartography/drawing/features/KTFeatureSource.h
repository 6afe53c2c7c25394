#pragma once
#include "platform/cartography/drawing/features/FeatureSnapshot.h"

/// The features of one controller for the layers that draw them and for those who point at them. Main thread.
class KTFeatureSource {
public:
    /// @p featureController must stay until the source is gone. @p changeHandler is called when features or
    /// selection have changed.
    KTFeatureSource(KTSpatialObjectController& featureController, std::function<void()> changeHandler);

    KTSpatialObjectController& controller() const { return features; }
    /// The features as they are now.
    const std::shared_ptr<const FeatureSnapshot>& snapshot();
    /// Says that something about the features has changed which their controller does not announce.
    void setNeedsSnapshot();
    /// The objects of features with these numbers in the snapshot.
    KTSpatialObjectController::Objects objectsOf(std::span<const std::uint32_t> numbers);

private:
    KTSpatialObjectController& features;
    const std::function<void()> hasChanged;
    std::shared_ptr<const FeatureSnapshot> current;
    bool isOutOfDate = true;
    KTObservable::Observation observation;
};
