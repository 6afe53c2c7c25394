#pragma once
#include "platform/common/KTInstant.h"

#include <string>

/// A tile as a server sent it, and what is needed to ask whether it still holds.
struct StoredTile {
    std::string content; ///< the bytes of the image
    KTInstant freshUntil = {};
    std::string etag = {}, lastModified = {}; ///< as the server wrote them; empty where it did not
};
