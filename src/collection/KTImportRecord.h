#pragma once
#include "platform/desktop/KTMediaObject.h"

#include <filesystem>
#include <memory>

/// One file to be loaded. The latter two are a photo library's.
struct KTImportRecord {
    std::filesystem::path photoURL = {};  ///< without symbolic links
    std::filesystem::path listedURL = {}; ///< as given or found
    std::filesystem::path thumbnailURL = {};
    std::shared_ptr<const KTMediaObject> mediaObject = {};
};
