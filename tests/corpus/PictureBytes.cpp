#include "tests/corpus/PictureBytes.h"

#include "tests/support/TestSupport.h"

#include <iterator>
#include <sstream>

namespace {

std::size_t bigEndian(std::string_view content, std::size_t at) {
    std::size_t result = 0;
    for (std::size_t i = at; i < at + 4; ++i)
        result = result << 8 | (i < content.size() ? static_cast<unsigned char>(content[i]) : 0);
    return result;
}

std::string_view piece(std::string_view content, std::size_t at, std::size_t length) {
    return at < content.size() ? content.substr(at, length) : std::string_view();
}

/// Every chunk but those that hold metadata.
std::string pngPicture(std::string_view content) {
    constexpr std::size_t signature = 8, besidesData = 12;
    static const std::set<std::string_view> metadata = {"eXIf", "iTXt", "tEXt", "zTXt"};
    std::string result;
    for (std::size_t at = signature; at + besidesData <= content.size();) {
        const std::size_t length = bigEndian(content, at) + besidesData;
        if (!metadata.contains(content.substr(at + 4, 4)))
            result += piece(content, at, length);
        at += length;
    }
    return result;
}

/// Header and colours, then layers and pixels; the image resources lie between them.
std::string photoshopPicture(std::string_view content) {
    constexpr std::size_t header = 26, lengthField = 4;
    const std::size_t resources = header + lengthField + bigEndian(content, header);
    const std::size_t layers = resources + lengthField + bigEndian(content, resources);
    return std::string(content.substr(0, resources)).append(piece(content, layers, content.npos));
}

std::vector<std::size_t> numbers(const std::string& text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::size_t>(stream), {}};
}

/// What the offsets and counts of each directory lead to.
std::string stripsAndTiles(std::string_view content, const FileTags& tags) {
    std::string result;
    for (const FileTags::Tag& tag : tags.tags)
        for (const char* kind : {"Strip", "Tile"}) {
            const std::string end = std::string(":") + kind + "Offsets";
            if (!tag.key.ends_with(end))
                continue;
            const std::string directory = tag.key.substr(0, tag.key.size() - end.size());
            const auto offsets = numbers(tag.value);
            for (const FileTags::Tag& other : tags.tags)
                if (other.key == directory + ":" + kind + "ByteCounts")
                    for (std::size_t i = 0; const std::size_t length : numbers(other.value))
                        if (i < offsets.size())
                            result += piece(content, offsets[i++], length);
        }
    return result;
}

} // namespace

std::string pictureBytes(const std::filesystem::path& file, const FileTags& tags) {
    const std::string content = contentOf(file), type = tags.textOf("File:FileType");
    if (type == "PNG")
        return pngPicture(content);
    if (type == "PSD")
        return photoshopPicture(content);
    if (type == "MRW")
        return std::string(piece(content, 8 + bigEndian(content, 4), content.npos));
    if (type == "RAF")
        return std::string(piece(content, bigEndian(content, 100), bigEndian(content, 104)));
    std::string result = stripsAndTiles(content, tags);
    for (const std::size_t offset : numbers(tags.textOf("EXIF:RawDataOffset")))
        result += piece(content, offset, content.npos);
    return result;
}
