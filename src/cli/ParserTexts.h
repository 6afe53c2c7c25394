#pragma once
#include <string>

namespace CLI {
class App;
class Error;
} // namespace CLI

/// Gives the parser's help its own words ("Usage", "Options") in the user's language. To be called before
/// options and commands are added to @p app, for they take over their groups from it.
void translateParser(CLI::App& app);

/// What the parser says of wrong arguments, in the user's language where it is a known sentence.
std::string parserFailureText(const CLI::Error& failure);
