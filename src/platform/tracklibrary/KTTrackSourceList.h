#pragma once
#include "platform/observing/KTObservable.h"
#include "platform/tracklibrary/KTTrackRecord.h"

#include <unordered_map>
#include <vector>

/// The rows that the track library shows, and which of them are selected. Observable under the names of its
/// properties. Main thread.
class KTTrackSourceList : public KTObservable {
public:
    using Records = std::vector<KTTrackRecord>;
    using Snapshot = std::shared_ptr<const Records>;
    using Indexes = std::vector<std::size_t>; ///< ascending, each once

    /// Tracks and routes in the order of their import, then waypoints.
    const Snapshot& tracksAndWaypoints() const { return rows; }
    /// What is still there stays selected.
    void setTracksAndWaypoints(Records records);

    const Records& selectedTracksAndWaypoints() const { return selected; }
    /// Those of the selected records that are rows.
    Indexes selectedIndexes() const;
    void setSelectedIndexes(const Indexes& indexes);
    void setSelectedTracksAndWaypoints(Records records);

    /// Metres along a listed track or route; nothing while that is not known, and where it has no length.
    /// "trackLengths" is announced when more are known.
    std::optional<double> lengthOfTrack(std::int64_t track) const;
    bool isLengthKnown(std::int64_t track) const { return lengths.contains(track); }
    void addLengths(const std::vector<std::pair<std::int64_t, std::optional<double>>>& known);

private:
    Snapshot rows = std::make_shared<const Records>();
    Records selected;
    std::unordered_map<std::int64_t, std::optional<double>> lengths; // numbers of tracks are never used again
};
