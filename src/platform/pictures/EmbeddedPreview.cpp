#include "platform/pictures/EmbeddedPreview.h"

#include <cstdint>

namespace {

constexpr std::uint16_t kOrientation = 0x0112, kGPSDirectory = 0x8825, kGPSVersion = 0,
                        kPreviewOffset = 0x0201, kPreviewLength = 0x0202;

/// Numbers of a TIFF structure; reads beyond the end give 0.
class TIFFBytes {
public:
    explicit TIFFBytes(QByteArray content) : bytes(std::move(content)), isLittle(bytes.startsWith("II")) {}

    bool isTIFF() const { return (isLittle || bytes.startsWith("MM")) && number16(2) == 42; }
    std::uint32_t number16(std::uint32_t at) const { return number(at, 2); }
    std::uint32_t number32(std::uint32_t at) const { return number(at, 4); }
    QByteArray mid(std::uint32_t at, std::uint32_t length) const {
        return std::uint64_t(at) + length <= std::uint64_t(bytes.size()) ? bytes.mid(at, length)
                                                                         : QByteArray();
    }

private:
    std::uint32_t number(std::uint32_t at, std::uint32_t size) const {
        std::uint32_t result = 0;
        if (std::uint64_t(at) + size > std::uint64_t(bytes.size()))
            return 0;
        for (std::uint32_t i = 0; i < size; ++i)
            result = result << 8 | std::uint8_t(bytes[at + (isLittle ? size - 1 - i : i)]);
        return result;
    }

    const QByteArray bytes;
    const bool isLittle;
};

constexpr int kMostDirectories = 32; // a damaged chain may go in a circle

struct Directory {
    std::uint32_t orientation = 0, previewOffset = 0, previewLength = 0, next = 0;
};

Directory readDirectory(const TIFFBytes& tiff, std::uint32_t at) {
    Directory result;
    const std::uint32_t entries = tiff.number16(at);
    for (std::uint32_t i = 0; i < entries; ++i) {
        const std::uint32_t entry = at + 2 + 12 * i;
        const bool isShort = tiff.number16(entry + 2) == 3;
        const std::uint32_t value = isShort ? tiff.number16(entry + 8) : tiff.number32(entry + 8);
        switch (tiff.number16(entry)) {
        case kOrientation:
            result.orientation = value;
            break;
        case kPreviewOffset:
            result.previewOffset = value;
            break;
        case kPreviewLength:
            result.previewLength = value;
            break;
        }
    }
    result.next = tiff.number32(at + 2 + 12 * entries);
    return result;
}

std::optional<EmbeddedPreview> previewOfEXIF(const QByteArray& block) {
    const TIFFBytes tiff(block);
    if (!tiff.isTIFF())
        return std::nullopt;
    const Directory image = readDirectory(tiff, tiff.number32(4));
    const Directory preview = image.next ? readDirectory(tiff, image.next) : Directory();
    EmbeddedPreview result;
    result.jpeg = tiff.mid(preview.previewOffset, preview.previewLength);
    result.orientation = orientationInEXIF(block);
    return result.jpeg.startsWith("\xff\xd8") ? std::optional(result) : std::nullopt;
}

bool hasPosition(const TIFFBytes& tiff) {
    std::uint32_t directory = tiff.number32(4);
    for (int count = 0; directory != 0 && count < kMostDirectories; ++count) {
        const std::uint32_t entries = tiff.number16(directory);
        for (std::uint32_t i = 0; i < entries; ++i) {
            const std::uint32_t entry = directory + 2 + 12 * i;
            if (tiff.number16(entry) != kGPSDirectory)
                continue;
            const std::uint32_t gps = tiff.number32(entry + 8), tags = tiff.number16(gps);
            if (tags > 1 || (tags == 1 && tiff.number16(gps + 2) != kGPSVersion))
                return true;
        }
        directory = tiff.number32(directory + 2 + 12 * entries);
    }
    return false;
}

bool isFrameHeader(unsigned char marker) {
    return marker >= 0xc0 && marker <= 0xcf && marker != 0xc4 && marker != 0xc8 && marker != 0xcc;
}

} // namespace

std::optional<EmbeddedPreview> embeddedPreviewOfJPEG(const QByteArray& head) {
    auto byte = [&](qsizetype at) { return static_cast<unsigned char>(head[at]); };
    std::optional<EmbeddedPreview> result;
    qsizetype at = 2;
    while (head.startsWith("\xff\xd8") && at + 9 < head.size() && byte(at) == 0xff) {
        const unsigned char marker = byte(at + 1);
        const qsizetype length = byte(at + 2) << 8 | byte(at + 3);
        if (marker == 0xe1 && !result && head.mid(at + 4, 6) == QByteArray("Exif\0\0", 6))
            result = previewOfEXIF(head.mid(at + 10, length - 8));
        if (isFrameHeader(marker)) {
            if (result)
                result->imageSize = QSize(byte(at + 7) << 8 | byte(at + 8), byte(at + 5) << 8 | byte(at + 6));
            break;
        }
        at += 2 + length;
    }
    return result;
}

int orientationInEXIF(const QByteArray& block) {
    const TIFFBytes tiff(block.startsWith(QByteArray("Exif\0\0", 6)) ? block.mid(6) : block);
    const std::uint32_t told = tiff.isTIFF() ? readDirectory(tiff, tiff.number32(4)).orientation : 0;
    return told >= 1 && told <= 8 ? int(told) : 1;
}

bool tellsPosition(const QByteArray& file) {
    if (const TIFFBytes whole(file); whole.isTIFF() && hasPosition(whole))
        return true;
    const QByteArray mark("Exif\0\0", 6);
    for (qsizetype at = file.indexOf(mark); at >= 0; at = file.indexOf(mark, at + 1)) {
        const TIFFBytes block(QByteArray::fromRawData(file.constData() + at + 6, file.size() - at - 6));
        if (block.isTIFF() && hasPosition(block))
            return true;
    }
    return false;
}
