#include "platform/desktop/KTFileCoordinator.h"

#include "platform/desktop/KTFileDescriptor.h"

#include <cerrno>
#include <fcntl.h>
#include <ranges>
#include <shared_mutex>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

/// The access locks of the files that are in use, and the presenters.
struct Registry {
    std::mutex mutex;
    std::map<fs::path, std::weak_ptr<std::shared_mutex>> locks;
    std::multimap<fs::path, KTFilePresenter*> presenters; // by their files: a library has many

    static Registry& shared() {
        static Registry* registry = new Registry; // used until the last static object is gone
        return *registry;
    }

    std::shared_ptr<std::shared_mutex> lockOf(const fs::path& file) {
        std::error_code error;
        fs::path key = fs::weakly_canonical(fs::absolute(file, error), error);
        if (error) // a circle of links, for example
            key = file;
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

    auto placeOf(const KTFilePresenter& presenter) {
        const auto [begin, end] = presenters.equal_range(presenter.presentedItemURL());
        const auto place =
            std::find_if(begin, end, [&](const auto& entry) { return entry.second == &presenter; });
        return place == end ? presenters.end() : place;
    }
};

/// Why @p file cannot be read as a file, 0 when it can. Folders and pipes that bear a photo's name would fail
/// later, or keep the reader waiting.
int errorOfOpening(const fs::path& file) {
    const KTFileDescriptor opened(file, O_RDONLY | O_NONBLOCK);
    struct stat status = {};
    if (!opened.isOpen() || ::fstat(opened.get(), &status) != 0)
        return errno;
    return S_ISREG(status.st_mode) ? 0 : S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
}

} // namespace

void KTFileCoordinator::addFilePresenter(KTFilePresenter& presenter) {
    Registry& registry = Registry::shared();
    std::lock_guard guard(registry.mutex);
    if (registry.placeOf(presenter) == registry.presenters.end())
        registry.presenters.emplace(presenter.presentedItemURL(), &presenter);
}

void KTFileCoordinator::removeFilePresenter(KTFilePresenter& presenter) {
    Registry& registry = Registry::shared();
    std::lock_guard guard(registry.mutex);
    if (const auto place = registry.placeOf(presenter); place != registry.presenters.end())
        registry.presenters.erase(place);
}

std::optional<std::string>
KTFileCoordinator::coordinateReadingItemAtURL(const fs::path& file,
                                              const std::function<void(const fs::path&)>& read) const {
    const auto access = Registry::shared().lockOf(file);
    std::shared_lock guard(*access);
    if (const int error = errorOfOpening(file))
        return KTFileErrorText("“%@” cannot be opened: %@", file, error);
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
    const auto [begin, end] = registry.presenters.equal_range(file);
    for (KTFilePresenter* presenter : std::ranges::subrange(begin, end) | std::views::values) {
        const bool isOwn = ownPresenter != nullptr &&
                           (presenter == ownPresenter ||
                            presenter->primaryPresentedItemURL() == ownPresenter->presentedItemURL());
        if (!isOwn)
            presenter->presentedItemOperationQueue().addOperationWithBlock(
                [presenter] { presenter->presentedItemDidChange(); });
    }
}
