#pragma once
#include "platform/concurrency/KTLatch.h"
#include "platform/observing/KTObservable.h"

#include <atomic>

/// One piece of work for a KTOperationQueue. "isFinished" is announced, exactly once, on the thread that ran
/// it, also when it was cancelled before it started. Any thread.
class KTOperation : public KTObservable {
public:
    KTOperation() = default;
    explicit KTOperation(std::function<void()> work) : block(std::move(work)) {}

    /// Keeps the work from starting. Work that runs goes on, unless it asks `isCancelled`.
    void cancel() { cancelled = true; }
    bool isCancelled() const { return cancelled; }
    bool isFinished() const { return finished; }
    void waitUntilFinished() { ended.wait(); }

protected:
    /// The work; not called for an operation that was cancelled before. Must not throw.
    virtual void main();

private:
    friend class KTOperationQueue;
    void start();

    std::function<void()> block;
    std::atomic<bool> cancelled = false;
    std::atomic<bool> finished = false;
    KTLatch ended;
};
