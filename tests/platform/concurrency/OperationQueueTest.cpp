#include "platform/concurrency/KTOperationQueue.h"

#include "platform/concurrency/KTMainThread.h"

#include <atomic>
#include <gtest/gtest.h>
#include <latch>
#include <thread>

namespace {

using Operations = std::vector<std::shared_ptr<KTOperation>>;

Operations operationsOf(std::initializer_list<std::function<void()>> blocks) {
    Operations result;
    for (const auto& block : blocks)
        result.push_back(std::make_shared<KTOperation>(block));
    return result;
}

TEST(OperationQueue, StartsOperationsInOrderUpToItsWidth) {
    KTOperationQueue narrow;
    std::vector<int> ran; // no lock of its own
    for (int number = 0; number < 1000; ++number)
        narrow.addOperationWithBlock([&, number] { ran.push_back(number); });
    narrow.waitUntilAllOperationsAreFinished();
    ASSERT_EQ(ran.size(), 1000u);
    EXPECT_TRUE(std::ranges::is_sorted(ran));

    constexpr int kWidth = 3;
    KTOperationQueue wide(kWidth);
    std::latch all(kWidth); // opens only when as many run at once
    std::atomic<int> running = 0, most = 0;
    for (int number = 0; number < 100; ++number)
        wide.addOperationWithBlock([&, number] {
            int now = ++running;
            for (int before = most; before < now && !most.compare_exchange_weak(before, now);) {
            }
            if (number < kWidth)
                all.arrive_and_wait();
            --running;
        });
    wide.waitUntilAllOperationsAreFinished();
    EXPECT_EQ(most, kWidth);
}

TEST(OperationQueue, BecomesNarrowForWhatIsAddedLater) {
    KTOperationQueue queue;
    std::atomic<int> running = 0, most = 0;
    for (int round = 0; round < 300; ++round) {
        queue.setMaxConcurrentOperationCount(2);
        queue.addOperations(operationsOf({[] {}, [] {}, [] {}}));
        while (queue.operationCount() != 0)
            std::this_thread::yield(); // its threads may still be about to look for more
        queue.setMaxConcurrentOperationCount(1);
        const auto narrow = [&] {
            most = std::max(most.load(), ++running);
            std::this_thread::yield();
            --running;
        };
        queue.addOperations(operationsOf({narrow, narrow, narrow, narrow}));
        queue.waitUntilAllOperationsAreFinished();
    }
    EXPECT_EQ(most, 1);
}

TEST(OperationQueue, AnnouncesEachChangeOfItsCount) {
    KTOperationQueue queue;
    std::mutex mutex;
    std::map<bool, std::string> heard; // by whether it was the main thread
    std::size_t lastCount = 0;
    auto observation = queue.observe([&](const KTChange& change) {
        const std::size_t count = queue.operationCount();
        std::lock_guard guard(mutex);
        EXPECT_EQ(change.key, "operationCount");
        heard[KTMainThread::isCurrent()] += change.isPrior ? "(" : ")";
        lastCount = count;
    });
    KTLatch go;
    queue.addOperations(operationsOf({[&] { go.wait(); }, [] {}, [] {}}));
    EXPECT_EQ(heard[true], "()");
    EXPECT_EQ(queue.operationCount(), 3u);
    EXPECT_TRUE(heard[false].empty());
    queue.addOperations({});
    EXPECT_EQ(heard[true], "()");
    go.signal();
    queue.waitUntilAllOperationsAreFinished();
    EXPECT_EQ(heard[false], "()()()");
    EXPECT_EQ(lastCount, 0u);
}

TEST(OperationQueue, WhatIsCancelledFinishesOnceWithoutRunning) {
    KTOperationQueue queue;
    std::latch begun(1);
    KTLatch go;
    std::atomic<int> ran = 0;
    auto work = [&] { ++ran; };
    auto operations = operationsOf({[&] {
                                        begun.count_down();
                                        go.wait();
                                        ++ran;
                                    },
                                    work, work, work});
    std::vector<std::atomic<int>> announced(operations.size());
    std::vector<KTObservable::Observation> observations;
    for (std::size_t i = 0; i < operations.size(); ++i)
        observations.push_back(operations[i]->observe([&, i](const KTChange& change) {
            EXPECT_EQ(change.key, "isFinished");
            EXPECT_EQ(operations[i]->isFinished(), !change.isPrior);
            EXPECT_FALSE(KTMainThread::isCurrent()); // not from inside cancel()
            ++announced[i];
        }));
    operations[1]->cancel(); // before it is added
    queue.addOperations(operations);
    begun.wait();
    queue.cancelAllOperations();
    operations[2]->cancel();
    for (const auto& operation : operations) {
        EXPECT_TRUE(operation->isCancelled());
        EXPECT_FALSE(operation->isFinished());
    }
    auto late = std::make_shared<KTOperation>(work); // cancelling is not for what comes later
    queue.addOperation(late);
    go.signal();
    queue.waitUntilAllOperationsAreFinished();
    for (std::size_t i = 0; i < operations.size(); ++i) {
        EXPECT_TRUE(operations[i]->isFinished());
        EXPECT_EQ(announced[i], 2) << i;
    }
    EXPECT_TRUE(late->isFinished());
    EXPECT_EQ(ran, 2);
}

TEST(OperationQueue, WaitsAlsoForWhatItsOperationsAdd) {
    KTOperationQueue queue(2);
    std::atomic<int> left = 100;
    std::function<void()> more = [&] {
        if (--left > 0)
            queue.addOperationWithBlock(more);
    };
    queue.addOperationWithBlock(more);
    std::jthread other([&] { queue.waitUntilAllOperationsAreFinished(); });
    queue.waitUntilAllOperationsAreFinished();
    EXPECT_EQ(left, 0);
    EXPECT_EQ(queue.operationCount(), 0u);
}

/// Asks its queue when it goes.
class Inquirer : public KTOperation {
public:
    explicit Inquirer(KTOperationQueue& asked) : queue(asked) {}
    ~Inquirer() override { queue.operationCount(); }

protected:
    void main() override {}

private:
    KTOperationQueue& queue;
};

TEST(OperationQueue, MayBeDestroyedWhileItIsBusy) {
    for (int round = 0; round < 300; ++round) {
        std::atomic<int> running = 0, ran = 0;
        Operations operations;
        {
            KTOperationQueue queue(round % 3 + 1);
            for (int i = 0; i < 10; ++i)
                operations.push_back(std::make_shared<KTOperation>([&] {
                    ++running;
                    ++ran;
                    KTPerformOnMainThreadAndWait([] {});
                    --running;
                }));
            queue.addOperations(operations);
            queue.addOperation(std::make_shared<Inquirer>(queue));
            if (round % 2 == 0)
                operations.front()->waitUntilFinished();
        }
        ASSERT_EQ(running, 0);
        ASSERT_TRUE(std::ranges::all_of(operations, &KTOperation::isFinished));
        ASSERT_TRUE(ran > 0 || round % 2 != 0);
    }
}

TEST(OperationQueueDeathTest, AnOperationDoesNotWaitForItsOwnQueue) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(
        {
            KTOperationQueue queue;
            queue.addOperationWithBlock([&] { queue.waitUntilAllOperationsAreFinished(); });
            queue.waitUntilAllOperationsAreFinished();
        },
        "must not wait for its own queue");
}

} // namespace
