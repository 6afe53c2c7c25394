#pragma once
#include "platform/desktop/KTMediaObject.h"

#include <filesystem>
#include <memory>

/// One file to be loaded.
struct KTImportRecord {
    std::filesystem::path photoURL = {};                   ///< without symbolic links
    std::filesystem::path listedURL = {};                  ///< as given or found
    std::filesystem::path thumbnailURL = {};               ///< of a photo library's item
    std::shared_ptr<const KTMediaObject> mediaObject = {}; ///< of a photo library's item
    bool createsSidecar = false;                           ///< a raw file that is to get one on disk

    /// Whether it is read by its file alone, so that it may be read before its turn.
    bool mayBeReadAhead() const { return !mediaObject && !photoURL.empty() && !createsSidecar; }
};
