#include "platform/tracklibrary/XMLTranscoder.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <iconv.h>

namespace {

const iconv_t kNoDescriptor = reinterpret_cast<iconv_t>(-1);

bool isNameCharacter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
           c == '_' || c == '.' || c == ':';
}

} // namespace

std::string XMLTranscoder::declaredEncoding(std::string_view head) {
    if (head.starts_with("\xEF\xBB\xBF"))
        head.remove_prefix(3);
    if (!head.starts_with("<?xml"))
        return {};
    head = head.substr(0, head.find("?>"));
    auto at = head.find("encoding");
    if (at == std::string_view::npos)
        return {};
    at = head.find_first_of("\"'", at);
    if (at == std::string_view::npos)
        return {};
    auto end = head.find(head[at], at + 1);
    return end == std::string_view::npos ? std::string() : std::string(head.substr(at + 1, end - at - 1));
}

std::unique_ptr<XMLTranscoder> XMLTranscoder::forEncoding(const std::string& encoding) {
    // iconv takes options after slashes and the current locale for an empty name.
    if (encoding.empty() || !std::ranges::all_of(encoding, isNameCharacter))
        return nullptr;
    iconv_t opened = iconv_open("UTF-8", encoding.c_str());
    return opened == kNoDescriptor ? nullptr : std::unique_ptr<XMLTranscoder>(new XMLTranscoder(opened));
}

XMLTranscoder::~XMLTranscoder() {
    iconv_close(descriptor);
}

bool XMLTranscoder::append(std::string_view bytes, std::string& text) {
    pending.append(bytes);
    char* in = pending.data();
    std::size_t left = pending.size();
    std::array<char, 16384> buffer;
    for (;;) {
        char* out = buffer.data();
        std::size_t space = buffer.size();
        std::size_t status = iconv(descriptor, &in, &left, &out, &space);
        int problem = status == static_cast<std::size_t>(-1) ? errno : 0;
        text.append(buffer.data(), buffer.size() - space);
        if (problem == E2BIG)
            continue;
        pending.erase(0, pending.size() - left);
        return problem != EILSEQ;
    }
}
