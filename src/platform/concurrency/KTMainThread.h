#pragma once
#include <chrono>
#include <functional>
#include <optional>

/// Runs @p call on the main thread and waits for its end; at once when this is the main thread. The call
/// belongs to the caller's logical call. It is served by the event loop, or by a wait that the main thread is
/// in. False, and nothing was run, when the program is about to end and the main thread serves no more calls.
/// Not from a task of a leaf queue.
bool KTPerformOnMainThreadAndWait(const std::function<void()>& call);

/// Lets the main thread's event loop run @p call, in the order in which calls are given, never during a wait.
/// The call begins a logical call of its own.
/// Calls that the event loop does not get to before the end of the program are dropped. Any thread, the main
/// thread included.
void KTPerformOnMainThread(std::function<void()> call);

/// The thread that the process began with, on which every announcement to the user interface is made.
class KTMainThread {
public:
    static bool isCurrent();
    /// From now on no call is served; those that threads wait for return. For the end of the program.
    static void close();

    /// What waits of the main thread are made of: returns when @p isDone does, which is asked again after
    /// each `wake`, or at the deadline; meanwhile serves the calls that other threads wait for. On the main
    /// thread. @p isDone is asked under a lock: it may only look. Whether it was done.
    static bool serveCallsUntil(const std::function<bool()>& isDone,
                                std::optional<std::chrono::steady_clock::time_point> deadline = {});
    /// Tells such a wait that something may be done now. Any thread.
    static void wake();
};
