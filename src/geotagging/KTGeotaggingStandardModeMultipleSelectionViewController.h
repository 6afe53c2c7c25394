#pragma once
#include "geotagging/KTGeotaggingController.h"

/// The panel of the standard mode for several photos, whose one button goes to
/// the batch mode. Main thread.
class KTGeotaggingStandardModeMultipleSelectionViewController {
public:
    /// @p owner must outlive the controller.
    explicit KTGeotaggingStandardModeMultipleSelectionViewController(KTGeotaggingController& owner)
        : geotaggingController(owner) {}

    void toggleGeotaggingMode() { geotaggingController.setGeotaggingMode(KTGeotaggingModeBatch); }

private:
    KTGeotaggingController& geotaggingController;
};
