#pragma once
#include "platform/cartography/KTMapViewState.h"
#include "platform/cartography/drawing/features/FeatureSnapshot.h"
#include "platform/cartography/drawing/features/FeatureSymbols.h"

/// Which sign of a snapshot's features stands where in a view; the one answer for what is drawn and for what
/// is found under the pointer. Any thread.
class PhotoMarks {
public:
    /// A cluster, a stack, or a feature alone, in one repetition of the world.
    struct Group {
        KTViewPoint centre;
        std::span<const std::uint32_t> members; ///< numbers of features
        std::size_t selected = 0;               ///< how many of them
        bool isStack = false;

        bool isSingle() const { return members.size() == 1; }
        double radius() const {
            return isSingle() ? FeatureSymbols::kBallRadius + 2
                              : FeatureSymbols::clusterRadius(members.size()) + 2;
        }
    };
    /// A selected feature that is drawn by itself, above all groups.
    struct Selected {
        KTViewPoint centre;
        std::uint32_t feature; ///< its number
    };

    PhotoMarks(const FeatureSnapshot& snapshot, const KTMapViewState& viewState);

    /// From north to south. The numbers of members stay as long as this object.
    const std::vector<Group>& groups() const { return list; }
    const std::vector<Selected>& selected() const { return singled; }

private:
    void addGroup(const FeatureSnapshot& snapshot, const KTMapViewState& state,
                  const FeatureClusters::Cluster& cluster, int turn);
    void addSelectedOf(const Group& group, const FeatureSnapshot& snapshot, const KTMapViewState& state,
                       int turn);

    std::shared_ptr<const FeatureClusters> clusters;
    std::vector<Group> list;
    std::vector<Selected> singled;
};
