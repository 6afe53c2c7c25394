#include "platform/gazetteer/GazetteerData.h"

#include <algorithm>
#include <bit>
#include <boost/crc.hpp>
#include <cstring>
#include <fstream>
#include <stdexcept>

namespace {

constexpr std::string_view kIdentification = "KTGAZ001";
constexpr std::uintmax_t kLargestFile = 64 << 20;

constexpr std::int32_t kLandCell = GridPosition::kDegree / 4;
constexpr std::int32_t kLandColumns = GridPosition::kTurn / kLandCell;
constexpr std::int32_t kLandRows = kLandColumns / 2;

static_assert(std::endian::native == std::endian::little, "the records are read as they stand in the file");
static_assert(sizeof(GazetteerData::Country) == 12 && sizeof(GazetteerData::Place) == 16 &&
              sizeof(GridPosition) == 8);

[[noreturn]] void throwDamaged() {
    throw std::runtime_error("the file is damaged");
}

std::vector<char> contentOfFile(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    if (!file || error)
        throw std::runtime_error("the file cannot be opened");
    if (size > kLargestFile)
        throwDamaged();
    std::vector<char> content(size);
    if (!file.read(content.data(), static_cast<std::streamsize>(size)))
        throw std::runtime_error("the file cannot be read");
    return content;
}

std::span<const char> takeBytes(std::span<const char>& rest, std::size_t count) {
    if (count > rest.size())
        throwDamaged();
    const auto taken = rest.first(count);
    rest = rest.subspan(count);
    return taken;
}

template<typename Number>
Number takeNumber(std::span<const char>& rest) {
    Number number;
    std::memcpy(&number, takeBytes(rest, sizeof number).data(), sizeof number);
    return number;
}

template<typename Record>
void takeList(std::span<const char>& rest, std::vector<Record>& list) {
    const std::size_t length = takeNumber<std::uint32_t>(rest);
    const auto bytes = takeBytes(rest, length * sizeof(Record));
    list.resize(length);
    if (length > 0)
        std::memcpy(list.data(), bytes.data(), bytes.size());
}

std::uint32_t checksumOf(std::span<const char> bytes) {
    boost::crc_32_type checksum;
    checksum.process_bytes(bytes.data(), bytes.size());
    return checksum.checksum();
}

/// Whether ends of consecutive parts make up a list of @p size.
template<typename Ends, typename End = std::identity>
bool arePartsOf(std::size_t size, const Ends& ends, End end = {}) {
    return std::ranges::is_sorted(ends, {}, end) &&
           (ends.empty() ? 0 : std::invoke(end, ends.back())) == size;
}

std::vector<GazetteerData::Line> partsOf(const std::vector<GridPosition>& corners,
                                         const std::vector<std::uint32_t>& ends, std::size_t first,
                                         std::size_t last) {
    std::vector<GazetteerData::Line> parts;
    for (std::size_t i = first; i < last; ++i) {
        const std::size_t start = i == 0 ? 0 : ends[i - 1];
        parts.push_back(std::span(corners).subspan(start, ends[i] - start));
    }
    return parts;
}

} // namespace

GazetteerData::GazetteerData(const std::filesystem::path& file) {
    read(contentOfFile(file));
}

void GazetteerData::read(std::span<const char> content) {
    if (!std::ranges::equal(takeBytes(content, kIdentification.size()), kIdentification) ||
        takeNumber<std::uint32_t>(content) != checksumOf(content))
        throwDamaged();
    takeList(content, countries);
    takeList(content, endsOfRings);
    takeList(content, ringCorners);
    takeList(content, places);
    takeList(content, endsOfBorders);
    takeList(content, borderCorners);
    takeList(content, cellsNearLand);
    takeList(content, names);
    if (!content.empty() || !isSound())
        throwDamaged();
}

bool GazetteerData::isSound() const {
    const auto isPlaceSound = [this](const Place& place) {
        return place.position.isValid() && place.name < names.size() && place.division < names.size();
    };
    return !names.empty() && names.back() == '\0' &&
           cellsNearLand.size() == std::size_t{kLandColumns} * kLandRows / 8 &&
           arePartsOf(endsOfRings.size(), countries, &Country::endOfRings) &&
           arePartsOf(places.size(), countries, &Country::endOfPlaces) &&
           arePartsOf(ringCorners.size(), endsOfRings) && arePartsOf(borderCorners.size(), endsOfBorders) &&
           std::ranges::all_of(ringCorners, &GridPosition::isValid) &&
           std::ranges::all_of(borderCorners, &GridPosition::isValid) &&
           std::ranges::all_of(places, isPlaceSound) && arePlacesInOrder();
}

bool GazetteerData::arePlacesInOrder() const {
    for (std::size_t country = 0; country < countries.size(); ++country)
        if (!std::ranges::is_sorted(placesOfCountry(country), {},
                                    [](const Place& place) { return place.position.latitude; }))
            return false;
    return true;
}

std::string_view GazetteerData::codeOfCountry(std::size_t country) const {
    return {countries[country].code.data(), countries[country].code.size()};
}

std::vector<GazetteerData::Line> GazetteerData::ringsOfCountry(std::size_t country) const {
    return partsOf(ringCorners, endsOfRings, country == 0 ? 0 : countries[country - 1].endOfRings,
                   countries[country].endOfRings);
}

std::span<const GazetteerData::Place> GazetteerData::placesOfCountry(std::size_t country) const {
    const std::size_t start = country == 0 ? 0 : countries[country - 1].endOfPlaces;
    return std::span(places).subspan(start, countries[country].endOfPlaces - start);
}

std::vector<GazetteerData::Line> GazetteerData::divisionBorders() const {
    return partsOf(borderCorners, endsOfBorders, 0, endsOfBorders.size());
}

bool GazetteerData::isNearLand(GridPosition position) const {
    const std::int32_t row =
        std::min((position.latitude + GridPosition::kTurn / 4) / kLandCell, kLandRows - 1);
    const std::int32_t column = (position.longitude + GridPosition::kTurn / 2) / kLandCell % kLandColumns;
    const auto cell = static_cast<std::size_t>(row * kLandColumns + column);
    return (cellsNearLand[cell / 8] >> cell % 8 & 1) != 0;
}
