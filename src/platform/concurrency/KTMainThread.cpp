#include "platform/concurrency/KTMainThread.h"

#include "platform/common/KTCallContext.h"
#include "platform/concurrency/KTLatch.h"

#include <QCoreApplication>
#include <QEvent>
#include <cassert>
#include <list>
#include <unistd.h>

namespace {

/// A call that its caller waits for.
struct WaitingCall {
    const std::function<void()>* call;
    KTCallContext context; // of the caller, whose marks stay alive as long as it waits
    KTLatch ended;
    bool wasRun = false;
};

/// The calls that are meant for the main thread.
class MainCalls {
public:
    static MainCalls& shared() {
        static MainCalls* calls = new MainCalls; // used until the last static object is gone
        return *calls;
    }

    bool performAndWait(const std::function<void()>& call);
    void perform(std::function<void()> call);
    using Deadline = std::optional<std::chrono::steady_clock::time_point>;
    bool serveUntil(const std::function<bool()>& isDone, Deadline deadline);
    void serveFromEventLoop();
    void wake();
    void close();

private:
    class Receiver : public QObject {
    public:
        void customEvent(QEvent* event) override;
    };

    void wakeEventLoop(); // the mutex must be held
    static void run(WaitingCall& call);
    static void runPosted(const std::function<void()>& call);

    std::mutex mutex;
    std::condition_variable changed;
    std::list<WaitingCall*> waiting;
    std::list<std::function<void()>> posted;
    Receiver* receiver = nullptr;
    bool eventIsPosted = false;
    bool isClosed = false;
};

/// The only event ever posted to it. It is not looked into: Qt's own locks, which order it after its making,
/// are invisible to ThreadSanitizer.
void MainCalls::Receiver::customEvent(QEvent*) {
    shared().serveFromEventLoop();
}

void MainCalls::wakeEventLoop() {
    changed.notify_all();
    QCoreApplication* application = QCoreApplication::instance();
    if (application == nullptr || eventIsPosted)
        return;
    if (receiver == nullptr) {
        receiver = new Receiver; // outlives the application
        receiver->moveToThread(application->thread());
    }
    eventIsPosted = true;
    QCoreApplication::postEvent(receiver, new QEvent(QEvent::User));
}

void MainCalls::run(WaitingCall& call) {
    KTCallContext& context = KTCallContext::current();
    const KTCallContext own = std::exchange(context, call.context);
    {
        KTCallout callout;
        (*call.call)();
    }
    context = own;
    call.wasRun = true;
    call.ended.signal();
}

/// In an event loop within a call, that call's marks are not those of @p call. It is still beneath on the
/// stack, so that a callout stays one.
void MainCalls::runPosted(const std::function<void()>& call) {
    KTCallContext& context = KTCallContext::current();
    const KTCallMark* const own = std::exchange(context.marks, nullptr);
    call();
    context.marks = own;
}

bool MainCalls::performAndWait(const std::function<void()>& call) {
    WaitingCall entry{&call, KTCallContext::current(), {}, false};
    {
        std::lock_guard guard(mutex);
        if (isClosed)
            return false;
        waiting.push_back(&entry);
        wakeEventLoop();
    }
    entry.ended.wait();
    return entry.wasRun;
}

void MainCalls::perform(std::function<void()> call) {
    std::lock_guard guard(mutex);
    if (isClosed)
        return;
    posted.push_back(std::move(call));
    wakeEventLoop();
}

bool MainCalls::serveUntil(const std::function<bool()>& isDone, Deadline deadline) {
    std::unique_lock lock(mutex);
    for (;;) {
        if (isDone())
            return true;
        if (deadline && std::chrono::steady_clock::now() >= *deadline)
            return false;
        if (waiting.empty()) {
            if (deadline)
                changed.wait_until(lock, *deadline);
            else
                changed.wait(lock);
            continue;
        }
        WaitingCall* call = waiting.front();
        waiting.pop_front();
        lock.unlock();
        run(*call);
        lock.lock();
    }
}

void MainCalls::serveFromEventLoop() {
    std::unique_lock lock(mutex);
    eventIsPosted = false;
    // What is posted meanwhile comes with an event of its own, so that the loop gets its turn.
    for (std::size_t count = posted.size(); !waiting.empty() || (count > 0 && !posted.empty());) {
        if (waiting.size() + posted.size() > 1)
            wakeEventLoop(); // the rest must not wait for an event loop that the call itself may run
        if (!waiting.empty()) {
            WaitingCall* call = waiting.front();
            waiting.pop_front();
            lock.unlock();
            run(*call);
        } else {
            std::function<void()> call = std::move(posted.front());
            posted.pop_front();
            --count;
            lock.unlock();
            runPosted(call);
            call = nullptr;
        }
        lock.lock();
    }
}

void MainCalls::wake() {
    std::lock_guard guard(mutex);
    changed.notify_all();
}

void MainCalls::close() {
    std::list<WaitingCall*> cancelled;
    std::list<std::function<void()>> dropped; // outside the lock
    {
        std::lock_guard guard(mutex);
        isClosed = true;
        cancelled.swap(waiting);
        dropped.swap(posted);
    }
    for (WaitingCall* call : cancelled)
        call->ended.signal();
}

} // namespace

bool KTMainThread::isCurrent() {
    thread_local const bool isMain = ::gettid() == ::getpid(); // two system calls, at each announcement
    return isMain;
}

void KTMainThread::close() {
    MainCalls::shared().close();
}

bool KTMainThread::serveCallsUntil(const std::function<bool()>& isDone,
                                   std::optional<std::chrono::steady_clock::time_point> deadline) {
    assert(isCurrent());
    return MainCalls::shared().serveUntil(isDone, deadline);
}

void KTMainThread::wake() {
    MainCalls::shared().wake();
}

bool KTPerformOnMainThreadAndWait(const std::function<void()>& call) {
    assert(KTCallContext::current().heldLeafQueues == 0 && "a leaf queue's task needs the main thread");
    if (!KTMainThread::isCurrent())
        return MainCalls::shared().performAndWait(call);
    call();
    return true;
}

void KTPerformOnMainThread(std::function<void()> call) {
    MainCalls::shared().perform(std::move(call));
}
