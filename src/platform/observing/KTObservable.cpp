#include "platform/observing/KTObservable.h"

#include "platform/common/KTCallContext.h"

struct KTObserverList {
    struct Entry {
        std::uint64_t id;
        std::shared_ptr<const KTObservable::Handler> handler;
    };
    std::mutex mutex;
    std::vector<Entry> entries;
    std::uint64_t nextId = 1;
};

KTObservable::Observation& KTObservable::Observation::operator=(Observation&& other) {
    stop();
    list = std::move(other.list);
    id = other.id;
    return *this;
}

void KTObservable::Observation::stop() {
    if (auto observers = list.lock()) {
        std::lock_guard guard(observers->mutex);
        std::erase_if(observers->entries, [this](const auto& entry) { return entry.id == id; });
    }
    list.reset();
}

KTObservable::KTObservable() : observers(std::make_shared<KTObserverList>()) {}
KTObservable::~KTObservable() = default;

KTObservable::Observation KTObservable::observe(Handler handler) {
    std::lock_guard guard(observers->mutex);
    Observation observation;
    observation.list = observers;
    observation.id = observers->nextId++;
    observers->entries.push_back({observation.id, std::make_shared<const Handler>(std::move(handler))});
    return observation;
}

void KTObservable::willChange(std::string_view key, KTChange::Kind kind, std::vector<std::size_t> indexes) {
    announce({key, kind, true, std::move(indexes), {}});
}

void KTObservable::didChange(std::string_view key, KTChange::Kind kind, std::vector<std::size_t> indexes,
                             KTValue oldValue) {
    announce({key, kind, false, std::move(indexes), std::move(oldValue)});
}

void KTObservable::announce(const KTChange& change) {
    std::vector<KTObserverList::Entry> snapshot;
    {
        std::lock_guard guard(observers->mutex);
        if (observers->entries.empty())
            return;
        snapshot = observers->entries;
    }
    const KTCallout callout;
    for (const auto& entry : snapshot)
        (*entry.handler)(change);
}
