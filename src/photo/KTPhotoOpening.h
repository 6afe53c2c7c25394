#pragma once
#include "metadata/KTPhotoOperation.h"

class KTExifTool;

/// How a photo's file is opened.
struct KTPhotoOpening {
    KTExifTool* exifTool = nullptr; ///< the bridge to read through, null for the shared one
    /// A "crw" file that has no sidecar gets one on disk.
    bool createsSidecarOfRawFile = false;
    /// Receives the operations when no record comes about.
    std::vector<KTPhotoOperation>* log = nullptr;
};
