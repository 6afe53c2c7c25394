#include "geotagging/KTSingleSelectionLinkerViewController.h"

void KTSingleSelectionLinkerViewController::setup() {
    geotaggerObservation = geotagger.observe([this](const KTChange& change) {
        for (std::string_view key : {"precedingPoint", "nextPoint", "timeWeightedPoint"})
            if (change.key == key)
                change.isPrior ? willChange(key) : didChange(key);
    });
}

void KTSingleSelectionLinkerViewController::tearDown() {
    geotaggerObservation.stop();
}
