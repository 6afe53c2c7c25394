#include "platform/cartography/drawing/features/FeatureSnapshot.h"

#include "platform/cartography/KTSpatialObject.h"
#include "platform/cartography/KTStyle.h"

#include <cmath>
#include <limits>

namespace {

constexpr double kAnyScale = std::numeric_limits<double>::infinity();

/// The symbols of @p style; those of rules for large scales alone only where @p isCloseUp.
SymbolSet symbolsBy(const KTStyle& style, bool isSelected, bool isCloseUp, const KTFeatureValues& values) {
    SymbolSet symbols;
    for (const KTRule& rule : style.rules)
        if (rule.appliesTo(isSelected, isCloseUp ? 0 : kAnyScale,
                           [&](const std::string& key) { return values.hasValueForKey(key); }))
            for (const KTSymbolizer& symbolizer : rule.symbolizers)
                symbols.insert(symbolizer);
    return symbols;
}

} // namespace

std::shared_ptr<const FeatureSnapshot> FeatureSnapshot::of(const KTSpatialObjectController& controller,
                                                           const FeatureSnapshot* previous) {
    auto snapshot = std::make_shared<FeatureSnapshot>();
    const KTSpatialObjectController::Objects objects = controller.spatialObjects();
    const KTSpatialObjectController::Indexes selection = controller.spatialObjectSelectionIndexes();
    auto selected = selection.begin();
    snapshot->list.reserve(objects.size());
    for (std::size_t index = 0; index < objects.size(); ++index) {
        const bool isSelected = selected != selection.end() && *selected == index;
        selected += isSelected;
        snapshot->add(*objects[index], std::uint32_t(index), isSelected);
    }
    std::vector<KTWorldPoint> places;
    places.reserve(snapshot->list.size());
    for (const MapFeature& feature : snapshot->list) {
        places.push_back(KTProject(feature.position));
        places.back().x -= std::floor(places.back().x);
    }
    if (previous && previous->where->points() == places)
        snapshot->where = previous->where;
    else
        snapshot->where = std::make_shared<FeaturePlaces>(std::move(places));
    return snapshot;
}

void FeatureSnapshot::add(const KTSpatialObject& object, std::uint32_t index, bool isSelected) {
    const auto geometry = object.geometry();
    if (geometry->isEmpty())
        return;
    const KTMapPoint position = geometry->points().front();
    if (!std::isfinite(position.x) || !std::isfinite(position.y))
        return;
    MapFeature feature{.object = index, .isSelected = isSelected, .position = position};
    feature.values = object.featureValues();
    const auto style = object.style();
    feature.symbols = symbolsBy(*style, isSelected, false, feature.values);
    feature.closeUpSymbols = symbolsBy(*style, isSelected, true, feature.values);
    for (const KTRule& rule : style->rules)
        if (rule.maximumScaleDenominator) // of several limits the smallest: too few symbols are better than
                                          // too many
            closeUpDenominator = closeUpDenominator == 0
                                     ? *rule.maximumScaleDenominator
                                     : std::min(closeUpDenominator, *rule.maximumScaleDenominator);
    numberSelected += isSelected;
    list.push_back(std::move(feature));
}
