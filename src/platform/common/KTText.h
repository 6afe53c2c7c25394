#pragma once
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

/// Small helpers for UTF-8 text. "White space" is blank, tab and the line breaks unless said otherwise;
/// letter case is that of ASCII.

/// Whether @p bytes are well-formed UTF-8 (no overlong forms, surrogates or values past U+10FFFF).
bool KTIsUTF8(std::string_view bytes);
/// @p bytes with every byte that is not part of well-formed UTF-8 replaced by U+FFFD.
std::string KTValidUTF8(std::string_view bytes);
/// @p text without white space at both ends.
std::string_view KTTrimmed(std::string_view text, std::string_view whiteSpace = " \t\r\n\v\f");
bool KTEqualIgnoringCase(std::string_view left, std::string_view right);
std::string KTLowercase(std::string_view text);
std::vector<std::string> KTSplit(std::string_view text, char separator);
std::string KTJoin(const std::vector<std::string>& parts, std::string_view separator);

/// @p format with its placeholders (%@, %d, %u, %ld, %lu, %llu) filled from @p arguments in order, or by
/// number where a translation wrote "%2$@"; "%%" gives a percent sign. A placeholder without argument becomes
/// empty.
std::string KTStringWithFormat(std::string_view format, std::initializer_list<std::string> arguments);
