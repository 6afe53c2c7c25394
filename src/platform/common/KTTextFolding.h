#pragma once
#include <string>
#include <string_view>

/// Forms of UTF-8 text for comparing as people do: two texts are the same when their folded forms are. Bytes
/// that are not UTF-8 count as U+FFFD. Any thread.

/// Without regard to letter case, in every script.
std::string KTCaseFolded(std::string_view text);

/// Without regard to letter case and diacritical marks ("É" is "e").
std::string KTCaseAndDiacriticsFolded(std::string_view text);
