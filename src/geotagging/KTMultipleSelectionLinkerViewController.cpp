#include "geotagging/KTMultipleSelectionLinkerViewController.h"

#include "platform/concurrency/KTMainThread.h"

namespace {

constexpr std::string_view kKeys[] = {
    "hasSuccesses", "successTitle",        "successDescription",          "successButtonTitle",
    "hasFailures",  "failureTitle",        "failureDescription",          "hasFailureTip",
    "failureTip",   "hasAlreadyGeotagged", "alreadyGeotaggedDescription", "shouldShowCircleFlag"};

} // namespace

KTMultipleSelectionLinkerViewController::KTMultipleSelectionLinkerViewController(KTGeotagger& owner)
    : geotagger(owner), self(std::make_shared<KTMultipleSelectionLinkerViewController*>(this)) {}

void KTMultipleSelectionLinkerViewController::setup() {
    geotaggerObservation = geotagger.observe([weak = std::weak_ptr(self)](const KTChange& change) {
        if (!change.isPrior && change.key == "batchPointArray")
            KTPerformOnMainThread([weak] {
                if (const auto alive = weak.lock())
                    (*alive)->update();
            });
    });
    update();
}

void KTMultipleSelectionLinkerViewController::tearDown() {
    geotaggerObservation.stop();
}

void KTMultipleSelectionLinkerViewController::update() {
    const auto computation = geotagger.computation();
    for (std::string_view key : kKeys)
        willChange(key);
    texts = KTGeotaggingSummary::summaryOf(computation->counters, computation->criteria);
    showsCircleFlag = computation->criteria.shouldUseTimeWeightedAverage;
    for (std::string_view key : kKeys)
        didChange(key);
}
