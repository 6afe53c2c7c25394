#include "platform/concurrency/KTThreadPool.h"

#include "platform/concurrency/KTMainThread.h"

#include <condition_variable>
#include <list>
#include <mutex>
#include <thread>
#include <vector>

namespace {

class Pool {
public:
    Pool() = default;
    ~Pool();
    Pool(const Pool&) = delete;
    Pool& operator=(const Pool&) = delete;

    void run(std::function<void()> job);

private:
    void work();

    std::mutex mutex;
    std::condition_variable changed;
    std::list<std::function<void()>> jobs;
    std::size_t idle = 0;
    bool isEnding = false;
    std::vector<std::thread> threads;
};

Pool::~Pool() {
    KTMainThread::close(); // a job must not wait for the thread that waits for it here
    {
        std::lock_guard guard(mutex);
        isEnding = true;
        jobs.clear();
        changed.notify_all();
    }
    for (std::thread& thread : threads)
        thread.join();
}

void Pool::run(std::function<void()> job) {
    std::lock_guard guard(mutex);
    if (isEnding)
        return;
    jobs.push_back(std::move(job));
    if (idle < jobs.size())
        threads.emplace_back([this] { work(); });
    else
        changed.notify_one();
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
    }
}

} // namespace

void KTRunOnThreadPool(std::function<void()> job) {
    static Pool pool;
    pool.run(std::move(job));
}
