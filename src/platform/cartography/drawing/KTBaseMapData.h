#pragma once
#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <vector>

/// The contents of the base map's data file: lines in four levels of detail, places, names of countries.
/// Immutable once made: every thread may ask.
///
/// The file has eight bytes of identification, a CRC-32 of the rest, and then sections, each after its length
/// in bytes as a little-endian 32-bit number: per level the land, borders, divisions and rivers, then the
/// places and the countries. Numbers in sections are variable-length, seven bits a byte, the lowest first;
/// coordinates of lines are differences from the point before, with the sign in the lowest bit.
class KTBaseMapData {
public:
    /// The projected world is this many units wide and high.
    static constexpr std::int32_t kWorld = 1 << 22;

    struct Point {
        std::int32_t x = 0, y = 0; ///< from 0 at 180° west and in the north to kWorld
        bool operator==(const Point&) const = default;
    };
    struct Box {
        std::int32_t left = kWorld, top = kWorld, right = 0, bottom = 0; ///< inclusive; empty at first

        void add(Point point);
        void add(const Box& box);
    };
    struct Line {
        std::span<const Point> points;
        std::span<const Box> chunks; ///< boxes around each kChunk points and the one after them
        Box box;
        /// Borders: 0 recognised, 1 disputed, 2 of leases and the like. Divisions and rivers: ten times the
        /// zoom from which they are to be shown.
        unsigned rank = 0;
    };
    static constexpr std::size_t kChunk = 64;

    enum Kind { Land, Borders, Divisions, Rivers };
    static constexpr std::size_t kKinds = 4;
    struct Level {
        double endOfZooms = 0; ///< it is detailed enough below this zoom
        std::array<std::vector<Line>, kKinds> lines;
    };
    struct Place {
        double zoom = 0;         ///< from which it is to be shown
        unsigned importance = 0; ///< by its population, 0 to 14
        bool isCapital = false;
        Point point;
        std::string name; ///< UTF-8
    };
    struct Country {
        std::string code; ///< ISO 3166-1, or XK
        Point point;      ///< the middle of its name
        double room = 0;  ///< the width of the land there, in units
    };

    /// Reads @p file. Throws std::runtime_error, with a reason, when it cannot be read or is damaged.
    explicit KTBaseMapData(const std::filesystem::path& file);

    /// The lines for maps of @p zoom. Land consists of rings, closed from the last point to the first; what
    /// lies within an odd number of them is land.
    const Level& levelForZoom(double zoom) const;
    const std::vector<Place>& places() const { return placeList; }        ///< the most important first
    const std::vector<Country>& countries() const { return countryList; } ///< the widest first

private:
    struct Storage { // what the lines of a section refer to
        std::vector<Point> points;
        std::vector<Box> chunks;
    };

    void read(std::span<const std::uint8_t> content);
    std::vector<Line> readLines(std::span<const std::uint8_t> section, bool areClosed);
    void readPlaces(std::span<const std::uint8_t> section);
    void readCountries(std::span<const std::uint8_t> section);

    std::vector<std::unique_ptr<const Storage>> storages;
    std::array<Level, 4> levels;
    std::vector<Place> placeList;
    std::vector<Country> countryList;
};
