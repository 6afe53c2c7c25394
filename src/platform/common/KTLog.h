#pragma once
#include <string_view>

/// Writes @p line to the system log (standard error), as one line, and to the sink if there is one. Safe on
/// every thread.
void KTLog(std::string_view line);

/// Who else gets the lines of the log, from any thread; null for nobody. To be called at the program's start.
void KTSetLogSink(void (*sink)(std::string_view line));
