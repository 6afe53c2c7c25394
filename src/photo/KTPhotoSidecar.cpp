#include "photo/KTPhotoSidecar.h"

#include "photo/KTPhoto.h"
#include "platform/desktop/KTFileCoordinator.h"

KTPhotoSidecar::KTPhotoSidecar(KTPhoto& sidecarsPhoto)
    : photo(sidecarsPhoto), sidecar(photo.xmpURL()), image(photo.fileURL()) {}

KTPhotoSidecar::~KTPhotoSidecar() {
    KTFileCoordinator::removeFilePresenter(*this);
}

void KTPhotoSidecar::presentedItemDidChange() {
    photo.checkForUnsavedChanges();
}
