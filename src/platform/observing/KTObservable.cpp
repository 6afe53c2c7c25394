#include "platform/observing/KTObservable.h"

#include "platform/common/KTCallContext.h"

struct KTObserverList {
    std::mutex mutex;
    // Some objects have tens of thousands of observers that come and go.
    std::map<std::uint64_t, std::shared_ptr<const KTObservable::Handler>> entries;
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
        observers->entries.erase(id);
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
    observers->entries.emplace(observation.id, std::make_shared<const Handler>(std::move(handler)));
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
    std::vector<std::shared_ptr<const Handler>> snapshot;
    {
        std::lock_guard guard(observers->mutex);
        if (observers->entries.empty())
            return;
        snapshot.reserve(observers->entries.size());
        for (const auto& [id, handler] : observers->entries)
            snapshot.push_back(handler);
    }
    const KTCallout callout;
    for (const auto& handler : snapshot)
        (*handler)(change);
}
