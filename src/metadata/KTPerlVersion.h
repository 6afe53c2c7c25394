#pragma once
#include <string>

/// The version of the embedded interpreter: "5.36.0". Loads nothing; any thread.
std::string KTPerlVersion();
