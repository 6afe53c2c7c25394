#pragma once
#include "platform/cartography/drawing/KTBaseMapLabels.h"

class GazetteerData;

/// The names of the many smaller places on maps of large scales, from the offline gazetteer's data, which
/// knows no population: of names that would meet the one is shown that comes first in an arbitrary, fixed
/// order, so that what is shown does not depend on the view. Immutable; any thread.
class KTGazetteerLabels {
public:
    static constexpr int kFirstZoom = 9;

    /// The places that @p data does not have. Reads the gazetteer's file, in some 50 ms; without a readable
    /// one there are none, which is logged.
    explicit KTGazetteerLabels(const KTBaseMapData& data);
    ~KTGazetteerLabels();

    /// Those that a view shows, where @p taken, made for the whole zoom of that view, has room.
    std::vector<KTBaseMapLabels::Label> labels(const KTMapViewState& state,
                                               const KTLabelPlacement& taken) const;

private:
    struct Place {
        std::uint32_t cell = 0;  // of the grid below
        std::uint32_t order = 0; // of two that meet, the smaller one is shown
        KTWorldPoint point;
        std::string_view name; // of the gazetteer's
    };
    static constexpr int kColumns = 1024; // of a grid of square cells over the world

    static std::uint32_t cellAt(int column, int row) {
        return static_cast<std::uint32_t>(row * kColumns + column);
    }
    void addPlaces(const KTBaseMapData& data);
    std::vector<const Place*> placesIn(const KTWorldRect& rect) const;

    std::unique_ptr<const GazetteerData> gazetteer;
    std::vector<Place> places; // by cell
};
