#pragma once
#include "geotagging/KTGeotagger.h"
#include "geotagging/KTGeotaggingSummary.h"

/// The panel of the batch mode: what the geotagger proposes, in sentences, and the button that has it done.
/// Observable under the names of the summary's members and "shouldShowCircleFlag". Main thread.
class KTMultipleSelectionLinkerViewController : public KTObservable {
public:
    /// @p owner must outlive the controller.
    explicit KTMultipleSelectionLinkerViewController(KTGeotagger& owner);
    /// From now on follows the geotagger's computations; soon after each, because they run elsewhere.
    void setup();
    void tearDown();

    /// The texts of the last computation.
    const KTGeotaggingSummary& summary() const { return texts; }
    /// Whether the marker of the nearest point is a circle flag, as for interpolated points, not a tack.
    bool shouldShowCircleFlag() const { return showsCircleFlag; }

    void batchSaveAction() { geotagger.batchSave(); }

private:
    void update();

    KTGeotagger& geotagger;
    KTGeotaggingSummary texts;
    bool showsCircleFlag = false;
    Observation geotaggerObservation;
    const std::shared_ptr<KTMultipleSelectionLinkerViewController*> self; // for what is posted
};
