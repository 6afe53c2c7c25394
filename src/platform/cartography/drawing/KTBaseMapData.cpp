#include "platform/cartography/drawing/KTBaseMapData.h"

#include <algorithm>
#include <boost/crc.hpp>
#include <cstring>
#include <fstream>
#include <stdexcept>
#include <string_view>

namespace {

constexpr std::string_view kIdentification = "KTMAP001";
constexpr std::uintmax_t kLargestFile = 64 << 20;
constexpr std::array kEndsOfZooms = {3.0, 5.0, 7.0, 100.0};

using Bytes = std::span<const std::uint8_t>;

[[noreturn]] void throwDamaged() {
    throw std::runtime_error("the file is damaged");
}

std::vector<std::uint8_t> contentOfFile(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    if (!file || error)
        throw std::runtime_error("the file cannot be opened");
    if (size > kLargestFile)
        throwDamaged();
    std::vector<std::uint8_t> content(size);
    if (!file.read(reinterpret_cast<char*>(content.data()), static_cast<std::streamsize>(size)))
        throw std::runtime_error("the file cannot be read");
    return content;
}

Bytes takeBytes(Bytes& rest, std::size_t count) {
    if (count > rest.size())
        throwDamaged();
    const Bytes taken = rest.first(count);
    rest = rest.subspan(count);
    return taken;
}

std::uint32_t takeWord(Bytes& rest) {
    const Bytes bytes = takeBytes(rest, 4);
    return bytes[0] | bytes[1] << 8 | bytes[2] << 16 | std::uint32_t(bytes[3]) << 24;
}

std::uint32_t checksumOf(Bytes bytes) {
    boost::crc_32_type checksum;
    checksum.process_bytes(bytes.data(), bytes.size());
    return checksum.checksum();
}

/// Reads the numbers and texts of a section. Throws at its end, and for what cannot be.
class Reader {
public:
    explicit Reader(Bytes section) : at(section.data()), end(at + section.size()) {}

    std::uint32_t number() {
        std::uint32_t value = 0;
        for (unsigned shift = 0; shift < 32; shift += 7) {
            if (at == end)
                throwDamaged();
            const std::uint8_t byte = *at++;
            value |= std::uint32_t(byte & 127) << shift;
            if (byte < 128)
                return value;
        }
        throwDamaged();
    }

    /// The length of a list whose items take at least @p bytes bytes each.
    std::size_t length(std::size_t bytes) {
        const std::size_t count = number();
        if (count > static_cast<std::size_t>(end - at) / bytes)
            throwDamaged();
        return count;
    }

    std::int32_t coordinate(std::int32_t before) {
        const std::uint32_t coded = number();
        const auto difference = static_cast<std::int64_t>(coded >> 1);
        return sound(before + ((coded & 1) != 0 ? -difference - 1 : difference));
    }

    KTBaseMapData::Point point() {
        const std::int32_t x = sound(number());
        return {x, sound(number())};
    }

    std::string text() {
        const std::size_t size = length(1);
        std::string text(reinterpret_cast<const char*>(at), size);
        at += size;
        return text;
    }

    void expectEnd() const {
        if (at != end)
            throwDamaged();
    }

private:
    static std::int32_t sound(std::int64_t coordinate) {
        if (coordinate < 0 || coordinate > KTBaseMapData::kWorld)
            throwDamaged();
        return static_cast<std::int32_t>(coordinate);
    }

    const std::uint8_t* at;
    const std::uint8_t* const end;
};

} // namespace

void KTBaseMapData::Box::add(Point point) {
    left = std::min(left, point.x);
    top = std::min(top, point.y);
    right = std::max(right, point.x);
    bottom = std::max(bottom, point.y);
}

void KTBaseMapData::Box::add(const Box& box) {
    left = std::min(left, box.left);
    top = std::min(top, box.top);
    right = std::max(right, box.right);
    bottom = std::max(bottom, box.bottom);
}

KTBaseMapData::KTBaseMapData(const std::filesystem::path& file) {
    read(contentOfFile(file));
}

void KTBaseMapData::read(Bytes content) {
    if (!std::ranges::equal(takeBytes(content, kIdentification.size()), kIdentification) ||
        takeWord(content) != checksumOf(content))
        throwDamaged();
    const auto section = [&content] { return takeBytes(content, takeWord(content)); };
    for (std::size_t i = 0; i < levels.size(); ++i) {
        levels[i].endOfZooms = kEndsOfZooms[i];
        for (std::size_t kind = 0; kind < kKinds; ++kind)
            levels[i].lines[kind] = readLines(section(), kind == Land);
    }
    readPlaces(section());
    readCountries(section());
    if (!content.empty())
        throwDamaged();
}

std::vector<KTBaseMapData::Line> KTBaseMapData::readLines(Bytes section, bool areClosed) {
    Reader reader(section);
    auto storage = std::make_unique<Storage>();
    storage->points.reserve(section.size() /
                            2); // a point takes two bytes at least: the spans stay where they are
    std::vector<Line> lines(reader.length(2));
    Point point;
    for (Line& line : lines) {
        line.rank = reader.number();
        const std::size_t start = storage->points.size(), count = reader.length(2);
        if (count == 0)
            throwDamaged();
        for (std::size_t i = 0; i < count; ++i) {
            point.x = reader.coordinate(point.x);
            point.y = reader.coordinate(point.y);
            storage->points.push_back(point);
        }
        line.points = std::span(storage->points).subspan(start);
    }
    reader.expectEnd();

    std::size_t chunks = 0;
    for (const Line& line : lines)
        chunks += (line.points.size() + kChunk - 1) / kChunk;
    storage->chunks.reserve(chunks);
    for (Line& line : lines) {
        const std::size_t start = storage->chunks.size();
        for (std::size_t first = 0; first < line.points.size(); first += kChunk) {
            Box& chunk = storage->chunks.emplace_back();
            for (std::size_t i = first; i <= std::min(first + kChunk, line.points.size() - 1); ++i)
                chunk.add(line.points[i]);
            if (areClosed && first + kChunk >= line.points.size())
                chunk.add(line.points.front());
            line.box.add(chunk);
        }
        line.chunks = std::span(storage->chunks).subspan(start);
    }
    storages.push_back(std::move(storage));
    return lines;
}

void KTBaseMapData::readPlaces(Bytes section) {
    Reader reader(section);
    placeList.resize(reader.length(6));
    for (Place& place : placeList) {
        place.zoom = reader.number() / 10.0;
        place.importance = reader.number();
        place.isCapital = reader.number() != 0;
        place.point = reader.point();
        place.name = reader.text();
    }
    reader.expectEnd();
}

void KTBaseMapData::readCountries(Bytes section) {
    Reader reader(section);
    countryList.resize(reader.length(4));
    for (Country& country : countryList) {
        country.code = reader.text();
        country.point = reader.point();
        country.room = reader.number();
    }
    reader.expectEnd();
}

const KTBaseMapData::Level& KTBaseMapData::levelForZoom(double zoom) const {
    return *std::ranges::find_if(levels.begin(), levels.end() - 1,
                                 [zoom](const Level& level) { return zoom < level.endOfZooms; });
}
