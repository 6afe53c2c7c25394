#include "platform/common/KTLog.h"

#include <atomic>
#include <cstdio>
#include <string>

namespace {

std::atomic<void (*)(std::string_view)> logSink = nullptr;

} // namespace

void KTLog(std::string_view line) {
    std::string text(line);
    if (text.empty() || text.back() != '\n')
        text += '\n';
    std::fwrite(text.data(), 1, text.size(), stderr); // one call, so that lines of several threads do not mix
    if (const auto sink = logSink.load())
        sink(line);
}

void KTSetLogSink(void (*sink)(std::string_view line)) {
    logSink = sink;
}
