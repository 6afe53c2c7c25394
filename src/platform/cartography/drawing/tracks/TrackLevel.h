#pragma once
#include "platform/cartography/KTMapProjection.h"

#include <cstdint>
#include <vector>

/// The points of a track that matter up to some scale, in chunks that a view can leave out. Immutable.
class TrackLevel {
public:
    /// Neighbouring points of one run.
    struct Chunk {
        KTWorldRect box;
        std::uint32_t first, last; ///< among indexes; a chunk begins with the last point of the one before it
        bool beginsRun;            ///< between it and the chunk before there is a gap
    };

    /// The level of every point of runs that begin at @p starts.
    TrackLevel(const std::vector<KTWorldPoint>& points, const std::vector<std::uint32_t>& starts);
    /// A level made from a more detailed one: its line strays from that by @p tolerance at most, and gaps
    /// shorter than @p shortestGap are closed; both in widths of the world.
    TrackLevel(const TrackLevel& finer, const std::vector<KTWorldPoint>& points, double tolerance,
               double shortestGap);

    /// Which of the track's points, ascending.
    const std::vector<std::uint32_t>& indexes() const { return chosen; }
    const std::vector<Chunk>& chunks() const { return pieces; }

private:
    void simplifyRun(const std::vector<std::uint32_t>& run, const std::vector<KTWorldPoint>& points,
                     double tolerance);
    void addRun(std::size_t begin, const std::vector<KTWorldPoint>& points);

    std::vector<std::uint32_t> chosen;
    std::vector<Chunk> pieces;
};
