#pragma once
#include "platform/desktop/KTFilePresenter.h"

class KTPhoto;

/// Presents a photo's sidecar, which two photos share when they differ in nothing but their extensions.
class KTPhotoSidecar : public KTFilePresenter {
public:
    explicit KTPhotoSidecar(KTPhoto& sidecarsPhoto);
    ~KTPhotoSidecar() override;

    std::filesystem::path presentedItemURL() const override { return sidecar; }
    std::filesystem::path primaryPresentedItemURL() const override { return image; }
    KTOperationQueue& presentedItemOperationQueue() override { return queue; }
    /// Where the photo's next save writes may depend on whether the sidecar is there.
    void presentedItemDidChange() override;

private:
    KTPhoto& photo;
    const std::filesystem::path sidecar, image;
    KTOperationQueue queue; // last, so that it ends before what its operations use
};
