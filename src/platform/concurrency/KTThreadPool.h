#pragma once
#include <functional>

/// Runs @p job soon on a thread that is kept for such work. A job that waits keeps no other from starting.
/// At the end of the program jobs that run are waited for; those that are given later are dropped.
void KTRunOnThreadPool(std::function<void()> job);
