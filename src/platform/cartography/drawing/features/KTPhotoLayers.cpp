#include "platform/cartography/drawing/features/KTPhotoLayers.h"

#include "platform/cartography/drawing/features/PhotoDrawings.h"
#include "platform/cartography/drawing/features/PhotoMarks.h"

#include <cmath>

namespace {

using Mark = KTPhotoLayers::Mark;

template<class Drawing>
FeatureLayer::Draw drawn(bool needsSelection) {
    return [needsSelection](const FeatureLayer::Snapshot& photos) -> std::shared_ptr<const KTMapDrawing> {
        if (photos->features().empty() || (needsSelection && photos->selectedCount() == 0))
            return nullptr;
        return std::make_shared<Drawing>(photos);
    };
}

Mark markOf(const PhotoMarks::Group& group, const KTMapViewState& state) {
    return {.kind = group.isSingle() ? Mark::Kind::Photo
                    : group.isStack  ? Mark::Kind::Stack
                                     : Mark::Kind::Cluster,
            .numbers = {group.members.begin(), group.members.end()},
            .selected = group.selected,
            .centre = group.centre,
            .radius = group.radius(),
            .position = state.position(group.centre)};
}

Mark markOf(const PhotoMarks::Selected& selected, const KTMapViewState& state) {
    return {.numbers = {selected.feature},
            .selected = 1,
            .centre = selected.centre,
            .radius = FeatureSymbols::kBallRadius + 2,
            .position = state.position(selected.centre)};
}

double distance(KTViewPoint a, KTViewPoint b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

} // namespace

KTPhotoLayers::KTPhotoLayers(KTSpatialObjectController& photos)
    : features(photos,
               [this] {
                   for (KTMapLayer* layer : layers())
                       static_cast<FeatureLayer*>(layer)->setNeedsDisplay();
               }),
      lines(KTMapLayer::Place::Geodesics, features, drawn<PhotoLineDrawing>(true)),
      markers(KTMapLayer::Place::Photos, features, drawn<PhotoMarkerDrawing>(false)),
      selection(KTMapLayer::Place::Selection, features, drawn<PhotoSelectionDrawing>(true)) {}

std::vector<Mark> KTPhotoLayers::visibleMarks(const KTMapViewState& state) {
    const PhotoMarks marks(*features.snapshot(), state);
    std::vector<Mark> visible;
    const auto isInView = [&](KTViewPoint centre, double radius) {
        return centre.x > -radius && centre.x < state.width() + radius && centre.y > -radius &&
               centre.y < state.height() + radius;
    };
    for (const PhotoMarks::Group& group : marks.groups())
        if (isInView(group.centre, group.radius()))
            visible.push_back(markOf(group, state));
    for (const PhotoMarks::Selected& selected : marks.selected())
        if (isInView(selected.centre, FeatureSymbols::kBallRadius))
            visible.push_back(markOf(selected, state));
    return visible;
}

std::optional<Mark> KTPhotoLayers::hitTest(KTViewPoint point, const KTMapViewState& state) {
    const PhotoMarks marks(*features.snapshot(), state);
    const auto& selected = marks.selected();
    for (auto mark = selected.rbegin(); mark != selected.rend(); ++mark)
        if (distance(mark->centre, point) <= FeatureSymbols::kBallRadius + 2)
            return markOf(*mark, state);
    const auto& groups = marks.groups();
    for (auto group = groups.rbegin(); group != groups.rend(); ++group)
        if (distance(group->centre, point) <= group->radius())
            return markOf(*group, state);
    return std::nullopt;
}

std::optional<KTMapBounds> KTPhotoLayers::boundsOf(const Mark& mark) {
    std::vector<KTMapPoint> positions;
    for (const std::uint32_t number : mark.numbers)
        positions.push_back(features.snapshot()->features()[number].position);
    return KTMapBounds::ofPoints(positions);
}

KTPhotoLayers::Objects KTPhotoLayers::objectsIn(KTViewPoint corner, KTViewPoint oppositeCorner,
                                                const KTMapViewState& state) {
    const KTWorldPoint from = state.worldPoint(corner), to = state.worldPoint(oppositeCorner);
    return features.objectsOf(features.snapshot()->places().indexesIn(
        {std::min(from.x, to.x), std::min(from.y, to.y), std::max(from.x, to.x), std::max(from.y, to.y)}));
}
