#pragma once
#include "platform/cartography/drawing/tiles/KTTileAddress.h"

#include <chrono>
#include <optional>
#include <string>
#include <vector>

class KTUserDefaults;

/// A server of map tiles that the user has chosen: where its tiles are and whom they are owed to. A value
/// type.
struct KTTileSource {
    std::string name = {}; ///< for people
    /// An address with {z}, {x} and {y} ({-y} counts from the south) and, where the server wants them, {s}
    /// (one of the sub-domains), {r} ("@2x" for the tile of twice the resolution) and {key}.
    std::string pattern = {};
    std::vector<std::string> subdomains = {};
    std::string key = {}; ///< what the server knows its user by
    std::string contact =
        {}; ///< where the server's operator reaches who runs this program; sent with requests
    bool needsContact = false;
    bool countsFromSouth = false; ///< rows, as the Tile Map Service does
    int minimumZoom = 0, maximumZoom = 19;
    int tileSize = 256;           ///< side of a tile on the screen, in device-independent pixels
    std::string attribution = {}; ///< plain text in one line

    /// The source that a map names as its data source: "openstreetmap", which the user has to choose, or
    /// "custom", which the settings "mapTiles…" describe; nothing for any other name, above all the empty
    /// one.
    static std::optional<KTTileSource> named(std::string_view name, const KTUserDefaults& settings);

    /// Why no tile can be asked for, for the user; nothing when all is well.
    std::optional<std::string> problem() const;
    bool hasHighResolution() const;
    /// The host, and port where it is not the usual one.
    std::string host() const;
    /// The percent-encoded address of a tile within the zooms of this source, which has no problem.
    std::string urlFor(const KTTileAddress& tile) const;
    /// How the program presents itself to the server.
    std::string userAgent() const;

    bool operator==(const KTTileSource&) const = default;
};

/// The attribution that somebody gives, which is nobody to trust, as plain text in one line: tags of HTML and
/// characters that are not printed go, its most usual entities are read, and it is cut at 200 characters.
std::string KTPlainAttribution(std::string_view text);
