#pragma once
#include "platform/concurrency/KTSerialQueue.h"

#include <memory>

/// Merges requests for one kind of work: those that come while a run waits for its turn are answered by that
/// run, those that come while one is under way by one more. Made with std::make_shared.
class KTDataAddSource : public std::enable_shared_from_this<KTDataAddSource> {
public:
    /// Each run is @p eventHandler as a task of @p target, which must outlive every call until `cancel`.
    KTDataAddSource(KTSerialQueue& target, std::function<void()> eventHandler)
        : queue(target), handler(std::move(eventHandler)) {}

    /// Asks for a run. Any thread, code run by an announcement included.
    void mergeData();
    /// No run begins any more, and none is asked for. One that is under way goes on.
    void cancel();

private:
    void run();

    KTSerialQueue& queue;
    const std::function<void()> handler;
    std::mutex mutex; // guards what follows
    bool isPending = false, isCancelled = false;
};
