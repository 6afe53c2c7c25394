#include "platform/cartography/drawing/tracks/KTTrackLayer.h"

#include "platform/cartography/drawing/tracks/TrackColours.h"
#include "platform/cartography/drawing/tracks/TrackDrawing.h"

#include <array>

KTTrackLayer::~KTTrackLayer() = default;

/// Tracks that stay keep their colours, new ones get those that the fewest tracks have.
void KTTrackLayer::setTracks(std::vector<KTMapTrack> newTracks) {
    shown = std::move(newTracks);
    std::array<std::size_t, TrackColours::kCount> uses = {};
    std::map<std::int64_t, std::size_t> kept;
    for (const KTMapTrack& track : shown)
        if (const auto found = colours.find(track.id); found != colours.end() && kept.insert(*found).second)
            ++uses[found->second];
    for (const KTMapTrack& track : shown)
        if (!kept.contains(track.id)) {
            const auto rarest = std::ranges::min_element(uses);
            ++*rarest;
            kept[track.id] = std::size_t(rarest - uses.begin());
        }
    colours = std::move(kept);
    current = nullptr;
    changed();
}

QColor KTTrackLayer::colourOfTrack(std::int64_t id, bool isDark) const {
    const auto track = std::ranges::find(shown, id, &KTMapTrack::id);
    if (track != shown.end() && track->colour.isValid())
        return track->colour;
    const auto found = colours.find(id);
    return found == colours.end() ? QColor() : TrackColours::line(found->second, isDark);
}

std::shared_ptr<const KTMapDrawing> KTTrackLayer::drawing(const KTMapViewState&) {
    if (!current && !shown.empty()) {
        std::vector<TrackDrawing::Track> tracks;
        for (const KTMapTrack& track : shown)
            tracks.push_back({track.line, {colourOfTrack(track.id, false), colourOfTrack(track.id, true)}});
        current = std::make_shared<TrackDrawing>(std::move(tracks));
    }
    return current;
}

std::optional<KTTrackLayer::Hit> KTTrackLayer::hitTest(KTViewPoint point, const KTMapViewState& state,
                                                       double radius) const {
    const KTWorldPoint world = state.worldPoint(point);
    double best = radius / state.worldSize();
    std::optional<Hit> hit;
    for (const KTMapTrack& track : shown) {
        const KTWorldRect& box = track.line->worldRect();
        const auto [first, last] = state.visibleTurns(box.left, box.right, radius);
        for (int turn = first; turn <= last; ++turn) {
            const auto place =
                track.line->nearest({world.x - turn, world.y}, best, TrackDrawing::zoomOf(state));
            if (!place)
                continue;
            KTMapPoint position = KTUnproject(place->point);
            position.x = KTNormalizedLongitude(position.x);
            hit = Hit{track, position, place->date, place->isInGap};
            best = place->distance;
        }
    }
    return hit;
}
