#pragma once
#include <filesystem>
#include <string>
#include <vector>

/// A kind of track file.
struct TrackFileFormat {
    enum class Kind {
        GPX,      ///< read by this program
        KMZ,      ///< a zip archive around a KML file
        GPSBabel, ///< read by gpsbabel
    };
    Kind kind;
    const char* name;         ///< for users
    const char* gpsbabelName; ///< how gpsbabel's option -i calls it
};

/// The kind of @p file: by its extension in any letter case, else (for ".xml" and extensions that are not
/// known) by its first bytes. Nothing when neither tells.
const TrackFileFormat* trackFileFormat(const std::filesystem::path& file);
/// The extensions by which kinds are known, in small letters, with their dot.
std::vector<std::string> trackFileExtensions();
/// The kinds that can be imported, for users: "GPX, NMEA, …".
std::string trackFileFormatNames();
