#pragma once
#include "platform/concurrency/KTOperation.h"

#include <list>

/// Runs operations on threads of the pool, in the order in which they were added, several at a time. Each
/// change of "operationCount", the operations that have not finished, is announced on the thread that brings
/// it about. Light while it has no work. Any thread.
class KTOperationQueue : public KTObservable {
public:
    explicit KTOperationQueue(std::size_t maxConcurrentOperationCount = 1)
        : width(maxConcurrentOperationCount) {}
    /// Cancels what has not started and waits for the rest.
    ~KTOperationQueue() override;

    /// Several at a time, of operations that are added from now on.
    void setMaxConcurrentOperationCount(std::size_t count);
    void addOperation(std::shared_ptr<KTOperation> operation);
    /// Adds them at once: no progress is announced in between.
    void addOperations(std::vector<std::shared_ptr<KTOperation>> operations);
    void addOperationWithBlock(std::function<void()> block);
    /// What has not started never runs; it still finishes, soon, on the queue's threads.
    void cancelAllOperations();

    std::size_t operationCount() const;
    /// Not from an operation of this queue (asserted). The main thread serves the calls of other threads
    /// meanwhile.
    void waitUntilAllOperationsAreFinished();

private:
    void work();

    mutable std::mutex mutex;
    std::size_t width;
    std::list<std::shared_ptr<KTOperation>> pending;
    std::list<std::shared_ptr<KTOperation>> running;
    std::size_t workers = 0;
    std::vector<KTLatch*> waits;
};
