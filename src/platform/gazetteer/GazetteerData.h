#pragma once
#include "platform/gazetteer/GridPosition.h"

#include <array>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The contents of the gazetteer's data file: lists of plain records that refer to each other by index. Every
/// reference has been checked, so that no lookup leaves the lists. Immutable: every thread may ask.
///
/// The file has eight bytes of identification, a CRC-32 of the rest, and then the lists, each after its
/// length as a 32-bit number; all numbers are little-endian. Lists of lists are stored one after the other,
/// with the index at which each ends.
class GazetteerData {
public:
    struct Country {
        std::array<char, 2> code; ///< ISO 3166-1, or XK
        std::uint16_t padding;
        std::uint32_t endOfRings;
        std::uint32_t endOfPlaces;
    };
    struct Place {
        GridPosition position;
        std::uint32_t name;     ///< where in the names it starts
        std::uint32_t division; ///< likewise, the first-level division; that of the empty name if unknown
    };
    using Line = std::span<const GridPosition>;

    /// Reads @p file. Throws std::runtime_error, with a reason, when it cannot be read or is damaged.
    explicit GazetteerData(const std::filesystem::path& file);

    std::size_t numberOfCountries() const { return countries.size(); }
    std::string_view codeOfCountry(std::size_t country) const;
    /// What lies within an odd number of a country's rings lies within the country. A ring is closed from its
    /// last corner to its first.
    std::vector<Line> ringsOfCountry(std::size_t country) const;
    /// From south to north.
    std::span<const Place> placesOfCountry(std::size_t country) const;
    /// Borders between first-level divisions of a country.
    std::vector<Line> divisionBorders() const;
    /// Whether @p position is on land, on a lake or in territorial waters, as far as cells of a quarter of a
    /// degree tell.
    bool isNearLand(GridPosition position) const;
    std::string_view nameAt(std::uint32_t start) const { return names.data() + start; }

private:
    void read(std::span<const char> content);
    bool isSound() const;
    bool arePlacesInOrder() const;

    std::vector<Country> countries;
    std::vector<std::uint32_t> endsOfRings;
    std::vector<GridPosition> ringCorners;
    std::vector<Place> places;
    std::vector<std::uint32_t> endsOfBorders;
    std::vector<GridPosition> borderCorners;
    std::vector<std::uint8_t> cellsNearLand; ///< a bit a cell, from the south pole and the date line on
    std::vector<char> names;                 ///< texts that end with a zero byte
};
