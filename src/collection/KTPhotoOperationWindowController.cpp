#include "collection/KTPhotoOperationWindowController.h"

#include "collection/KTPhotoManager.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/concurrency/KTMainThread.h"

KTPhotoOperationWindowController::KTPhotoOperationWindowController(KTPhotoManager& collection)
    : manager(collection), operations(collection),
      self(std::make_shared<KTPhotoOperationWindowController*>(this)) {}

void KTPhotoOperationWindowController::setup() {
    observation = manager.observe([this](const KTChange& change) {
        if (change.key == "photoOperations" && change.kind == KTChange::Kind::Insertion && !change.isPrior &&
            !change.indexes.empty())
            comeForwardOnFailure(change.indexes.front());
    });
}

void KTPhotoOperationWindowController::tearDown() {
    observation.stop();
}

void KTPhotoOperationWindowController::comeForwardOnFailure(std::size_t firstNewOperation) {
    if (std::ranges::all_of(manager.photoOperationsFrom(firstNewOperation),
                            &KTPhotoOperation::operationDidSucceed))
        return;
    KTPerformOnMainThread([weak = std::weak_ptr(self)] {
        if (const auto alive = weak.lock()) {
            (*alive)->setWindowVisible(true);
            (*alive)->setSelectedFilterIndex(2);
        }
    });
}

void KTPhotoOperationWindowController::setWindowVisible(bool visible) {
    willChange("isWindowVisible");
    isVisible = visible;
    didChange("isWindowVisible");
}

std::vector<std::string> KTPhotoOperationWindowController::filterPopupTitles() {
    return {KTLocalizedString("All messages"), KTLocalizedString("Errors & warnings"),
            KTLocalizedString("Errors only")};
}

void KTPhotoOperationWindowController::setSelectedFilterIndex(unsigned index) {
    static constexpr unsigned kMasks[] = {KTPhotoOperationController::kAllTypes,
                                          KTPhotoOperation::Warning | KTPhotoOperation::Failure,
                                          KTPhotoOperation::Failure};
    willChange("selectedFilterIndex");
    filterIndex = index;
    didChange("selectedFilterIndex");
    if (index < std::size(kMasks))
        operations.setOperationTypeMask(kMasks[index]);
}
