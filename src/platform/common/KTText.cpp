#include "platform/common/KTText.h"

#include <algorithm>
#include <cstdint>

namespace {

/// Length of the well-formed sequence at the start of @p bytes, 0 when there is none.
std::size_t sequenceLength(std::string_view bytes) {
    auto at = [&](std::size_t i) { return static_cast<std::uint8_t>(bytes[i]); };
    std::uint8_t first = at(0);
    if (first < 0x80)
        return 1;
    std::size_t length = first >= 0xC2 && first <= 0xDF   ? 2
                         : (first & 0xF0) == 0xE0         ? 3
                         : first >= 0xF0 && first <= 0xF4 ? 4
                                                          : 0;
    if (length == 0 || bytes.size() < length)
        return 0;
    for (std::size_t i = 1; i < length; ++i)
        if ((at(i) & 0xC0) != 0x80)
            return 0;
    std::uint8_t second = at(1);
    bool overlong = (first == 0xE0 && second < 0xA0) || (first == 0xF0 && second < 0x90);
    bool forbidden = (first == 0xED && second > 0x9F) || (first == 0xF4 && second > 0x8F);
    return overlong || forbidden ? 0 : length;
}

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

bool KTIsUTF8(std::string_view bytes) {
    while (!bytes.empty()) {
        std::size_t length = sequenceLength(bytes);
        if (length == 0)
            return false;
        bytes.remove_prefix(length);
    }
    return true;
}

std::string KTValidUTF8(std::string_view bytes) {
    std::string result;
    while (!bytes.empty()) {
        std::size_t length = sequenceLength(bytes);
        result += length == 0 ? std::string_view("\xEF\xBF\xBD") : bytes.substr(0, length);
        bytes.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return result;
}

std::string_view KTTrimmed(std::string_view text, std::string_view whiteSpace) {
    auto begin = text.find_first_not_of(whiteSpace);
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(whiteSpace) - begin + 1);
}

bool KTEqualIgnoringCase(std::string_view left, std::string_view right) {
    return std::ranges::equal(left, right, [](char a, char b) { return lower(a) == lower(b); });
}

std::string KTLowercase(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(), lower);
    return result;
}

std::vector<std::string> KTSplit(std::string_view text, char separator) {
    std::vector<std::string> parts;
    for (;;) {
        auto end = text.find(separator);
        parts.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return parts;
        text.remove_prefix(end + 1);
    }
}

std::string KTJoin(const std::vector<std::string>& parts, std::string_view separator) {
    std::string result;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (i != 0)
            result += separator;
        result += parts[i];
    }
    return result;
}

std::string KTStringWithFormat(std::string_view format, std::initializer_list<std::string> arguments) {
    std::string result;
    std::size_t next = 0;
    for (std::size_t i = 0; i < format.size(); ++i) {
        if (format[i] != '%' || i + 1 == format.size()) {
            result += format[i];
            continue;
        }
        std::size_t at = i + 1;
        if (format[at] == '%') {
            result += '%';
            i = at;
            continue;
        }
        std::size_t number = 0;
        while (at < format.size() && format[at] >= '0' && format[at] <= '9')
            number = number * 10 + static_cast<std::size_t>(format[at++] - '0');
        bool positional = at < format.size() && format[at] == '$';
        at += positional ? 1 : 0;
        while (at < format.size() && format[at] == 'l')
            ++at;
        if (at == format.size() || std::string_view("@du").find(format[at]) == std::string_view::npos) {
            result += '%'; // not a placeholder: the text stands for itself
            continue;
        }
        std::size_t index = positional ? number - 1 : next++;
        if (index < arguments.size())
            result += arguments.begin()[index];
        i = at;
    }
    return result;
}
