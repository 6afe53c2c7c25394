#pragma once
#include "platform/tracklibrary/TrackFileContent.h"
#include "platform/tracklibrary/TrackFileSink.h"

#include <filesystem>

/// Reads the track file @p file of any supported kind into @p sink, on the calling thread, and hashes it.
/// Stops early when the sink is closed. Problems, an unsupported kind among them, come back in the result.
TrackFileContent readTrackFile(const std::filesystem::path& file, TrackFileSink& sink);

/// BLAKE2b-256 of a file's bytes; empty when the file cannot be read.
std::string trackFileHash(const std::filesystem::path& file);
