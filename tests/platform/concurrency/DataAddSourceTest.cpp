#include "platform/concurrency/KTDataAddSource.h"
#include "platform/concurrency/KTLatch.h"

#include <atomic>
#include <gtest/gtest.h>

namespace {

TEST(DataAddSource, AnswersWaitingRequestsByOneRun) {
    KTLatch isRunning, goOn;
    std::atomic<int> runs = 0;
    KTSerialQueue queue("test");
    const auto source = std::make_shared<KTDataAddSource>(queue, [&] {
        if (++runs == 1) {
            isRunning.signal();
            goOn.wait();
        }
    });
    source->mergeData();
    isRunning.wait();
    for (int i = 0; i < 5; ++i)
        source->mergeData();
    goOn.signal();
    queue.drain();
    EXPECT_EQ(runs, 2) << "what came during the run is not lost";
    source->mergeData();
    queue.drain();
    EXPECT_EQ(runs, 3);
    source->cancel();
    source->mergeData();
    queue.drain();
    EXPECT_EQ(runs, 3);
}

} // namespace
