#pragma once
#include "platform/cartography/KTFeatureValues.h"
#include "platform/cartography/KTMapProjection.h"
#include "platform/cartography/KTSymbolizer.h"

#include <cstdint>

/// Which symbols a feature is drawn with: a set of the alternatives of KTSymbolizer.
class SymbolSet {
public:
    void insert(const KTSymbolizer& symbolizer) { bits |= 1u << symbolizer.index(); }
    template<class Symbolizer>
    bool has() const {
        return (bits & 1u << KTSymbolizer(Symbolizer()).index()) != 0;
    }
    bool operator==(const SymbolSet&) const = default;

private:
    std::uint32_t bits = 0;
};

/// What is drawn of one feature. A plain value.
struct MapFeature {
    std::uint32_t object = 0; ///< among the objects of its controller
    bool isSelected = false;
    SymbolSet symbols = {};        ///< at every scale
    SymbolSet closeUpSymbols = {}; ///< those and the ones of large scales
    KTMapPoint position = {};
    KTFeatureValues values = {};
};
