#pragma once
#include "platform/tracklibrary/KTSmartFile.h"

class KTTrackManager;

/// What was imported last. Main thread.
class KTSmartRecentImportsFile : public KTSmartFile {
public:
    /// Follows @p library, which must outlive it.
    explicit KTSmartRecentImportsFile(KTTrackManager& library);

private:
    void update();

    KTTrackManager& manager;
    Observation observation;
};
