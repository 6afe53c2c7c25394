#include "platform/undo/KTUndoManager.h"

#include "platform/common/KTCallContext.h"
#include "platform/concurrency/KTLatch.h"
#include "platform/concurrency/KTMainThread.h"

#include <gtest/gtest.h>

namespace {

/// A manager with a queue, and letters that undoing takes back.
class UndoManager : public testing::Test {
protected:
    /// An edit of @p target, whose letter undoing writes down in lower case and redoing again in upper case.
    void edit(char letter, const void* target = nullptr) {
        manager.registerUndoWithTarget(target, std::string(1, letter), [this, letter, target] {
            undone += manager.isUndoing() ? static_cast<char>(std::tolower(letter)) : letter;
            edit(letter, target);
        });
    }
    /// Keeps the queue busy until the latch is signalled.
    void block(KTLatch& latch) {
        queue->async([&] { latch.wait(); });
    }
    /// Runs @p code as an observer of an announcement does.
    static void inCallout(const std::function<void()>& code) {
        const KTCallout callout;
        code();
    }

    std::shared_ptr<KTSerialQueue> queue =
        std::make_shared<KTSerialQueue>("undo", KTSerialQueue::Kind::Announcing);
    KTUndoManager manager{queue};
    std::string undone;
    const char one = 0, other = 0; // targets
};

TEST_F(UndoManager, RegistrationsOnTheirWayKeepTheirOrderAndAreDoneFirst) {
    KTLatch go;
    block(go);
    edit('A');
    inCallout([&] { edit('B'); });
    queue->async([&] { edit('C'); }); // by a task of the queue
    EXPECT_FALSE(manager.canUndo());
    std::jthread release([&] { go.signal(); });
    while (manager.undo()) {
    }
    EXPECT_EQ(undone, "cba");
    while (manager.redo()) {
    }
    EXPECT_EQ(undone, "cbaABC");
}

TEST_F(UndoManager, RemovalReachesWhatIsOnItsWay) {
    KTLatch go;
    block(go);
    edit('A', &one);
    edit('B', &other);
    inCallout([&] { manager.removeAllActionsWithTargets({&one}); });
    go.signal();
    queue->drain();
    EXPECT_EQ(manager.undoActionName(), "B");
    EXPECT_TRUE(manager.undo());
    EXPECT_FALSE(manager.canUndo());

    KTLatch goOn;
    queue->async([&] {
        goOn.wait();
        manager.removeAllActionsWithTargets({&other}); // 'C' waits behind this task; 'B' can be redone
    });
    edit('C', &other);
    goOn.signal();
    queue->drain();
    queue->drain(); // what the task posted
    EXPECT_FALSE(manager.canUndo() || manager.canRedo());

    KTLatch end;
    block(end);
    edit('D', &one);
    std::jthread release([&] { end.signal(); });
    manager.removeAllActionsWithTargets({&one});
    EXPECT_FALSE(manager.undo());
}

TEST_F(UndoManager, RemovalWhileUndoingDropsWhatIsLeftOfTheStep) {
    for (bool isCallout : {false, true}) {
        undone.clear();
        manager.beginUndoGrouping("All");
        edit('A', &one);
        edit('B', &other);
        manager.registerUndoWithTarget(&other, "", [&] {
            edit('D', &one);
            edit('E', &other);
            auto remove = [&] { manager.removeAllActionsWithTargets({&one}); };
            isCallout ? inCallout(remove) : remove();
        });
        edit('C', &one);
        manager.endUndoGrouping();
        EXPECT_TRUE(manager.undo());
        EXPECT_EQ(undone, "cb");
        EXPECT_TRUE(manager.redo()); // 'E' and 'B', without 'C' and 'D'
        EXPECT_EQ(undone, "cbBE");
        manager.removeAllActionsWithTargets({&other});
        EXPECT_FALSE(manager.canUndo() || manager.canRedo());
    }
}

TEST_F(UndoManager, WhatOthersDoMeanwhileIsNotPartOfAnUndo) {
    manager.registerUndoWithTarget(&one, "First", [&] {
        EXPECT_TRUE(manager.isUndoing());
        KTLatch ended;
        std::jthread worker([&] {
            EXPECT_FALSE(manager.isUndoingOrRedoing());
            edit('W');
            KTPerformOnMainThreadAndWait([&] {
                EXPECT_FALSE(manager.isUndoingOrRedoing());
                edit('M');
                EXPECT_FALSE(manager.undo());
            });
            queue->drain();
            ended.signal();
        });
        ended.wait();
        EXPECT_TRUE(manager.isUndoing());
        EXPECT_FALSE(manager.isRedoing());
        edit('R', &one);
    });
    EXPECT_TRUE(manager.undo());
    EXPECT_EQ(manager.undoActionName(), "M");
    EXPECT_EQ(manager.redoActionName(), "First");
    EXPECT_FALSE(manager.isUndoing());
    EXPECT_TRUE(manager.redo());
    EXPECT_EQ(manager.undoActionName(), "First");
    while (manager.undo()) {
    }
    EXPECT_EQ(undone, "Rrmw");
}

TEST_F(UndoManager, AnEditIsJudgedWhenItIsMadeNotWhenItArrives) {
    KTLatch go;
    manager.registerUndoWithTarget(&one, "First", [&] {
        block(go); // from here on nothing arrives
        std::jthread([&] { edit('W'); }).join();
        edit('R');
    });
    EXPECT_TRUE(manager.undo());
    EXPECT_EQ(manager.redoActionName(), "First"); // the undo's own registration did not wait
    EXPECT_FALSE(manager.canUndo());
    go.signal();
    queue->drain();
    EXPECT_EQ(manager.undoActionName(), "W");
    EXPECT_FALSE(manager.canRedo()); // an ordinary edit ends it
}

TEST_F(UndoManager, AGroupInsideACalloutHoldsItsOwnEdits) {
    KTLatch go;
    block(go);
    edit('A');
    inCallout([&] {
        manager.beginUndoGrouping("Group");
        edit('B');
        edit('C');
        manager.endUndoGrouping();
        edit('D');
    });
    std::jthread release([&] { go.signal(); });
    EXPECT_TRUE(manager.undo());
    EXPECT_EQ(undone, "d");
    EXPECT_EQ(manager.undoActionName(), "Group");
    EXPECT_TRUE(manager.undo());
    EXPECT_EQ(undone, "dcb");
    EXPECT_TRUE(manager.undo());
    EXPECT_EQ(undone, "dcba");
}

TEST_F(UndoManager, AGroupWhileUndoingIsPartOfTheStep) {
    manager.registerUndoWithTarget(&one, "First", [&] {
        manager.beginUndoGrouping("Group");
        edit('A');
        std::jthread([&] { edit('W'); }).join();
        queue->drain();
        edit('B');
        manager.endUndoGrouping();
        edit('C');
    });
    EXPECT_TRUE(manager.undo());
    EXPECT_EQ(manager.undoActionName(), "W");
    EXPECT_EQ(manager.redoActionName(), "First");
    EXPECT_TRUE(manager.redo());
    EXPECT_EQ(undone, "CBA");
    EXPECT_FALSE(manager.canRedo());
}

TEST_F(UndoManager, LastReferencesAreDroppedOutsideItsLock) {
    int dropped = 0;
    auto holding = [&] {
        std::shared_ptr<int> last(new int, [&](int* number) {
            delete number;
            static_cast<void>(manager.undoActionName()); // as what goes with it may ask
            manager.removeAllActionsWithTargets({&other});
            ++dropped;
        });
        return [last] {};
    };
    manager.registerUndoWithTarget(&one, "", holding());
    EXPECT_TRUE(manager.undo());
    queue->drain();
    EXPECT_EQ(dropped, 1); // it registered nothing
    manager.registerUndoWithTarget(&one, "", [&] { manager.registerUndoWithTarget(&one, "", holding()); });
    EXPECT_TRUE(manager.undo());
    edit('A');
    queue->drain();
    EXPECT_EQ(dropped, 2); // it could be redone
    manager.registerUndoWithTarget(&one, "", holding());
    manager.removeAllActionsWithTargets({&one});
    queue->drain();
    EXPECT_EQ(dropped, 3);
    EXPECT_EQ(manager.undoActionName(), "A");
}

TEST(UndoManagerThreads, EditsGroupsAndRemovalsOfManyThreadsMeet) {
    constexpr int kThreads = 4, kRounds = 300;
    auto queue = std::make_shared<KTSerialQueue>("undo", KTSerialQueue::Kind::Announcing);
    KTUndoManager manager(queue);
    std::array<char, kThreads> targets = {};
    std::array<std::vector<int>, kThreads> undone;
    std::atomic<int> left = kThreads;
    KTLatch ended;
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < kThreads; ++thread)
        threads.emplace_back([&, thread] {
            for (int round = 0; round < kRounds; ++round) {
                if (round == kRounds / 2)
                    manager.removeAllActionsWithTargets({&targets[thread]});
                const bool isGrouped = round % 5 == 0;
                if (isGrouped)
                    manager.beginUndoGrouping();
                auto act = [&undone, thread, round] { undone[thread].push_back(round); };
                manager.registerUndoWithTarget(&targets[thread], "Edit", act);
                if (isGrouped)
                    manager.endUndoGrouping();
            }
            if (--left == 0)
                ended.signal();
        });
    auto observation = manager.observe([&](const KTChange&) { KTPerformOnMainThreadAndWait([] {}); });
    ended.wait();
    while (manager.undo()) {
    }
    for (const auto& rounds : undone) {
        ASSERT_EQ(rounds.size(), kRounds / 2u);
        EXPECT_TRUE(std::ranges::is_sorted(rounds, std::greater<>()));
        EXPECT_EQ(rounds.front(), kRounds - 1);
    }
}

} // namespace
