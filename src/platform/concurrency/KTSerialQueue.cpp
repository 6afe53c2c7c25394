#include "platform/concurrency/KTSerialQueue.h"

#include "platform/concurrency/KTCallContext.h"
#include "platform/concurrency/KTLatch.h"
#include "platform/concurrency/KTThreadPool.h"

#include <cassert>

KTSerialQueue::~KTSerialQueue() {
    const Turn last(*this);
}

bool KTSerialQueue::isHeldByThisThread() const {
    std::lock_guard guard(mutex);
    return holder == std::this_thread::get_id();
}

void KTSerialQueue::hold() {
    std::lock_guard guard(mutex);
    holder = std::this_thread::get_id();
}

void KTSerialQueue::take() {
    assert((kind == Kind::Leaf || !KTCallout::isUnderWay()) &&
           "an observer must post to an announcing queue, not wait for it");
    KTLatch turn;
    {
        std::lock_guard guard(mutex);
        assert(holder != std::this_thread::get_id() && "the thread holds this queue already");
        if (!isBusy) {
            isBusy = true;
            holder = std::this_thread::get_id();
            return;
        }
        waiting.push_back({{}, &turn});
    }
    turn.wait();
    hold();
}

void KTSerialQueue::pass() {
    std::function<void()> task;
    {
        std::lock_guard guard(mutex);
        holder = {};
        isBusy = !waiting.empty();
        if (!isBusy)
            return;
        Waiting next = std::move(waiting.front());
        waiting.pop_front();
        if (next.turn != nullptr) {
            next.turn->signal();
            return;
        }
        task = std::move(next.task);
    }
    KTRunOnThreadPool([this, task = std::move(task)]() mutable { runTasks(std::move(task)); });
}

void KTSerialQueue::async(std::function<void()> task) {
    {
        std::lock_guard guard(mutex);
        if (isBusy) {
            waiting.push_back({std::move(task), nullptr});
            return;
        }
        isBusy = true;
    }
    KTRunOnThreadPool([this, task = std::move(task)]() mutable { runTasks(std::move(task)); });
}

void KTSerialQueue::runTasks(std::function<void()> first) {
    hold();
    first();
    first = nullptr;
    pass();
}

void KTSerialQueue::drain() {
    sync([] {});
}
