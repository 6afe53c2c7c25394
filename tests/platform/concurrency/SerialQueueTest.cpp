#include "platform/concurrency/KTSerialQueue.h"

#include "platform/concurrency/KTLatch.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/observing/KTObservable.h"

#include <gtest/gtest.h>

namespace {

class Announcer : public KTObservable {
public:
    void announce() { didChange("state"); }
};

TEST(SerialQueue, RunsOneTaskAtATimeInTheOrderOfEachThread) {
    constexpr int kThreads = 4, kTasks = 1000;
    KTSerialQueue queue("test");
    std::vector<std::pair<int, int>> ran; // no lock of its own
    {
        std::vector<std::jthread> threads;
        for (int thread = 0; thread < kThreads; ++thread)
            threads.emplace_back([&, thread] {
                for (int task = 0; task < kTasks; ++task) {
                    auto run = [&ran, thread, task] { ran.emplace_back(thread, task); };
                    if ((task * 7 + thread) % 3 == 0)
                        queue.sync(run);
                    else
                        queue.async(run);
                }
            });
    }
    queue.drain();
    ASSERT_EQ(ran.size(), kThreads * kTasks);
    std::ranges::stable_sort(ran, {}, &std::pair<int, int>::first);
    for (std::size_t i = 0; i < ran.size(); ++i)
        ASSERT_EQ(ran[i], std::pair(int(i) / kTasks, int(i) % kTasks));
}

TEST(SerialQueue, SyncRunsOnTheCallingThreadAndAsyncOnAnother) {
    KTSerialQueue queue("test");
    int number = 1;
    static_assert(std::is_same_v<decltype(queue.sync([&]() -> int& { return number; })), int&>);
    EXPECT_EQ(&queue.sync([&]() -> int& { return number; }), &number);
    EXPECT_EQ(queue.sync([] { return std::this_thread::get_id(); }), std::this_thread::get_id());
    EXPECT_TRUE(queue.sync([&] { return queue.isHeldByThisThread(); }));
    std::thread::id id;
    bool isHeld = false;
    queue.async([&] {
        id = std::this_thread::get_id();
        isHeld = queue.isHeldByThisThread();
    });
    queue.drain();
    EXPECT_NE(id, std::this_thread::get_id());
    EXPECT_TRUE(isHeld);
    EXPECT_FALSE(queue.isHeldByThisThread());
    EXPECT_THROW(queue.sync([] { throw 1; }), int);
    EXPECT_EQ(queue.sync([] { return 2; }), 2); // the turn was passed on
}

TEST(SerialQueue, IsDestroyedAfterItsTasksAndWhatTheyQueue) {
    for (int round = 0; round < 300; ++round) {
        int ran = 0;
        {
            KTSerialQueue queue("test",
                                round % 2 == 0 ? KTSerialQueue::Kind::Leaf : KTSerialQueue::Kind::Announcing);
            queue.async([&] {
                ++ran;
                queue.async([&] {
                    ++ran;
                    queue.async([&] { ++ran; });
                });
            });
        }
        ASSERT_EQ(ran, 3);
    }
}

TEST(SerialQueue, AServedCallMayWaitForTheLeafQueueThatTheMainThreadWaitsFor) {
    constexpr int kRounds = 3000;
    KTSerialQueue leaf("test");
    int count = 0;
    KTLatch callerEnded;
    std::jthread caller([&] {
        for (int round = 0; round < kRounds; ++round)
            KTPerformOnMainThreadAndWait([&] { leaf.sync([&] { ++count; }); });
        callerEnded.signal();
    });
    std::jthread user([&] {
        for (int round = 0; round < kRounds; ++round)
            leaf.sync([&] { ++count; });
    });
    for (int round = 0; round < kRounds; ++round) {
        leaf.async([&] { ++count; });
        leaf.sync([&] { ++count; });
    }
    callerEnded.wait();
    user.join();
    EXPECT_EQ(leaf.sync([&] { return count; }), 4 * kRounds);
}

TEST(SerialQueue, InsideACalloutOnlyABusyAnnouncingQueueIsForbidden) {
    Announcer announcer;
    KTSerialQueue leaf("test");
    int ran = 0;
    auto observation = announcer.observe([&](const KTChange&) {
        leaf.sync([&] { ++ran; });
        KTSerialQueue idle("test", KTSerialQueue::Kind::Announcing);
    });
    announcer.announce();
    KTSerialQueue queue("test", KTSerialQueue::Kind::Announcing);
    queue.sync([&] { announcer.announce(); });
    EXPECT_EQ(ran, 2);
}

TEST(SerialQueueDeathTest, WaitsThatCouldNeverEndAssert) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    KTSerialQueue leaf("leaf"), otherLeaf("leaf"), queue("queue", KTSerialQueue::Kind::Announcing);
    auto nothing = [] {};
    EXPECT_DEATH(leaf.sync([&] { leaf.sync(nothing); }), "holds this queue already");
    EXPECT_DEATH(queue.sync([&] { queue.drain(); }), "holds this queue already");
    EXPECT_DEATH(
        {
            leaf.async([&] { leaf.drain(); });
            leaf.drain();
        },
        "holds this queue already");
    EXPECT_DEATH(leaf.sync([&] { otherLeaf.sync(nothing); }), "must not wait for another queue");
    EXPECT_DEATH(leaf.sync([&] { KTPerformOnMainThreadAndWait(nothing); }), "needs the main thread");

    Announcer announcer;
    auto observation = announcer.observe([&](const KTChange&) { queue.drain(); });
    EXPECT_DEATH(announcer.announce(), "must post to an announcing queue");
    EXPECT_DEATH(
        {
            KTLatch ended;
            std::jthread worker([&] {
                KTPerformOnMainThreadAndWait([&] { queue.drain(); });
                ended.signal();
            });
            ended.wait();
        },
        "must post to an announcing queue");
}

} // namespace
