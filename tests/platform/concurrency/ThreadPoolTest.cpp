#include "platform/concurrency/KTThreadPool.h"

#include "platform/concurrency/KTLatch.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/concurrency/KTSerialQueue.h"

#include <gtest/gtest.h>
#include <latch>

namespace {

TEST(ThreadPool, AJobThatWaitsKeepsNoOtherFromStarting) {
    constexpr int kJobs = 50;
    for (int round = 0; round < 20; ++round) {
        std::latch met(kJobs), ended(kJobs);
        for (int job = 0; job < kJobs; ++job)
            KTRunOnThreadPool([&] {
                met.arrive_and_wait();
                ended.count_down();
            });
        ended.wait();
    }
}

/// Made before the pool, so destroyed after it.
struct Survivor {
    KTSerialQueue queue{"test", KTSerialQueue::Kind::Announcing};
    int ran = 0;
    bool wasServed = true;

    ~Survivor() {
        const int before = ran;
        queue.async([this] { ++ran; });
        queue.drain();
        std::_Exit(before == 1000 && ran == 1001 && !wasServed ? 7 : 1);
    }
};

void exitWithWorkLeft() {
    static Survivor survivor;
    for (int task = 0; task < 1000; ++task)
        survivor.queue.async([] {
            ++survivor.ran;
            survivor.wasServed = KTPerformOnMainThreadAndWait([] {});
        });
    std::exit(0);
}

TEST(ThreadPoolDeathTest, TheProgramEndsWhenItsJobsHave) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(exitWithWorkLeft(), testing::ExitedWithCode(7), "");
}

} // namespace
