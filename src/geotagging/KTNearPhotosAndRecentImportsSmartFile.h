#pragma once
#include "geotagging/KTNearPhotosSmartFile.h"

/// The same together with what was imported last. Main thread.
class KTNearPhotosAndRecentImportsSmartFile : public KTNearPhotosSmartFile {
public:
    using KTNearPhotosSmartFile::KTNearPhotosSmartFile;
};
