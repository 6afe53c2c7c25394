#pragma once
#include "platform/concurrency/KTOperationQueue.h"

#include <filesystem>

/// Somebody who holds what a file says and wants to know when another part of the program has written it.
class KTFilePresenter {
public:
    virtual ~KTFilePresenter() = default;

    virtual std::filesystem::path presentedItemURL() const = 0;
    /// The file to which the presented one belongs (the image of a sidecar); empty for none.
    virtual std::filesystem::path primaryPresentedItemURL() const { return {}; }
    /// Where the function below is called. Belongs to the presenter, which is destroyed after it.
    virtual KTOperationQueue& presentedItemOperationQueue() = 0;
    /// Somebody else has replaced the file.
    virtual void presentedItemDidChange() {}
};
