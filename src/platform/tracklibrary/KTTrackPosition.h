#pragma once
#include "platform/cartography/KTGeometry.h"
#include "platform/common/KTInstant.h"

/// A recorded position and when it was recorded, where that is known: a point as maps need it.
struct KTTrackPosition {
    KTMapPoint position; ///< degrees
    std::optional<KTInstant> date = {};
};
