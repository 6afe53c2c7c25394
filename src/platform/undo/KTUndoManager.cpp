#include "platform/undo/KTUndoManager.h"

#include "platform/concurrency/KTCallContext.h"

#include <algorithm>
#include <cassert>
#include <unordered_set>

KTUndoManager::KTUndoManager(std::shared_ptr<KTSerialQueue> undoQueue) : queue(std::move(undoQueue)) {}

KTUndoManager::~KTUndoManager() {
    finishPosted();
}

bool KTUndoManager::mayWaitForQueue() const {
    return queue && !KTCallout::isUnderWay() && !queue->isHeldByThisThread();
}

void KTUndoManager::finishPosted() {
    if (mayWaitForQueue())
        queue->drain();
}

void KTUndoManager::announceState() {
    didChange("undoState");
}

void KTUndoManager::registerUndoWithTarget(const void* target, std::string actionName, Action action) {
    Entry entry{target, std::move(action)};
    if (!queue || isUndoingOrRedoing() || queue->isHeldByThisThread())
        return enter(std::move(entry), std::move(actionName));
    queue->async([this, entry = std::move(entry), name = std::move(actionName)]() mutable {
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
    finishPosted();
    std::lock_guard guard(mutex);
    if (openGroups++ == 0)
        open = {};
    if (!actionName.empty() && !open.keepsName) {
        open.name = std::move(actionName);
        open.keepsName = true;
    }
}

void KTUndoManager::endUndoGrouping() {
    finishPosted();
    {
        std::lock_guard guard(mutex);
        assert(openGroups > 0);
        if (--openGroups > 0 || open.entries.empty())
            return;
        undoSteps.push_back(std::move(open));
        open = {};
    }
    announceState();
}

bool KTUndoManager::undo() {
    return run(undoSteps, redoSteps, &undoing);
}

bool KTUndoManager::redo() {
    return run(redoSteps, undoSteps, &redoing);
}

bool KTUndoManager::run(Steps& from, Steps& into, const void* meaning) {
    finishPosted();
    Step step;
    {
        std::lock_guard guard(mutex);
        if (openGroups > 0 || isRunning || from.empty())
            return false;
        isRunning = true;
        step = std::move(from.back());
        from.pop_back();
        collected = {.name = step.name, .entries = {}, .keepsName = step.keepsName};
    }
    {
        const KTCallMark mark(meaning);
        for (auto entry = step.entries.rbegin(); entry != step.entries.rend(); ++entry)
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
                auto kept = std::ranges::stable_partition(
                    step.entries, [&](const Entry& entry) { return !gone.contains(entry.target); });
                std::ranges::move(kept, std::back_inserter(forgotten));
                step.entries.erase(kept.begin(), kept.end());
                return step.entries.empty();
            };
            std::erase_if(undoSteps, filter);
            std::erase_if(redoSteps, filter);
            filter(open);
            filter(collected);
        }
        if (!forgotten.empty())
            announceState();
    };
    if (queue && KTCallout::isUnderWay() && !queue->isHeldByThisThread())
        return queue->async(std::move(remove));
    finishPosted();
    remove();
}
