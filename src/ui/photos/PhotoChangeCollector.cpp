#include "ui/photos/PhotoChangeCollector.h"

#include "platform/concurrency/KTMainThread.h"

#include <QTimer>

namespace {

constexpr std::chrono::milliseconds kPause{40};

} // namespace

struct PhotoChangeCollector::Gathered {
    std::mutex mutex;
    Edited edited;
    bool isDue = false;
    std::function<void()> whenEdited; // the main thread's; empty once the collector is gone
};

PhotoChangeCollector::PhotoChangeCollector(std::function<void()> whenEdited)
    : gathered(std::make_shared<Gathered>()) {
    gathered->whenEdited = std::move(whenEdited);
}

PhotoChangeCollector::~PhotoChangeCollector() {
    gathered->whenEdited = nullptr;
}

void PhotoChangeCollector::follow(const Photos& photos) {
    std::unordered_set<const KTPhoto*> wanted;
    wanted.reserve(photos.size());
    for (const auto& photo : photos)
        wanted.insert(photo.get());
    std::erase_if(observations, [&](const auto& entry) { return !wanted.contains(entry.first); });
    for (const auto& photo : photos)
        if (!observations.contains(photo.get()))
            observations.emplace(
                photo.get(), photo->observe([all = gathered, followed = photo.get()](const KTChange& change) {
                    if (!change.isPrior)
                        note(all, followed);
                }));
}

PhotoChangeCollector::Edited PhotoChangeCollector::takeEdited() {
    std::lock_guard guard(gathered->mutex);
    gathered->isDue = false;
    return std::exchange(gathered->edited, {});
}

void PhotoChangeCollector::note(const std::shared_ptr<Gathered>& into, const KTPhoto* photo) {
    std::lock_guard guard(into->mutex);
    into->edited.insert(photo);
    if (std::exchange(into->isDue, true))
        return;
    KTPerformOnMainThread([into] {
        QTimer::singleShot(kPause, [into] {
            if (into->whenEdited)
                into->whenEdited();
        });
    });
}
