#include "collection/KTPhotoOperationController.h"

#include "collection/KTPhotoManager.h"

#include <numeric>

KTPhotoOperationController::KTPhotoOperationController(KTPhotoManager& collection) : manager(collection) {
    observation = manager.observe([this](const KTChange& change) {
        if (change.key == "photoOperations" && !change.isPrior)
            addNewOperations();
    });
    addNewOperations();
}

void KTPhotoOperationController::addNewOperations() {
    Operations added;
    for (KTPhotoOperation& operation : manager.photoOperationsFrom(content.size())) {
        const KTPhotoOperation& kept = content.emplace_back(std::move(operation));
        if (isListed(kept))
            added.push_back(&kept);
    }
    if (added.empty())
        return;
    std::vector<std::size_t> indexes(added.size());
    std::iota(indexes.begin(), indexes.end(), arranged.size());
    willChange("arrangedObjects", KTChange::Kind::Insertion, indexes);
    arranged.insert(arranged.end(), added.begin(), added.end());
    didChange("arrangedObjects", KTChange::Kind::Insertion, std::move(indexes));
}

void KTPhotoOperationController::setOperationTypeMask(unsigned newMask) {
    if (newMask == mask) // filtering thousands of operations anew for each failure takes its time
        return;
    willChange("operationTypeMask");
    willChange("arrangedObjects");
    mask = newMask;
    arranged.clear();
    for (const KTPhotoOperation& operation : content)
        if (isListed(operation))
            arranged.push_back(&operation);
    didChange("arrangedObjects");
    didChange("operationTypeMask");
}
