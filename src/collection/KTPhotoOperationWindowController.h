#pragma once
#include "collection/KTPhotoOperationController.h"

/// The window of the operation log, which comes forward by itself, with the errors only, when an operation
/// fails. Observable under the names of its properties. Main thread.
class KTPhotoOperationWindowController : public KTObservable {
public:
    /// @p collection must outlive the controller.
    explicit KTPhotoOperationWindowController(KTPhotoManager& collection);

    /// Between the two the window follows the log.
    void setup();
    void tearDown();

    KTPhotoManager& photoManager() const { return manager; }
    KTPhotoOperationController& photoOperationController() { return operations; }

    /// Shown or not. Announced each time it is set: a window that is shown already comes forward.
    bool isWindowVisible() const { return isVisible; }
    void setWindowVisible(bool visible);

    /// The choices of the filter, in the user's language.
    static std::vector<std::string> filterPopupTitles();
    /// Which of them is chosen. An index beyond them is kept and filters as the last one did.
    unsigned selectedFilterIndex() const { return filterIndex; }
    void setSelectedFilterIndex(unsigned index);

private:
    void comeForwardOnFailure(std::size_t firstNewOperation);

    KTPhotoManager& manager;
    KTPhotoOperationController operations;
    bool isVisible = false;
    unsigned filterIndex = 0;
    Observation observation;
    const std::shared_ptr<KTPhotoOperationWindowController*> self; // for what is posted
};
