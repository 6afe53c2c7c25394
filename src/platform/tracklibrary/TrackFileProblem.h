#pragma once
#include <cstdint>
#include <string>

/// What is wrong with a file that was read, and where.
struct TrackFileProblem {
    std::int64_t line = 0; ///< counted from 1; 0 when no line is to blame
    std::string text;      ///< for users, without the file's name
};
