#pragma once
#include "platform/cartography/KTSpatialObjectController.h"
#include "platform/cartography/drawing/features/FeaturePlaces.h"
#include "platform/cartography/drawing/features/MapFeature.h"

/// The features of one controller that have a place, as they were at one moment. Immutable; any thread.
class FeatureSnapshot {
public:
    /// Asks the controller and its features; main thread. @p previous, of the same controller or null, lends
    /// what did not change.
    static std::shared_ptr<const FeatureSnapshot> of(const KTSpatialObjectController& controller,
                                                     const FeatureSnapshot* previous);

    /// In the order in which they are drawn.
    const std::vector<MapFeature>& features() const { return list; }
    /// Where each of them is.
    const FeaturePlaces& places() const { return *where; }
    /// The symbols of a feature on a map of the scale 1 : @p scaleDenominator.
    SymbolSet symbolsOf(const MapFeature& feature, double scaleDenominator) const {
        return scaleDenominator <= closeUpDenominator ? feature.closeUpSymbols : feature.symbols;
    }
    std::size_t selectedCount() const { return numberSelected; }

private:
    void add(const KTSpatialObject& object, std::uint32_t index, bool isSelected);

    std::vector<MapFeature> list;
    std::shared_ptr<const FeaturePlaces> where;
    double closeUpDenominator = 0; ///< up to which closeUpSymbols hold
    std::size_t numberSelected = 0;
};
