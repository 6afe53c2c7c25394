#pragma once
#include <string>
#include <utility>
#include <vector>

/// Names and versions of the libraries that this floor stands on, as they run now: "SQLite", "3.40.1". Any
/// thread.
std::vector<std::pair<std::string, std::string>> KTEngineVersions();
