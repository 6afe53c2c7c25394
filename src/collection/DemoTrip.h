#pragma once
#include <filesystem>
#include <optional>
#include <string>

/// A small trip to try the program on: a dozen photos of a walk along Lake Lucerne, taken with a clock at
/// UTC+02:00, and its track with a gap. Most photos lie on the track; one was taken in the gap, one after the
/// walk, one has no date.
struct DemoTrip {
    std::filesystem::path photos; ///< the folder of the photos
    std::filesystem::path track;  ///< the GPX file

    static constexpr const char* kTimeZone = "+02:00";

    /// Makes the trip's files in @p folder, which must not exist yet or be empty. Returns an error text,
    /// nothing when done.
    std::optional<std::string> makeIn(const std::filesystem::path& folder);
};
