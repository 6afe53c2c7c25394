#pragma once
#include <boost/crc.hpp>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

/// Makes small base-map files as the program reads them.
class BaseMapFile {
public:
    struct Line {
        unsigned rank;
        std::vector<std::pair<int, int>> points;
    };

    static std::string number(std::uint32_t value) {
        std::string bytes;
        for (; value > 127; value >>= 7)
            bytes += static_cast<char>((value & 127) | 128);
        return bytes + static_cast<char>(value);
    }
    static std::string lines(const std::vector<Line>& list) {
        std::string bytes = number(static_cast<std::uint32_t>(list.size()));
        int x = 0, y = 0;
        const auto difference = [](int value) {
            return number(static_cast<std::uint32_t>(value >= 0 ? 2 * value : -2 * value - 1));
        };
        for (const Line& line : list) {
            bytes += number(line.rank) + number(static_cast<std::uint32_t>(line.points.size()));
            for (const auto& [nextX, nextY] : line.points) {
                bytes += difference(nextX - x) + difference(nextY - y);
                x = nextX, y = nextY;
            }
        }
        return bytes;
    }
    static std::string place(int zoomTimesTen, int x, int y, const std::string& name) {
        return number(zoomTimesTen) + number(9) + number(0) + number(x) + number(y) + number(name.size()) +
               name;
    }

    /// A whole file of @p sections.
    static std::string of(const std::vector<std::string>& sections) {
        std::string content;
        for (const std::string& section : sections)
            content += word(static_cast<std::uint32_t>(section.size())) + section;
        return sealed(content);
    }
    /// What follows the checksum, with a right one.
    static std::string sealed(const std::string& content) {
        boost::crc_32_type checksum;
        checksum.process_bytes(content.data(), content.size());
        return "KTMAP001" + word(checksum.checksum()) + content;
    }

private:
    static std::string word(std::uint32_t value) {
        std::string bytes(4, '\0');
        std::memcpy(bytes.data(), &value, 4);
        return bytes;
    }
};
