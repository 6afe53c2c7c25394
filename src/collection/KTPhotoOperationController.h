#pragma once
#include "metadata/KTPhotoOperation.h"
#include "platform/observing/KTObservable.h"

#include <deque>

class KTPhotoManager;

/// The collection's log of operations, filtered by their results, as a list shows it. "arrangedObjects"
/// announces what comes as insertions at the end. Main thread.
class KTPhotoOperationController : public KTObservable {
public:
    using Operations = std::vector<const KTPhotoOperation*>;
    static constexpr unsigned kAllTypes =
        KTPhotoOperation::Success | KTPhotoOperation::Warning | KTPhotoOperation::Failure;

    /// @p collection must outlive the controller.
    explicit KTPhotoOperationController(KTPhotoManager& collection);

    /// The operations that the filter lets through, oldest first; they live as long as the controller.
    const Operations& arrangedObjects() const { return arranged; }

    /// "operationTypeMask": which result types are listed; none for 0.
    unsigned operationTypeMask() const { return mask; }
    void setOperationTypeMask(unsigned newMask);

private:
    void addNewOperations();
    bool isListed(const KTPhotoOperation& operation) const { return (operation.resultType() & mask) != 0; }

    KTPhotoManager& manager;
    std::deque<KTPhotoOperation> content; // the log, which only grows; its elements stay in their places
    Operations arranged;
    unsigned mask = kAllTypes;
    Observation observation;
};
