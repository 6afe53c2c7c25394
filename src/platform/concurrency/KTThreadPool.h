#pragma once
#include <functional>

/// Runs @p job soon on a thread that is kept for such work. A job that waits keeps no other from starting.
/// At the end of the program all jobs that were given are finished, none of which the main thread serves any
/// more; one that is given later still is run at once, on the calling thread. @p job must not throw.
void KTRunOnThreadPool(std::function<void()> job);

/// Finishes the jobs and ends the threads now instead of at the end of the program, which is too late for what
/// libraries keep for each thread. Once, on the main thread.
void KTEndThreadPool();
