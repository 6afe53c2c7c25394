#pragma once
#include "platform/concurrency/KTSerialQueue.h"
#include "platform/observing/KTObservable.h"

#include <atomic>

/// What can be undone and redone. Registrations keep the order of the edits: each is posted to the undo
/// queue, and undoing, redoing, grouping and removing first let the queue finish what was posted. Any thread,
/// except that `undo` and `redo` are for the main thread. Each change of what can be undone or redone is
/// announced under "undoState", on the thread that brings it about.
class KTUndoManager : public KTObservable {
public:
    using Action = std::function<void()>;

    /// @p undoQueue must be of the announcing kind; null for registrations that take place at once.
    explicit KTUndoManager(std::shared_ptr<KTSerialQueue> undoQueue = nullptr);
    /// Not from code run by an announcement while registrations are on their way.
    ~KTUndoManager() override;

    /// Lets the next undo run @p action, which undoes what was done to @p target; while this logical call
    /// undoes, the next redo. Outside a group the action is a step of its own, called @p actionName; in a
    /// group without a name, the group takes the name. Ends what could be redone. @p target is compared,
    /// never looked into.
    void registerUndoWithTarget(const void* target, std::string actionName, Action action);

    /// What is registered until the end of the group is undone in one step. Groups nest and become part of
    /// the outer one; a group without actions leaves nothing. An @p actionName given here stays. Inside an
    /// announcement the group begins and ends soon, in the order of the edits. While this logical call undoes
    /// or redoes, all is one step anyway.
    void beginUndoGrouping(std::string actionName = {});
    void endUndoGrouping();

    /// Runs the actions of the last step, the last first. False, and nothing is done, when there is none, a
    /// group is open, or undoing or redoing is under way. Not from code run by an announcement.
    bool undo();
    bool redo();

    bool canUndo() const;
    bool canRedo() const;
    /// Of the step that the next undo (redo) takes back; empty when there is none.
    std::string undoActionName() const;
    std::string redoActionName() const;
    /// Whether the calling thread's logical call is an undo (a redo) of this manager: what another thread
    /// does meanwhile is not part of it.
    bool isUndoing() const;
    bool isRedoing() const;
    bool isUndoingOrRedoing() const { return isUndoing() || isRedoing(); }

    /// Forgets all actions of these targets, also those still on their way and those that the present undo
    /// has not come to; steps left empty are dropped. Inside an announcement, those still on their way are
    /// forgotten soon, before the next undo.
    void removeAllActionsWithTargets(const std::vector<const void*>& targets);

private:
    struct Entry {
        const void* target;
        Action action;
    };
    struct Step {
        std::string name;
        std::vector<Entry> entries;
        bool keepsName = false;
    };
    using Steps = std::vector<Step>;

    bool mayWaitForQueue() const;
    void finishPosted();
    void post(std::function<void()> task);
    void inOrder(std::function<void()> change);
    std::optional<Entry> nextToRun();
    void enter(Entry entry, std::string actionName);
    bool run(Steps& from, Steps& into, const void* meaning);
    void announceState();

    const std::shared_ptr<KTSerialQueue> queue;
    mutable std::mutex mutex; // never held while calling out
    Steps undoSteps, redoSteps;
    Step open;      // the outermost open group
    Step running;   // what is left of the step that is being undone or redone
    Step collected; // what an undo or redo registers
    int openGroups = 0;
    bool isRunning = false;
    std::atomic<int> onTheirWay = 0; // tasks on the undo queue
    char undoing = 0, redoing = 0;   // their addresses mark a logical call
};
