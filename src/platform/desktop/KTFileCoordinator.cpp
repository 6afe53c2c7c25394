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
    struct Lock {
        std::shared_mutex mutex;
        int users = 0; // that hold it or wait for it
    };

    std::mutex mutex;
    std::map<fs::path, Lock> locks;
    std::multimap<fs::path, KTFilePresenter*> presenters; // by their files: a library has many

    static Registry& shared() {
        static Registry* registry = new Registry; // used until the last static object is gone
        return *registry;
    }

    auto placeOf(const KTFilePresenter& presenter) {
        const auto [begin, end] = presenters.equal_range(presenter.presentedItemURL());
        const auto place =
            std::find_if(begin, end, [&](const auto& entry) { return entry.second == &presenter; });
        return place == end ? presenters.end() : place;
    }
};

/// The use of a file's lock.
class Access {
public:
    explicit Access(const fs::path& file) {
        std::error_code error;
        fs::path key = fs::weakly_canonical(fs::absolute(file, error), error);
        if (error) // a circle of links, for example
            key = file;
        Registry& registry = Registry::shared();
        std::lock_guard guard(registry.mutex);
        place = registry.locks.try_emplace(std::move(key)).first;
        ++place->second.users;
    }
    ~Access() {
        Registry& registry = Registry::shared();
        std::lock_guard guard(registry.mutex);
        if (--place->second.users == 0)
            registry.locks.erase(place);
    }
    Access(const Access&) = delete;
    Access& operator=(const Access&) = delete;

    std::shared_mutex& mutex() const { return place->second.mutex; }

private:
    std::map<fs::path, Registry::Lock>::iterator place;
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
    const Access access(file);
    std::shared_lock guard(access.mutex());
    if (const int error = errorOfOpening(file))
        return KTFileErrorText("“%@” cannot be opened: %@", file, error);
    read(file);
    return std::nullopt;
}

std::optional<std::string> KTFileCoordinator::coordinateWritingItemAtURL(
    const fs::path& file, const std::function<std::optional<std::string>()>& write) const {
    std::optional<std::string> failure;
    {
        const Access access(file);
        std::lock_guard guard(access.mutex());
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
