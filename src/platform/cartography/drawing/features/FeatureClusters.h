#pragma once
#include "platform/cartography/KTMapProjection.h"

#include <cstdint>
#include <span>
#include <vector>

/// Places put together where they would cover each other. Each cluster stands at one of its places, the one
/// nearest to the middle of its densest part, so that no symbol stands where nothing is; two of these are
/// more than the radius apart, their members at most the radius from theirs. It depends on the places alone,
/// not on their order or a selection. Immutable.
class FeatureClusters {
public:
    struct Cluster {
        KTWorldPoint place;
        std::uint32_t first, count; ///< among members
        bool isStack = false;       ///< several at one place, which no scale parts
    };

    /// @p places with x within [0, 1), @p radius in widths of the world. Takes some milliseconds for 20,000.
    FeatureClusters(const std::vector<KTWorldPoint>& places, double radius);

    /// From north to south.
    const std::vector<Cluster>& clusters() const { return list; }
    /// The indexes of a cluster's places, ascending.
    std::span<const std::uint32_t> membersOf(const Cluster& cluster) const {
        return std::span(members).subspan(cluster.first, cluster.count);
    }

private:
    std::vector<Cluster> list;
    std::vector<std::uint32_t> members;
};
