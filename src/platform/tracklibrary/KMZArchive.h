#pragma once
#include "platform/tracklibrary/TrackFileProblem.h"

#include <filesystem>
#include <optional>

/// Unpacks the main KML file of the KMZ archive @p archive (doc.kml, else its first .kml) to the new file @p
/// target. Returns a problem when the archive is damaged or holds none, when it has more than 10,000 members,
/// or when the KML is larger than 256 MB.
std::optional<TrackFileProblem> extractKML(const std::filesystem::path& archive,
                                           const std::filesystem::path& target);
