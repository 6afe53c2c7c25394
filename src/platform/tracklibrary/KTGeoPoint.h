#pragma once
#include "platform/common/KTDecimal.h"
#include "platform/common/KTInstant.h"

/// One recorded point. Coordinates carry the digits of the file that they came from.
struct KTGeoPoint {
    std::optional<KTInstant> date;
    std::optional<KTDecimal> latitude; ///< degrees, north positive, -90 … 90; set together with the longitude
    std::optional<KTDecimal> longitude; ///< degrees, east positive, -180 … 180
    std::optional<KTDecimal> elevation; ///< metres above sea level

    bool operator==(const KTGeoPoint& other) const = default;
};
