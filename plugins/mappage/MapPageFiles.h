#pragma once
#include <waymark/KTExportedTrack.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

/// A photo as page and KMZ show it. A value type.
struct MapPagePhoto {
    std::string image; ///< the name of its file in the folder "photos"
    std::string name, title, date, place;
    std::optional<double> latitude = {}, longitude = {}; ///< degrees
};

/// What page and KMZ are made of. A value type.
struct MapPageContent {
    std::string title;
    std::vector<MapPagePhoto> photos;
    std::vector<std::vector<KTExportedPoint>> tracks;
};

/// The page: one document that needs nothing but the folder "photos" beside it.
std::string mapPageHTML(const MapPageContent& content);
/// The document of the KMZ, with the same photos and tracks.
std::string mapPageKML(const MapPageContent& content);
/// Writes a KMZ of @p kml and the @p photos of the folder @p folder to @p file, which must not be there.
/// Whether it could; half a file is removed.
bool writeKMZ(const std::filesystem::path& file, const std::string& kml, const std::filesystem::path& folder,
              const std::vector<MapPagePhoto>& photos);
