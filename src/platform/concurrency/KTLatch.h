#pragma once
#include <chrono>
#include <condition_variable>
#include <mutex>

/// Something that happens once and that threads wait for. The main thread serves the calls of other threads
/// while it waits, so that it can wait for a thread that waits for it.
class KTLatch {
public:
    /// Lets every wait, present and later, return. Any thread. The latch may be destroyed as soon as a wait
    /// for it has returned.
    void signal();
    void wait();
    /// As above, for @p limit at most; whether it has happened.
    bool waitFor(std::chrono::milliseconds limit);
    /// The same, but the main thread serves nobody: for what surely happens without it.
    void waitWithoutServing();

private:
    bool hasHappened();

    std::mutex mutex;
    std::condition_variable happened;
    bool isSignalled = false;
};
