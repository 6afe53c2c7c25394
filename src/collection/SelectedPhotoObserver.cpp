#include "collection/SelectedPhotoObserver.h"

#include "platform/concurrency/KTMainThread.h"

SelectedPhotoObserver::SelectedPhotoObserver(KTPhotoManager& collection, IsFollowed follows,
                                             Handlers toBeCalled)
    : manager(collection), isFollowed(follows), handlers(std::move(toBeCalled)),
      self(std::make_shared<SelectedPhotoObserver*>(this)) {
    selectionObservation = manager.observe([this](const KTChange& change) {
        if (change.key == "selectedPhotoIndexes" && !change.isPrior)
            update();
    });
    update();
}

/// The indexes are also announced when photos come beside the selected ones.
void SelectedPhotoObserver::update() {
    const KTPhotoManager::Snapshot now = manager.selectedPhotos();
    if (selected && *selected == *now)
        return;
    std::unordered_map<const KTPhoto*, KTObservable::Observation> next;
    for (const auto& photo : *now)
        if (auto known = observations.extract(photo.get()))
            next.insert(std::move(known));
        else
            next.emplace(photo.get(), observe(*photo));
    observations.swap(next);
    selected = now;
    handlers.didSelect(*now);
}

KTObservable::Observation SelectedPhotoObserver::observe(KTPhoto& photo) {
    return photo.observe([follows = isFollowed, weak = std::weak_ptr(self), &photo](const KTChange& change) {
        if (change.isPrior || !follows(change.key))
            return;
        auto tell = [weak, changed = &photo] {
            if (const auto alive = weak.lock())
                (*alive)->photoDidChange(changed);
        };
        if (KTMainThread::isCurrent())
            tell();
        else
            KTPerformOnMainThread(tell);
    });
}

/// The photo may be no longer selected, or gone.
void SelectedPhotoObserver::photoDidChange(const KTPhoto* photo) {
    if (observations.contains(photo))
        handlers.didChange(*photo);
}
