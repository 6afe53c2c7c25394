#pragma once
#include "platform/tracklibrary/TrackFileProblem.h"
#include "platform/tracklibrary/TrackFileSink.h"

#include <filesystem>
#include <optional>

/// Reads track files of other kinds by having the program gpsbabel turn them into GPX, which streams into a
/// sink. No shell is involved; the program gets two minutes of computing time and 4 GB of memory.
struct GPSBabelReader {
    std::string program = "gpsbabel"; ///< a path, or a name looked up in PATH
    std::chrono::milliseconds timeLimit = std::chrono::minutes(2);

    /// Reads @p file as gpsbabel's format @p format. Times without zone are taken as UTC. A file in which
    /// gpsbabel finds nothing is a problem too, since that is how it takes a file that it does not
    /// understand; its own words are in the problem's text. Stops early when @p sink is closed.
    std::optional<TrackFileProblem> read(const std::filesystem::path& file, const std::string& format,
                                         TrackFileSink& sink) const;
};
