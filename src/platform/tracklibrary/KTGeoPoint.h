#pragma once
#include "platform/common/KTDecimal.h"
#include "platform/common/KTInstant.h"

/// One recorded point. Coordinates carry the digits of the file that they came from, in degrees, and are set
/// together.
struct KTGeoPoint {
    std::optional<KTInstant> date = {};
    std::optional<KTDecimal> latitude = {};  ///< north positive, -90 … 90
    std::optional<KTDecimal> longitude = {}; ///< east positive, -180 … 180
    std::optional<KTDecimal> elevation = {}; ///< metres above sea level

    bool operator==(const KTGeoPoint& other) const = default;
};
