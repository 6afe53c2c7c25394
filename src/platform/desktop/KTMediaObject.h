#pragma once
#include "platform/common/KTValue.h"

#include <filesystem>

/// One item of a media library: a picture as the library knows it. A value type.
struct KTMediaObject {
    std::string identifier = {};            ///< the item's own, unique in its source
    std::string mediaSourceIdentifier = {}; ///< of the source that holds it ("com.apple.iPhoto")
    KTValue::Dictionary attributes = {};    ///< what the library says about it; files as texts of their paths
    std::filesystem::path URL = {};         ///< the current file, which may be an edited version
    std::filesystem::path thumbnailURL = {};
};
