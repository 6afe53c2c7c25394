#include "photo/KTPhotoSidecar.h"

#include "photo/KTPhoto.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/desktop/KTFileCoordinator.h"

KTPhotoSidecar::KTPhotoSidecar(KTPhoto& sidecarsPhoto)
    : photo(sidecarsPhoto), sidecar(photo.xmpURL()), image(photo.fileURL()) {}

KTPhotoSidecar::~KTPhotoSidecar() {
    KTFileCoordinator::removeFilePresenter(*this);
}

void KTPhotoSidecar::presentedItemDidChange() {
    // Not waited for: what the main thread does about it may let go of the photo, which waits for this queue.
    KTPerformOnMainThread([weak = photo.weak_from_this()] {
        if (const auto alive = weak.lock())
            alive->checkForUnsavedChanges();
    });
}
