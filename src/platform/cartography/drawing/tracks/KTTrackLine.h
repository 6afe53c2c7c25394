#pragma once
#include "platform/cartography/KTMapBounds.h"
#include "platform/cartography/KTMapProjection.h"
#include "platform/cartography/drawing/tracks/TrackLevel.h"
#include "platform/tracklibrary/KTTrackPosition.h"

#include <optional>
#include <vector>

/// The line that a track draws on the map, ready to be drawn and pointed at fast at any scale: its points on
/// the flat map and a level of detail for each zoom. Immutable; any thread.
///
/// There is a gap between two neighbouring points that are more than 100 metres apart and of which the second
/// begins a new segment of the file or was recorded more than five minutes after the first: what happened in
/// between is not known, and a photo taken there is further from what was recorded than is usually allowed.
class KTTrackLine {
public:
    static constexpr std::chrono::seconds kGapTime{300};
    static constexpr double kGapDistance = 100; ///< metres

    /// Takes the segments of a track in the order of the file. Points that are no position are left out.
    /// Takes time in proportion to their number.
    explicit KTTrackLine(const std::vector<std::vector<KTTrackPosition>>& segments);

    /// Longitudes run on across the 180° meridian: neighbours are less than half a turn apart.
    const std::vector<KTWorldPoint>& points() const { return world; }
    /// The level to be drawn at @p zoom, of a view with one physical pixel a logical one.
    const TrackLevel& levelForZoom(double zoom) const;
    /// The box around the line on the flat map; empty for a line without points.
    const KTWorldRect& worldRect() const { return box; }
    std::optional<KTMapBounds> bounds() const;

    /// A place on the line.
    struct Place {
        KTWorldPoint point;
        double distance = 0; ///< from what was asked for, on the flat map
        bool isInGap = false;
        std::optional<KTInstant> date =
            {}; ///< between the two neighbours' dates by the way; nothing without them
    };
    /// The place nearest to @p point as drawn at @p zoom, within @p radius on the flat map; nothing where
    /// there is none. The world's repetitions are not looked at.
    std::optional<Place> nearest(KTWorldPoint point, double radius, double zoom) const;

private:
    void append(const KTTrackPosition& point, bool afterGap);
    void makeLevels();
    Place placeBetween(std::size_t first, std::size_t second, KTWorldPoint point) const;
    Place placeAmong(std::size_t first, std::size_t second, KTWorldPoint point) const;

    std::vector<KTWorldPoint> world;
    std::vector<std::int64_t> dates; // milliseconds
    std::vector<std::uint32_t> runs; // index of the first point after each gap; 0 in front
    KTWorldRect box;
    std::vector<TrackLevel> levels; // the most detailed one first
    std::vector<std::size_t> levelOfZoom;
};
