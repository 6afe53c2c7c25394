#include "platform/undo/KTUndoManager.h"

#include "platform/common/KTCallContext.h"

#include <algorithm>
#include <cassert>
#include <unordered_set>

KTUndoManager::KTUndoManager(std::shared_ptr<KTSerialQueue> undoQueue) : queue(std::move(undoQueue)) {}

KTUndoManager::~KTUndoManager() {
    finishPosted();
    assert(onTheirWay == 0 && "destroyed where the undo queue cannot be waited for");
}

bool KTUndoManager::mayWaitForQueue() const {
    return queue && !KTCallout::isUnderWay() && !queue->isHeldByThisThread();
}

void KTUndoManager::finishPosted() {
    if (mayWaitForQueue())
        queue->drain();
}

void KTUndoManager::post(std::function<void()> task) {
    ++onTheirWay;
    queue->async([this, task = std::move(task)] {
        task();
        --onTheirWay;
    });
}

/// Makes a change after everything that was posted before.
void KTUndoManager::inOrder(std::function<void()> change) {
    if (queue && KTCallout::isUnderWay() && !queue->isHeldByThisThread())
        return post(std::move(change));
    finishPosted();
    change();
}

void KTUndoManager::announceState() {
    didChange("undoState");
}

void KTUndoManager::registerUndoWithTarget(const void* target, std::string actionName, Action action) {
    Entry entry{target, std::move(action)};
    if (!queue || isUndoingOrRedoing() || queue->isHeldByThisThread())
        return enter(std::move(entry), std::move(actionName));
    post([this, entry = std::move(entry), name = std::move(actionName)]() mutable {
        enter(std::move(entry), std::move(name));
    });
}

void KTUndoManager::enter(Entry entry, std::string actionName) {
    Steps forgotten; // destroyed outside the lock: an action may hold the last reference to a photo
    {
        std::lock_guard guard(mutex);
        if (isUndoingOrRedoing()) {
            collected.entries.push_back(std::move(entry));
            return;
        }
        forgotten.swap(redoSteps);
        if (openGroups == 0)
            undoSteps.push_back({.name = {}, .entries = {}});
        Step& step = openGroups > 0 ? open : undoSteps.back();
        step.entries.push_back(std::move(entry));
        if (!step.keepsName)
            step.name = std::move(actionName);
    }
    announceState();
}

void KTUndoManager::beginUndoGrouping(std::string actionName) {
    if (isUndoingOrRedoing())
        return;
    inOrder([this, name = std::move(actionName)] {
        {
            std::lock_guard guard(mutex);
            if (openGroups++ == 0)
                open = {};
            if (!name.empty() && !open.keepsName) {
                open.name = name;
                open.keepsName = true;
            }
        }
        announceState();
    });
}

void KTUndoManager::endUndoGrouping() {
    if (isUndoingOrRedoing())
        return;
    inOrder([this] {
        {
            std::lock_guard guard(mutex);
            assert(openGroups > 0);
            if (--openGroups == 0 && !open.entries.empty())
                undoSteps.push_back(std::exchange(open, {}));
        }
        announceState();
    });
}

bool KTUndoManager::undo() {
    return run(undoSteps, redoSteps, &undoing);
}

bool KTUndoManager::redo() {
    return run(redoSteps, undoSteps, &redoing);
}

bool KTUndoManager::run(Steps& from, Steps& into, const void* meaning) {
    finishPosted();
    {
        std::lock_guard guard(mutex);
        if (openGroups > 0 || isRunning || from.empty())
            return false;
        isRunning = true;
        running = std::move(from.back());
        from.pop_back();
        collected = {.name = running.name, .entries = {}, .keepsName = running.keepsName};
    }
    {
        const KTCallMark mark(meaning);
        while (const auto entry = nextToRun())
            entry->action();
    }
    {
        std::lock_guard guard(mutex);
        isRunning = false;
        if (!collected.entries.empty())
            into.push_back(std::exchange(collected, {}));
    }
    announceState();
    return true;
}

std::optional<KTUndoManager::Entry> KTUndoManager::nextToRun() {
    std::lock_guard guard(mutex);
    if (running.entries.empty())
        return std::nullopt;
    Entry entry = std::move(running.entries.back());
    running.entries.pop_back();
    return entry;
}

bool KTUndoManager::canUndo() const {
    std::lock_guard guard(mutex);
    return openGroups == 0 && !undoSteps.empty();
}

bool KTUndoManager::canRedo() const {
    std::lock_guard guard(mutex);
    return openGroups == 0 && !redoSteps.empty();
}

std::string KTUndoManager::undoActionName() const {
    std::lock_guard guard(mutex);
    return undoSteps.empty() ? std::string() : undoSteps.back().name;
}

std::string KTUndoManager::redoActionName() const {
    std::lock_guard guard(mutex);
    return redoSteps.empty() ? std::string() : redoSteps.back().name;
}

bool KTUndoManager::isUndoing() const {
    return KTCallMark::count(&undoing) > 0;
}

bool KTUndoManager::isRedoing() const {
    return KTCallMark::count(&redoing) > 0;
}

void KTUndoManager::removeAllActionsWithTargets(const std::vector<const void*>& targets) {
    auto remove = [this, gone = std::unordered_set<const void*>(targets.begin(), targets.end())] {
        std::vector<Entry> forgotten; // destroyed outside the lock
        {
            std::lock_guard guard(mutex);
            auto filter = [&](Step& step) {
                auto found = std::ranges::stable_partition(
                    step.entries, [&](const Entry& entry) { return !gone.contains(entry.target); });
                std::ranges::move(found, std::back_inserter(forgotten));
                step.entries.erase(found.begin(), found.end());
            };
            for (Steps* steps : {&undoSteps, &redoSteps}) {
                std::ranges::for_each(*steps, filter);
                std::erase_if(*steps, [](const Step& step) { return step.entries.empty(); });
            }
            for (Step* step : {&open, &running, &collected})
                filter(*step);
        }
        if (!forgotten.empty())
            announceState();
    };
    if (queue && !mayWaitForQueue())
        post(remove); // for what is on its way
    finishPosted();
    remove();
}
