#pragma once
#include "platform/cartography/drawing/features/FeatureClusters.h"

#include <map>
#include <memory>
#include <mutex>

/// Where features are on the flat map, and how they cluster at each scale. Immutable; any thread.
class FeaturePlaces {
public:
    /// Their x within [0, 1).
    explicit FeaturePlaces(std::vector<KTWorldPoint> points) : places(std::move(points)) {}

    const std::vector<KTWorldPoint>& points() const { return places; }
    /// The clusters at @p zoom, the same for the whole world and all places of the view, so that none changes
    /// while the map is panned. They change in steps of half a zoom. Made when first asked for.
    std::shared_ptr<const FeatureClusters> clustersForZoom(double zoom) const;
    /// The indexes, ascending, of those inside @p rect, wherever the world repeats itself.
    std::vector<std::uint32_t> indexesIn(const KTWorldRect& rect) const;

private:
    const std::vector<KTWorldPoint> places;
    mutable std::mutex mutex; // guards what follows
    mutable std::map<int, std::shared_ptr<const FeatureClusters>> byStep;
};
