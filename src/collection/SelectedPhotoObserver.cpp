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
        auto tell = [](const std::weak_ptr<SelectedPhotoObserver*>& observer, const KTPhoto* changed,
                       std::string_view key) {
            if (const auto alive = observer.lock())
                (*alive)->photoDidChange(changed, key);
        };
        if (KTMainThread::isCurrent())
            tell(weak, &photo, change.key);
        else
            KTPerformOnMainThread([tell, weak, changed = &photo, key = std::string(change.key)] {
                tell(weak, changed, key);
            });
    });
}

/// The photo may be no longer selected, or gone.
void SelectedPhotoObserver::photoDidChange(const KTPhoto* photo, std::string_view key) {
    if (observations.contains(photo))
        handlers.didChange(*photo, key);
}
