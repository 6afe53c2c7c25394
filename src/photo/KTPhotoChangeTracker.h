#pragma once
#include "photo/KTPhoto.h"

/// Follows the edits of one photo for as long as it lives: each change of a field that can be written is
/// entered into the photo's dictionaries of changes and registered for undo. A collection holds one for each
/// of its photos; a photo that is edited without a collection needs one of its own.
class KTPhotoChangeTracker {
public:
    /// @p photo must outlive the tracker. @p afterwards, if any, is told of every change of the photo, before
    /// and after, once it is recorded.
    explicit KTPhotoChangeTracker(KTPhoto& photo, KTObservable::Handler afterwards = {});
    ~KTPhotoChangeTracker();
    KTPhotoChangeTracker(const KTPhotoChangeTracker&) = delete;
    KTPhotoChangeTracker& operator=(const KTPhotoChangeTracker&) = delete;

private:
    KTPhoto& tracked;
    KTObservable::Observation observation;
};
