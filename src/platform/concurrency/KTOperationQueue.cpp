#include "platform/concurrency/KTOperationQueue.h"

#include "platform/common/KTCallContext.h"
#include "platform/concurrency/KTThreadPool.h"

#include <cassert>

namespace {

constexpr std::string_view kOperationCount = "operationCount";

} // namespace

KTOperationQueue::~KTOperationQueue() {
    cancelAllOperations();
    waitUntilAllOperationsAreFinished();
}

void KTOperationQueue::setMaxConcurrentOperationCount(std::size_t count) {
    std::lock_guard guard(mutex);
    width = count;
}

void KTOperationQueue::addOperation(std::shared_ptr<KTOperation> operation) {
    addOperations({std::move(operation)});
}

void KTOperationQueue::addOperationWithBlock(std::function<void()> block) {
    addOperation(std::make_shared<KTOperation>(std::move(block)));
}

void KTOperationQueue::addOperations(std::vector<std::shared_ptr<KTOperation>> operations) {
    if (operations.empty())
        return;
    willChange(kOperationCount);
    std::size_t newWorkers = 0;
    {
        std::lock_guard guard(mutex);
        std::ranges::move(operations, std::back_inserter(pending));
        newWorkers = std::min(width, running.size() + pending.size());
        newWorkers -= std::min(newWorkers, workers);
        workers += newWorkers;
    }
    for (; newWorkers > 0; --newWorkers)
        KTRunOnThreadPool([this] { work(); });
    didChange(kOperationCount);
}

void KTOperationQueue::work() {
    const KTCallMark mark(&workers);
    std::unique_lock lock(mutex);
    while (!pending.empty() && running.size() < width) { // another may have come to work meanwhile
        auto place = running.insert(running.end(), std::move(pending.front()));
        pending.pop_front();
        KTOperation& operation = **place;
        lock.unlock();
        operation.start();
        willChange(kOperationCount);
        lock.lock();
        std::shared_ptr<KTOperation> ended = std::move(*place);
        running.erase(place);
        lock.unlock();
        didChange(kOperationCount);
        ended = nullptr; // outside the lock: an operation may hold the last reference to anything
        lock.lock();
    }
    std::vector<KTLatch*> done;
    if (--workers == 0)
        done.swap(waits);
    lock.unlock();
    // The queue may be gone as soon as a wait has returned.
    for (KTLatch* wait : done)
        wait->signal();
}

void KTOperationQueue::cancelAllOperations() {
    std::lock_guard guard(mutex);
    for (const auto* operations : {&running, &pending})
        for (const auto& operation : *operations)
            operation->cancel();
}

std::size_t KTOperationQueue::operationCount() const {
    std::lock_guard guard(mutex);
    return pending.size() + running.size();
}

void KTOperationQueue::waitUntilAllOperationsAreFinished() {
    KTLatch ended;
    {
        std::lock_guard guard(mutex);
        if (workers == 0 && pending.empty())
            return;
        assert(KTCallMark::count(&workers) == 0 && "an operation must not wait for its own queue");
        waits.push_back(&ended);
    }
    ended.wait();
}
