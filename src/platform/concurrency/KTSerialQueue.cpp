#include "platform/concurrency/KTSerialQueue.h"

#include "platform/common/KTCallContext.h"
#include "platform/concurrency/KTLatch.h"
#include "platform/concurrency/KTThreadPool.h"

#include <cassert>

KTSerialQueue::~KTSerialQueue() {
    while (hasWork())
        drain();
}

bool KTSerialQueue::hasWork() const {
    std::lock_guard guard(mutex);
    return isBusy;
}

bool KTSerialQueue::isHeldByThisThread() const {
    std::lock_guard guard(mutex);
    return holder == std::this_thread::get_id();
}

void KTSerialQueue::hold() {
    holder = std::this_thread::get_id();
    KTCallContext::current().heldLeafQueues += kind == Kind::Leaf ? 1 : 0;
}

void KTSerialQueue::take() {
    assert((kind == Kind::Leaf || !KTCallout::isUnderWay()) &&
           "an observer must post to an announcing queue, not wait for it");
    assert((isHeldByThisThread() || KTCallContext::current().heldLeafQueues == 0) &&
           "a leaf queue's task must not wait for another queue");
    KTLatch turn;
    {
        std::lock_guard guard(mutex);
        assert(holder != std::this_thread::get_id() && "the thread holds this queue already");
        if (!isBusy) {
            isBusy = true;
            return hold();
        }
        waiting.push_back({{}, &turn});
    }
    if (kind == Kind::Leaf)
        turn.waitWithoutServing();
    else
        turn.wait();
    std::lock_guard guard(mutex);
    hold();
}

void KTSerialQueue::pass() {
    std::function<void()> task;
    {
        std::lock_guard guard(mutex);
        holder = {};
        KTCallContext::current().heldLeafQueues -= kind == Kind::Leaf ? 1 : 0;
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
    {
        std::lock_guard guard(mutex);
        hold();
    }
    first();
    first = nullptr;
    pass();
}

void KTSerialQueue::drain() {
    sync([] {});
}
