#pragma once
#include <string>
#include <vector>

/// Of the languages that the program speaks, the one that comes first in @p wanted (locale names such as
/// "de-AT", "fr" or "en_GB", the most wanted first): "de", "es", "fr", or "en", which also stands for none.
std::string KTLanguageAmong(const std::vector<std::string>& wanted);

/// Lets the program speak the user's language as LANGUAGE, LC_ALL, LC_MESSAGES or LANG name it, and returns
/// its code. Without a translation it speaks English. To be called at the program's start.
std::string KTUseLanguageOfUser();
