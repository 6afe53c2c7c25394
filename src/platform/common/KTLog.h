#pragma once
#include <string_view>

/// Writes @p line to the system log (standard error), as one line. Safe on every thread.
void KTLog(std::string_view line);
