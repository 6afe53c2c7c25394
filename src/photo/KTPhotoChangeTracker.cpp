#include "photo/KTPhotoChangeTracker.h"

KTPhotoChangeTracker::KTPhotoChangeTracker(KTPhoto& photo) : tracked(photo) {
    tracked.addTracker(1);
    observation = tracked.observe([&photo](const KTChange& change) {
        if (!change.isPrior)
            photo.recordEdit(change.key, change.oldValue);
    });
}

KTPhotoChangeTracker::~KTPhotoChangeTracker() {
    observation.stop();
    tracked.addTracker(-1);
}
