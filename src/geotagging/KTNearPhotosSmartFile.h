#pragma once
#include "platform/tracklibrary/KTSmartFile.h"

/// What was recorded near the loaded photos. Main thread.
class KTNearPhotosSmartFile : public KTSmartFile {
public:
    using KTSmartFile::KTSmartFile;

    /// Its value means nothing; each change has the contents fetched anew.
    bool shouldRefreshTracksAndWaypoints() const { return flag; }
    void setShouldRefreshTracksAndWaypoints(bool flipped) {
        willChange("shouldRefreshTracksAndWaypoints");
        flag = flipped;
        didChange("shouldRefreshTracksAndWaypoints");
    }

private:
    bool flag = false;
};
