#pragma once
#include <string>

/// Name and version of the program, and whose data it carries, under which terms: a few lines of text.
std::string KTAboutText(const std::string& program);
