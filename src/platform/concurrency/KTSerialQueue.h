#pragma once
#include <functional>
#include <list>
#include <mutex>
#include <thread>

class KTLatch;

/// Runs tasks one at a time, in the order in which they came. Light: a queue without work has no thread and
/// no memory beyond the object.
class KTSerialQueue {
public:
    enum class Kind {
        Leaf,       ///< its tasks neither announce nor wait for the main thread or another queue (asserted)
        Announcing, ///< its tasks may; code run by an announcement must not wait for such a queue
    };

    /// @p name must be a literal; it shows in debuggers.
    explicit KTSerialQueue(const char* name, Kind queueKind = Kind::Leaf) : label(name), kind(queueKind) {}
    /// Waits for the tasks that are queued, and for those that they queue.
    ~KTSerialQueue();
    KTSerialQueue(const KTSerialQueue&) = delete;
    KTSerialQueue& operator=(const KTSerialQueue&) = delete;

    /// Runs @p task on the calling thread when everything queued before it is done, and returns what it
    /// returns. The main thread serves the calls of other threads while it waits for its turn on an
    /// announcing queue. It does not for a leaf queue, whose tasks never need it: such a call could wait for
    /// the same queue, and its turn would come after the one that the main thread is not ready to take. A
    /// sync on the queue that the thread holds already asserts, as does one on an announcing queue inside a
    /// callout.
    template<class Task>
    decltype(auto) sync(Task&& task) {
        const Turn turn(*this);
        return std::forward<Task>(task)();
    }
    /// Queues @p task, to be run on a thread of the pool. It must not throw.
    void async(std::function<void()> task);
    /// Waits until everything queued so far is done.
    void drain();

    bool isHeldByThisThread() const;
    const char* const label;

private:
    struct Waiting {
        std::function<void()> task; // of an async
        KTLatch* turn;              // of a sync, null for an async
    };
    class Turn {
    public:
        explicit Turn(KTSerialQueue& taken) : queue(taken) { queue.take(); }
        ~Turn() { queue.pass(); }
        Turn(const Turn&) = delete;
        Turn& operator=(const Turn&) = delete;

    private:
        KTSerialQueue& queue;
    };

    void take();
    void pass();
    void hold(); // the mutex must be held
    bool hasWork() const;
    void runTasks(std::function<void()> first);

    const Kind kind;
    mutable std::mutex mutex;
    std::list<Waiting> waiting;
    bool isBusy = false;
    std::thread::id holder;
};
