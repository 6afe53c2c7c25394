#pragma once
#include "platform/common/KTValue.h"

#include <functional>
#include <mutex>
#include <vector>

/// What is announced about one key of an observed object.
struct KTChange {
    enum class Kind { Setting, Insertion, Removal, Replacement };

    std::string_view key;
    Kind kind = Kind::Setting;
    bool isPrior = false;             ///< before the change (true) or after it
    std::vector<std::size_t> indexes; ///< of a list's insertion, removal or replacement
    KTValue oldValue;                 ///< of a setting, where the announcing object gives one
};

/// An object whose changes others can follow by key. Handlers run synchronously on the announcing thread,
/// outside every lock of this class, in the order in which they were added.
class KTObservable {
public:
    using Handler = std::function<void(const KTChange&)>;

    /// Ends its observation when destroyed. May outlive the observed object. After it is destroyed no new
    /// call of the handler begins; one that another thread has begun may still be running.
    class Observation {
    public:
        Observation() = default;
        Observation(Observation&&) = default;
        Observation& operator=(Observation&& other);
        ~Observation() { stop(); }
        void stop();
        bool isObserving() const { return !list.expired(); }

    private:
        friend class KTObservable;
        std::weak_ptr<struct KTObserverList> list;
        std::uint64_t id = 0;
    };

    KTObservable();
    virtual ~KTObservable();
    KTObservable(const KTObservable&) = delete;
    KTObservable& operator=(const KTObservable&) = delete;

    /// Calls @p handler for every announcement of this object, for all keys. Any thread.
    [[nodiscard]] Observation observe(Handler handler);

protected:
    void willChange(std::string_view key, KTChange::Kind kind = KTChange::Kind::Setting,
                    std::vector<std::size_t> indexes = {});
    void didChange(std::string_view key, KTChange::Kind kind = KTChange::Kind::Setting,
                   std::vector<std::size_t> indexes = {}, KTValue oldValue = {});

private:
    void announce(const KTChange& change);

    std::shared_ptr<struct KTObserverList> observers;
};
