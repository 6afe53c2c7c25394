#pragma once
#include "platform/observing/KTObservable.h"

#include <memory>
#include <string>
#include <vector>

class KTSpatialObject;

/// A source of features that a map shows as a layer, with a selection among them. Observable under
/// "spatialObjects" and "spatialObjectSelectionIndexes". For the main thread.
class KTSpatialObjectController : public KTObservable {
public:
    using Objects = std::vector<std::shared_ptr<KTSpatialObject>>;
    using Indexes = std::vector<std::size_t>; ///< ascending, each once

    /// The layer's name.
    virtual std::string name() const = 0;
    /// The features in the order in which they are drawn.
    virtual Objects spatialObjects() const = 0;
    /// The selected features among spatialObjects.
    virtual Indexes spatialObjectSelectionIndexes() const = 0;
    /// Makes exactly @p objects the selection; whether the layer has one.
    virtual bool addSelectedSpatialObjects(const Objects& objects) = 0;
    /// Takes @p objects out of the selection; whether the layer does that.
    virtual bool removeSelectedSpatialObjects(const Objects& objects) = 0;
};
