#pragma once
#include "platform/cartography/KTFeatureValues.h"

#include <memory>
#include <string>
#include <vector>

class KTGeometry;
class KTSpatialObjectController;
struct KTStyle;

/// A feature that a map layer can draw. The layer asks on the main thread.
class KTSpatialObject {
public:
    virtual ~KTSpatialObject() = default;

    /// What people know the feature by.
    virtual std::string featureName() const = 0;
    /// A sentence about it.
    virtual std::string featureDescription() const = 0;
    /// What sort of thing it is ("Photo").
    virtual std::string kind() const = 0;
    /// The names of the text attributes by which features are told apart in lists.
    virtual std::vector<std::string> propertiesByName() const = 0;
    /// Whether it can be selected and dragged.
    virtual bool allowsInteraction() const = 0;

    /// Where it is; never null, empty for a feature without a place.
    virtual std::shared_ptr<const KTGeometry> geometry() const = 0;
    /// How it is drawn; never null.
    virtual std::shared_ptr<const KTStyle> style() const = 0;
    /// What its symbols show.
    virtual KTFeatureValues featureValues() const { return {}; }

    /// The controller of the layer that shows the feature, set by that layer and not kept alive; null for
    /// none.
    virtual KTSpatialObjectController* objectOwner() const = 0;
    virtual void setObjectOwner(KTSpatialObjectController* owner) = 0;
};
