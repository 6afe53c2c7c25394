#include "photo/KTPhotoChangeTracker.h"

KTPhotoChangeTracker::KTPhotoChangeTracker(KTPhoto& photo, KTObservable::Handler afterwards)
    : tracked(photo) {
    tracked.addTracker(1);
    observation = tracked.observe([&photo, afterwards = std::move(afterwards)](const KTChange& change) {
        if (!change.isPrior)
            photo.recordEdit(change.key, change.oldValue);
        if (afterwards)
            afterwards(change);
    });
}

KTPhotoChangeTracker::~KTPhotoChangeTracker() {
    observation.stop();
    tracked.addTracker(-1);
}
