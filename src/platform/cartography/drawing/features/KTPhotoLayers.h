#pragma once
#include "platform/cartography/KTMapBounds.h"
#include "platform/cartography/drawing/features/FeatureLayer.h"

#include <array>
#include <optional>

/// The photos on the map: their markers, the lines to what they show, and what marks the selected ones; and
/// what lies under the pointer. Main thread.
///
/// Markers that would cover each other are drawn as one round sign with their number, at the place of one of
/// them; a dot stands at the true place of every other one. Photos at one place are drawn as a pile. A
/// selected photo is also drawn by itself, above all others, unless its cluster has many of them.
class KTPhotoLayers {
public:
    using Objects = KTSpatialObjectController::Objects;

    /// A sign in the view: one photo, or several drawn as one.
    struct Mark {
        enum class Kind { Photo, Stack, Cluster };
        Kind kind = Kind::Photo;
        std::vector<std::uint32_t> numbers; ///< of its features in the source's snapshot
        std::size_t selected = 0;           ///< how many of them
        KTViewPoint centre;                 ///< in the view, logical pixels
        double radius = 0;                  ///< within which a click means it
        KTMapPoint position;
    };

    /// @p photos must stay until the layers are gone.
    explicit KTPhotoLayers(KTSpatialObjectController& photos);

    /// For the map, in any order.
    std::array<KTMapLayer*, 3> layers() { return {&lines, &markers, &selection}; }
    KTFeatureSource& source() { return features; }

    /// The topmost sign at @p point of the view.
    std::optional<Mark> hitTest(KTViewPoint point, const KTMapViewState& state);
    /// Every sign in the view, from below; those of selected photos last.
    std::vector<Mark> visibleMarks(const KTMapViewState& state);
    Objects objectsOf(const Mark& mark) { return features.objectsOf(mark.numbers); }
    /// The smallest box around a mark's photos, which a map shows to open a cluster.
    std::optional<KTMapBounds> boundsOf(const Mark& mark);
    /// The photos whose places, not signs, lie between two corners of the view.
    Objects objectsIn(KTViewPoint corner, KTViewPoint oppositeCorner, const KTMapViewState& state);

private:
    KTFeatureSource features;
    FeatureLayer lines, markers, selection;
};
