#pragma once
#include <functional>

/// Runs the main thread's event loop until @p isDone, which is asked after each turn; whether it came to that
/// within a minute.
bool runEventLoopUntil(const std::function<bool()>& isDone);
