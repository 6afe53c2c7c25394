#include "platform/undo/KTUndoManager.h"

#include <gtest/gtest.h>
#include <ranges>
#include <rapidcheck/gtest.h>

namespace {

constexpr int kCells = 4;
using Cells = std::array<int, kCells>;

/// What an undo manager over a row of numbers should do, in plain vectors.
struct Model {
    struct Step {
        std::string name;
        std::vector<std::pair<int, int>> ways; // a cell and the value to go back to
    };

    Cells cells = {};
    std::vector<Step> undoSteps, redoSteps;
    Step open;
    int depth = 0;
    bool isNamed = false;

    void edit(int cell, int value, const std::string& name) {
        redoSteps.clear();
        if (depth == 0)
            undoSteps.push_back({name, {}});
        else if (!isNamed)
            open.name = name;
        (depth == 0 ? undoSteps.back() : open).ways.emplace_back(cell, std::exchange(cells[cell], value));
    }
    void begin(const std::string& name) {
        if (depth++ == 0) {
            open = {};
            isNamed = false;
        }
        if (!isNamed && !name.empty()) {
            open.name = name;
            isNamed = true;
        }
    }
    void end() {
        if (--depth == 0 && !open.ways.empty())
            undoSteps.push_back(open);
    }
    bool move(std::vector<Step>& from, std::vector<Step>& into) {
        if (depth > 0 || from.empty())
            return false;
        Step back{from.back().name, {}};
        for (auto [cell, value] : from.back().ways | std::views::reverse)
            back.ways.emplace_back(cell, std::exchange(cells[cell], value));
        from.pop_back();
        into.push_back(back);
        return true;
    }
    void remove(const std::vector<int>& gone) {
        auto isGone = [&](const auto& way) { return std::ranges::find(gone, way.first) != gone.end(); };
        std::erase_if(open.ways, isGone);
        for (auto* steps : {&undoSteps, &redoSteps}) {
            for (Step& step : *steps)
                std::erase_if(step.ways, isGone);
            std::erase_if(*steps, [](const Step& step) { return step.ways.empty(); });
        }
    }
    std::string state() const {
        auto name = [](const auto& steps) { return steps.empty() ? std::string() : steps.back().name; };
        return std::to_string(depth == 0 && !undoSteps.empty()) + name(undoSteps) +
               std::to_string(depth == 0 && !redoSteps.empty()) + name(redoSteps);
    }
};

/// The same row under a real manager.
struct Row {
    explicit Row(std::shared_ptr<KTSerialQueue> undoQueue) : queue(undoQueue), manager(undoQueue) {
        observation = manager.observe([this](const KTChange&) {
            std::lock_guard guard(mutex);
            announced = state();
        });
    }

    void set(int cell, int value, const std::string& name) {
        manager.registerUndoWithTarget(&cells[cell], name,
                                       [this, cell, old = cells[cell], name] { set(cell, old, name); });
        cells[cell] = value;
    }
    std::string state() const {
        return std::to_string(manager.canUndo()) + manager.undoActionName() +
               std::to_string(manager.canRedo()) + manager.redoActionName();
    }

    const std::shared_ptr<KTSerialQueue> queue;
    KTUndoManager manager;
    Cells cells = {};
    std::mutex mutex;
    std::string announced = "00";
    KTObservable::Observation observation;
};

void compareWithModel(std::shared_ptr<KTSerialQueue> queue) {
    Model model;
    Row row(queue);
    const auto steps = *rc::gen::inRange(1, 60);
    for (int step = 0; step < steps; ++step) {
        const std::string name(1, *rc::gen::inRange('a', 'f'));
        switch (*rc::gen::weightedElement<int>({{8, 0}, {3, 1}, {3, 2}, {4, 3}, {3, 4}, {1, 5}})) {
        case 0: {
            const int cell = *rc::gen::inRange(0, kCells), value = *rc::gen::inRange(0, 100);
            model.edit(cell, value, name);
            row.set(cell, value, name);
            break;
        }
        case 1: {
            const std::string groupName = *rc::gen::element(std::string(), "group " + name);
            model.begin(groupName);
            row.manager.beginUndoGrouping(groupName);
            break;
        }
        case 2:
            if (model.depth > 0) {
                model.end();
                row.manager.endUndoGrouping();
            }
            break;
        case 3:
            RC_ASSERT(row.manager.undo() == model.move(model.undoSteps, model.redoSteps));
            break;
        case 4:
            RC_ASSERT(row.manager.redo() == model.move(model.redoSteps, model.undoSteps));
            break;
        case 5: {
            const auto gone = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, kCells));
            model.remove(gone);
            std::vector<const void*> targets;
            for (int cell : gone)
                targets.push_back(&row.cells[cell]);
            row.manager.removeAllActionsWithTargets(targets);
            break;
        }
        }
        RC_ASSERT(row.cells == model.cells);
        if (queue && *rc::gen::arbitrary<bool>())
            continue; // what was posted may wait for the next step
        if (queue)
            queue->drain();
        RC_ASSERT(row.state() == model.state());
        RC_ASSERT(row.announced == model.state()); // nobody was left with an older state
    }
}

RC_GTEST_PROP(UndoModel, AtOnce, ()) {
    compareWithModel(nullptr);
}

RC_GTEST_PROP(UndoModel, WithQueue, ()) {
    compareWithModel(std::make_shared<KTSerialQueue>("undo", KTSerialQueue::Kind::Announcing));
}

} // namespace
