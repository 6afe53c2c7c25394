#include "platform/concurrency/KTLatch.h"

#include "platform/concurrency/KTMainThread.h"

void KTLatch::signal() {
    {
        std::lock_guard guard(mutex);
        isSignalled = true;
        happened.notify_all();
    }
    KTMainThread::wake(); // the latch may be gone by now
}

bool KTLatch::hasHappened() {
    std::lock_guard guard(mutex);
    return isSignalled;
}

void KTLatch::wait() {
    if (KTMainThread::isCurrent())
        return static_cast<void>(KTMainThread::serveCallsUntil([this] { return hasHappened(); }));
    waitWithoutServing();
}

void KTLatch::waitWithoutServing() {
    std::unique_lock lock(mutex);
    happened.wait(lock, [this] { return isSignalled; });
}

bool KTLatch::waitFor(std::chrono::milliseconds limit) {
    const auto deadline = std::chrono::steady_clock::now() + limit;
    if (KTMainThread::isCurrent())
        return KTMainThread::serveCallsUntil([this] { return hasHappened(); }, deadline);
    std::unique_lock lock(mutex);
    return happened.wait_until(lock, deadline, [this] { return isSignalled; });
}
