#pragma once
#include "KTExportedPhoto.h"

#include <optional>

/// A recorded point.
struct KTExportedPoint {
    double latitude = 0;                  ///< degrees, north positive
    double longitude = 0;                 ///< degrees, east positive, -180 … 180
    std::optional<double> elevation = {}; ///< metres above sea level
    std::optional<KTExportedInstant> date = {};
};

/// A recorded track. Made by the host. Any thread.
class KTExportedTrack {
public:
    virtual ~KTExportedTrack() = default;

    virtual std::string name() const = 0;
    /// Read from the track library at each call, so ask once; points without a position are left out, and
    /// those near a place that no export may tell, where a segment is parted. Empty for a track that was
    /// deleted meanwhile.
    virtual std::vector<std::vector<KTExportedPoint>> segments() const = 0;
};
