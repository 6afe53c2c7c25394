#pragma once
#include "collection/KTPhotoManager.h"

/// Follows which photos of a collection are selected, and what these announce. For the main thread, on which
/// the handlers run.
class SelectedPhotoObserver {
public:
    struct Handlers {
        /// Called at the beginning, and when other photos or another order are selected.
        std::function<void(const KTPhotoManager::Photos& selected)> didSelect;
        /// Called after a selected photo has announced a followed key: at once where it did so on the main
        /// thread, else soon.
        std::function<void(const KTPhoto& photo, std::string_view key)> didChange;
    };
    using IsFollowed = bool (*)(std::string_view key); ///< asked on any thread

    /// @p collection must outlive the observer.
    SelectedPhotoObserver(KTPhotoManager& collection, IsFollowed follows, Handlers toBeCalled);

private:
    void update();
    KTObservable::Observation observe(KTPhoto& photo);
    void photoDidChange(const KTPhoto* photo, std::string_view key);

    KTPhotoManager& manager;
    const IsFollowed isFollowed;
    const Handlers handlers;
    KTPhotoManager::Snapshot selected;
    std::unordered_map<const KTPhoto*, KTObservable::Observation> observations; // of the selected photos
    KTObservable::Observation selectionObservation;
    const std::shared_ptr<SelectedPhotoObserver*> self; // for what photos announce on other threads
};
