#pragma once
#include "geotagging/KTGeotagger.h"

/// The panel of the standard mode: the candidates of the one selected photo, each of which can be written.
/// Observable: "precedingPoint", "nextPoint" and "timeWeightedPoint", as the geotagger announces them. Main
/// thread.
class KTSingleSelectionLinkerViewController : public KTObservable {
public:
    /// @p owner must outlive the controller.
    explicit KTSingleSelectionLinkerViewController(KTGeotagger& owner) : geotagger(owner) {}
    void setup();
    void tearDown();

    // Null where there is no such candidate, and the action below it does nothing.
    KTGeotagger::Point precedingPoint() const { return geotagger.precedingPoint(); }
    KTGeotagger::Point nextPoint() const { return geotagger.nextPoint(); }
    KTGeotagger::Point timeWeightedPoint() const { return geotagger.timeWeightedPoint(); }

    void savePrecedingPointAction() { geotagger.savePrecedingPoint(); }
    void saveNextPointAction() { geotagger.saveNextPoint(); }
    void saveTimeWeightedPointAction() { geotagger.saveTimeWeightedPoint(); }

private:
    KTGeotagger& geotagger;
    Observation geotaggerObservation;
};
