#include "tests/collection/CollectionFixture.h"

namespace {

class BatchOperation : public CollectionFixture {
protected:
    static std::shared_ptr<KTOperation> step(std::function<void()> work) {
        return std::make_shared<KTOperation>(std::move(work));
    }
    void waitForEnd() {
        ASSERT_TRUE(runEventLoopUntil([&] { return !batches.batchSaveInProgress(); }));
    }
};

} // namespace

TEST_F(BatchOperation, RunsItsStepsAndShowsWhereItStands) {
    std::vector<std::string> events;
    const auto observation = batches.observe([&](const KTChange& change) {
        if (change.isPrior)
            return;
        if (change.key == "batchProgressDescription")
            events.push_back(batches.batchProgressDescription());
        else if (change.key == "batchSaveInProgress")
            events.push_back(batches.batchSaveInProgress() ? "sheet" : "closed");
    });
    std::string order;
    KTBatchOperationController::Operations steps;
    for (char name : {'a', 'b', 'c'})
        steps.push_back(step([&order, name] { order += name; }));
    batches.batchProcessOperations(steps, {}, [&] { events.push_back("completed"); });
    waitForEnd();
    EXPECT_EQ(order, "abc");
    ASSERT_GE(events.size(), 4U);
    EXPECT_EQ(events.front(), "Saving to photo 0 of 3");
    EXPECT_EQ(events[1], "sheet");
    EXPECT_EQ(std::vector(events.end() - 2, events.end()), (std::vector<std::string>{"closed", "completed"}));

    events.clear();
    batches.batchProcessOperations({}, KTEscapedForFormat("100 %u") + ": %u/%u", [&] { order += "!"; });
    EXPECT_EQ(order, "abc!") << "an empty job ends at once";
    EXPECT_EQ(events, (std::vector<std::string>{"100 %u: 0/0", "sheet", "closed"}));
}

TEST_F(BatchOperation, StopsAfterTheRunningStep) {
    int ran = 0, completed = 0;
    KTBatchOperationController::Operations steps;
    for (int i = 0; i < 10; ++i)
        steps.push_back(step([&] {
            if (++ran == 2)
                batches.abortBatch();
        }));
    batches.batchProcessOperations(steps, {}, [&] {
        ++completed;
        batches.batchProcessOperations({step([&] { ran += 100; })}, {}, [&] { ++completed; });
    });
    batches.batchProcessOperations({step([&] { ran += 1000; })}, {}, [&] { ++completed; }); // waits
    ASSERT_TRUE(runEventLoopUntil([&] { return completed == 3; }));
    EXPECT_EQ(ran, 1102);
    EXPECT_FALSE(batches.batchSaveInProgress());
}

TEST_F(BatchOperation, IsOneUndoStep) {
    const auto photos = photosNamed({"a.jpg", "b.jpg", "c.jpg"});
    KTBatchOperationController::Operations steps;
    for (const auto& photo : photos)
        steps.push_back(step([photo] {
            photo->setValuesForKeysWithDictionary({{"caption", "c"}, {"title", "t"}}, "Geotag Photos");
            photo->setValueForKey("rating", 3);
        }));
    batches.batchProcessOperations(steps);
    EXPECT_FALSE(undo->undo()) << "not while the job runs";
    waitForEnd();
    EXPECT_EQ(manager.unsavedPhotos()->size(), 3U);
    EXPECT_TRUE(undo->undo());
    EXPECT_TRUE(manager.unsavedPhotos()->empty());
    EXPECT_FALSE(undo->canUndo());
    EXPECT_TRUE(undo->redo());
    EXPECT_EQ(manager.unsavedPhotos()->size(), 3U);
}
