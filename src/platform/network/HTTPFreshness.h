#pragma once
#include "platform/common/KTInstant.h"
#include "platform/network/HTTPAnswer.h"

/// What an answer's headers say about keeping it (RFC 9111, for a cache of one user).
struct HTTPFreshness {
    KTInstant freshUntil; ///< may be past: then it is to be asked whether the answer still holds
    bool mayBeStored = true;

    /// For an answer that arrived at @p now. Where it says nothing it stays fresh for @p otherwise; in no
    /// case longer than a year.
    static HTTPFreshness of(const HTTPAnswer& answer, KTInstant now, std::chrono::seconds otherwise);
};
