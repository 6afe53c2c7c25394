#pragma once
#include "platform/tracklibrary/TrackFileProblem.h"

#include <optional>

/// What reading a whole track file gave beside its points.
struct TrackFileContent {
    std::optional<TrackFileProblem> problem;
    std::string hash;      ///< BLAKE2b-256 of the file's bytes
    std::int64_t size = 0; ///< in bytes
};
