#include "platform/concurrency/KTThreadPool.h"

#include "platform/concurrency/KTMainThread.h"

#include <condition_variable>
#include <list>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace {

class Pool {
public:
    static Pool& shared();
    void run(std::function<void()> job);
    void end();

private:
    struct Ending {
        ~Ending() { shared().end(); }
    };

    void work();
    void addThread(); // the mutex must be held

    std::mutex mutex;
    std::condition_variable changed, settled;
    std::list<std::function<void()>> jobs;
    std::size_t idle = 0;
    std::size_t unfinished = 0; // jobs that wait or run
    bool isEnding = false;
    std::vector<std::thread> threads;
};

Pool& Pool::shared() {
    static Pool* pool = new Pool; // used until the last static object is gone
    static const Ending ending;
    return *pool;
}

void Pool::end() {
    KTMainThread::close(); // a job must not wait for the thread that waits for it here
    std::unique_lock lock(mutex);
    settled.wait(lock, [this] { return unfinished == 0; });
    isEnding = true;
    changed.notify_all();
    lock.unlock();
    for (std::thread& thread : threads)
        thread.join();
    threads.clear();
}

void Pool::run(std::function<void()> job) {
    {
        std::lock_guard guard(mutex);
        if (!isEnding) {
            jobs.push_back(std::move(job));
            ++unfinished;
            if (idle < jobs.size())
                addThread();
            else
                changed.notify_one();
            return;
        }
    }
    job();
}

void Pool::addThread() {
    try {
        threads.emplace_back([this] { work(); });
    } catch (const std::system_error&) { // the system has no more; the job waits for one that we have
        if (threads.empty())
            throw;
    }
}

void Pool::work() {
    std::unique_lock lock(mutex);
    for (;;) {
        ++idle;
        changed.wait(lock, [this] { return isEnding || !jobs.empty(); });
        --idle;
        if (isEnding)
            return;
        std::function<void()> job = std::move(jobs.front());
        jobs.pop_front();
        lock.unlock();
        job();
        job = nullptr;
        lock.lock();
        if (--unfinished == 0)
            settled.notify_all();
    }
}

} // namespace

void KTRunOnThreadPool(std::function<void()> job) {
    Pool::shared().run(std::move(job));
}

void KTEndThreadPool() {
    Pool::shared().end();
}
