#include "platform/common/KTLog.h"

#include <cstdio>
#include <string>

void KTLog(std::string_view line) {
    std::string text(line);
    if (text.empty() || text.back() != '\n')
        text += '\n';
    std::fwrite(text.data(), 1, text.size(), stderr); // one call, so that lines of several threads do not mix
}
