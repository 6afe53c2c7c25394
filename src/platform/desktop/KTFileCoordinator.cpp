#include "platform/desktop/KTFileCoordinator.h"

#include "platform/desktop/KTFileDescriptor.h"

#include <cerrno>
#include <fcntl.h>
#include <set>
#include <shared_mutex>

namespace fs = std::filesystem;

namespace {

/// The access locks of the files that are in use, and the presenters.
struct Registry {
    std::mutex mutex;
    std::map<fs::path, std::weak_ptr<std::shared_mutex>> locks;
    std::set<KTFilePresenter*> presenters;

    static Registry& shared() {
        static Registry registry;
        return registry;
    }

    std::shared_ptr<std::shared_mutex> lockOf(const fs::path& file) {
        std::error_code error;
        const fs::path key = fs::weakly_canonical(file, error);
        std::lock_guard guard(mutex);
        std::weak_ptr<std::shared_mutex>& entry = locks[key];
        std::shared_ptr<std::shared_mutex> lock = entry.lock();
        if (!lock) {
            lock = std::shared_ptr<std::shared_mutex>(new std::shared_mutex, [this, key](auto* ended) {
                delete ended;
                std::lock_guard guarded(mutex);
                if (auto place = locks.find(key); place != locks.end() && place->second.expired())
                    locks.erase(place);
            });
            entry = lock;
        }
        return lock;
    }
};

} // namespace

void KTFileCoordinator::addFilePresenter(KTFilePresenter& presenter) {
    Registry& registry = Registry::shared();
    std::lock_guard guard(registry.mutex);
    registry.presenters.insert(&presenter);
}

void KTFileCoordinator::removeFilePresenter(KTFilePresenter& presenter) {
    Registry& registry = Registry::shared();
    std::lock_guard guard(registry.mutex);
    registry.presenters.erase(&presenter);
}

std::optional<std::string>
KTFileCoordinator::coordinateReadingItemAtURL(const fs::path& file,
                                              const std::function<void(const fs::path&)>& read) const {
    const auto access = Registry::shared().lockOf(file);
    std::shared_lock guard(*access);
    // A pipe that bears a photo's name must not keep us waiting.
    if (!KTFileDescriptor(file, O_RDONLY | O_NONBLOCK).isOpen())
        return KTFileErrorText("“%@” cannot be opened: %@", file, errno);
    read(file);
    return std::nullopt;
}

std::optional<std::string> KTFileCoordinator::coordinateWritingItemAtURL(
    const fs::path& file, const std::function<std::optional<std::string>()>& write) const {
    std::optional<std::string> failure;
    {
        const auto access = Registry::shared().lockOf(file);
        std::lock_guard guard(*access);
        failure = write();
    }
    if (!failure)
        tellPresenters(file);
    return failure;
}

void KTFileCoordinator::tellPresenters(const fs::path& file) const {
    Registry& registry = Registry::shared();
    std::lock_guard guard(registry.mutex); // a presenter that is being removed is told before or not at all
    for (KTFilePresenter* presenter : registry.presenters) {
        const bool isOwn = ownPresenter != nullptr &&
                           (presenter == ownPresenter ||
                            presenter->primaryPresentedItemURL() == ownPresenter->presentedItemURL());
        if (!isOwn && presenter->presentedItemURL() == file)
            presenter->presentedItemOperationQueue().addOperationWithBlock(
                [presenter] { presenter->presentedItemDidChange(); });
    }
}
