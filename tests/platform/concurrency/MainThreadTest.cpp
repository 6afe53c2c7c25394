#include "platform/concurrency/KTMainThread.h"

#include "platform/common/KTCallContext.h"
#include "platform/concurrency/KTOperationQueue.h"
#include "platform/concurrency/KTSerialQueue.h"

#include <QCoreApplication>
#include <gtest/gtest.h>
#include <latch>
#include <thread>

namespace {

/// Runs the event loop until @p isDone; false when it never will be.
bool runEventLoopUntil(const std::function<bool()>& isDone) {
    for (int turn = 0; turn < 1000; ++turn) {
        if (isDone())
            return true;
        QCoreApplication::processEvents();
    }
    return isDone();
}

/// Lets @p wait, a wait of the main thread, meet a thread that does @p work, which ends the wait.
void expectThatItServesWaitingCallsOnly(const std::function<void(std::function<void()> work)>& wait) {
    std::string events;
    wait([&] {
        KTPerformOnMainThread([&] { events += "posted "; });
        for (int call = 0; call < 3; ++call)
            EXPECT_TRUE(KTPerformOnMainThreadAndWait([&] {
                EXPECT_TRUE(KTMainThread::isCurrent());
                EXPECT_TRUE(KTPerformOnMainThreadAndWait([&] { events += "nested "; }));
                events += "waiting ";
            }));
    });
    EXPECT_EQ(events, "nested waiting nested waiting nested waiting ");
    EXPECT_TRUE(runEventLoopUntil([&] { return events.ends_with("posted "); }));
}

TEST(MainThread, EveryWaitServesTheCallsThatOthersWaitFor) {
    expectThatItServesWaitingCallsOnly([](auto work) {
        KTLatch ended;
        std::jthread thread([&] {
            work();
            ended.signal();
        });
        ended.wait();
        ended.wait(); // also a later wait returns
    });
    expectThatItServesWaitingCallsOnly([](auto work) {
        KTLatch ended;
        std::jthread thread([&] {
            work();
            ended.signal();
        });
        EXPECT_TRUE(ended.waitFor(std::chrono::minutes(1)));
    });
    expectThatItServesWaitingCallsOnly([](auto work) {
        KTSerialQueue queue("test", KTSerialQueue::Kind::Announcing);
        queue.async(work);
        queue.sync([] {});
    });
    expectThatItServesWaitingCallsOnly([](auto work) {
        KTSerialQueue queue("test", KTSerialQueue::Kind::Announcing);
        queue.async(work); // and the queue's end waits for it
    });
    expectThatItServesWaitingCallsOnly([](auto work) {
        KTOperationQueue queue;
        queue.addOperationWithBlock(work);
        queue.waitUntilAllOperationsAreFinished();
    });
    expectThatItServesWaitingCallsOnly([](auto work) {
        KTOperationQueue queue;
        auto operation = std::make_shared<KTOperation>(work);
        queue.addOperation(operation);
        operation->waitUntilFinished();
    });
}

TEST(MainThread, AWaitMayHaveALimit) {
    KTLatch never;
    std::jthread thread([&] { EXPECT_FALSE(never.waitFor(std::chrono::milliseconds(1))); });
    EXPECT_FALSE(never.waitFor(std::chrono::milliseconds(1)));
    EXPECT_FALSE(never.waitFor(std::chrono::milliseconds(-1)));
}

TEST(MainThread, AWorkerMayWaitForItWhileItWaitsForTheWorkersQueue) {
    constexpr int kRounds = 2000;
    KTSerialQueue queue("test", KTSerialQueue::Kind::Announcing), leaf("leaf");
    int onMain = 0, inQueue = 0, inLeaf = 0;
    auto callMain = [&] {
        ++inQueue;
        KTPerformOnMainThreadAndWait([&] {
            ++onMain;
            leaf.sync([&] { ++inLeaf; });
        });
    };
    std::vector<KTLatch> ended(2);
    std::jthread first([&] {
        for (int round = 0; round < kRounds; ++round)
            queue.sync(callMain);
        ended[0].signal();
    });
    std::jthread second([&] {
        for (int round = 0; round < kRounds; ++round) {
            queue.async(callMain);
            KTPerformOnMainThreadAndWait([&] { ++onMain; });
        }
        ended[1].signal();
    });
    for (int round = 0; round < kRounds; ++round)
        queue.sync(callMain);
    for (KTLatch& latch : ended)
        latch.wait();
    queue.drain();
    EXPECT_EQ(inQueue, 3 * kRounds);
    EXPECT_EQ(onMain, 4 * kRounds);
    EXPECT_EQ(inLeaf, 3 * kRounds);
}

TEST(MainThread, AWaitingCallBelongsToItsCallersLogicalCall) {
    const char callers = 0, mains = 0;
    auto counts = [&] { return std::pair(KTCallMark::count(&callers), KTCallMark::count(&mains)); };
    KTLatch ended;
    std::jthread worker([&] {
        const KTCallMark mark(&callers), again(&callers);
        KTPerformOnMainThreadAndWait([&] {
            EXPECT_EQ(counts(), std::pair(2, 0));
            EXPECT_TRUE(KTCallout::isUnderWay());
            const KTCallMark inner(&callers);
            EXPECT_EQ(counts(), std::pair(3, 0));
        });
        EXPECT_EQ(counts(), std::pair(2, 0));
        EXPECT_FALSE(KTCallout::isUnderWay());
        ended.signal();
    });
    {
        const KTCallMark mark(&mains);
        ended.wait();
        EXPECT_EQ(counts(), std::pair(0, 1));
        EXPECT_FALSE(KTCallout::isUnderWay());

        // An event loop run here serves strangers.
        bool wasRun = false;
        KTPerformOnMainThread([&] {
            EXPECT_EQ(counts(), std::pair(0, 0));
            wasRun = true;
        });
        EXPECT_TRUE(runEventLoopUntil([&] { return wasRun; }));
        EXPECT_EQ(counts(), std::pair(0, 1));
    }
    EXPECT_EQ(counts(), std::pair(0, 0));
}

TEST(MainThread, TheEventLoopRunsCallsInOrderAlsoInsideOneOfThem) {
    std::string events;
    KTPerformOnMainThread([&] {
        events += "a";
        EXPECT_TRUE(runEventLoopUntil([&] { return events == "abc"; }));
        events += "A";
    });
    KTPerformOnMainThread([&] { events += "b"; });
    KTPerformOnMainThread([&] { events += "c"; });
    EXPECT_TRUE(runEventLoopUntil([&] { return events == "abcA"; }));

    int turns = 0;
    std::function<void()> again = [&] {
        if (++turns < 10'000)
            KTPerformOnMainThread(again);
    };
    KTPerformOnMainThread(again);
    QCoreApplication::processEvents();
    EXPECT_LT(turns, 10'000); // the loop gets its turn in between
    while (turns < 10'000)
        QCoreApplication::processEvents();

    std::atomic<bool> isEnded = false;
    std::jthread worker([&] {
        KTPerformOnMainThreadAndWait([&] { events = "served"; });
        isEnded = true;
    });
    while (!isEnded)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
    EXPECT_EQ(events, "served");
}

/// The main thread's share of the test below; the exit code.
int closeWhileOthersCall() {
    constexpr int kCallers = 8;
    std::atomic<int> ran = 0, refused = 0;
    // Dropped with a call that is never run: what a call holds on to may itself call.
    auto last = std::shared_ptr<int>(new int, [](int* number) {
        KTPerformOnMainThread([] { std::_Exit(2); });
        delete number;
    });
    KTPerformOnMainThread([last = std::move(last)] { std::_Exit(3); });
    std::latch begun(kCallers);
    std::vector<std::jthread> callers;
    for (int caller = 0; caller < kCallers; ++caller)
        callers.emplace_back([&] {
            begun.count_down();
            bool isServed = true;
            while (isServed) {
                isServed = KTPerformOnMainThreadAndWait([&] { ++ran; });
                refused += isServed ? 0 : 1;
            }
        });
    begun.wait();
    KTMainThread::serveCallsUntil([&] { return ran >= 100; });
    KTMainThread::close();
    callers.clear();
    KTPerformOnMainThread([] { std::_Exit(4); });
    QCoreApplication::processEvents();
    bool wasRun = false; // what the main thread asks of itself is done
    const bool isServed = KTPerformOnMainThreadAndWait([&] { wasRun = true; });
    return refused == kCallers && isServed && wasRun ? 0 : 1;
}

TEST(MainThreadDeathTest, CloseRefusesWaitingCallsAndDropsPostedOnes) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(std::_Exit(closeWhileOthersCall()), testing::ExitedWithCode(0), "");
}

} // namespace
