#include "platform/cartography/drawing/tiles/TileDecoder.h"

#include <QBuffer>
#include <QImageReader>
#include <string_view>

namespace {

constexpr int kLargestSide = 2048; // pixels

/// The format that the first bytes tell. The library's own guess would also try formats that can do more than
/// hold pixels.
const char* formatOf(std::string_view bytes) {
    if (bytes.starts_with("\x89PNG\r\n"))
        return "png";
    if (bytes.starts_with("\xFF\xD8\xFF"))
        return "jpeg";
    if (bytes.starts_with("RIFF") && bytes.substr(8).starts_with("WEBP"))
        return "webp";
    if (bytes.starts_with("GIF8"))
        return "gif";
    return nullptr;
}

} // namespace

QImage decodedTile(const std::string& bytes) {
    const char* format = formatOf(bytes);
    if (!format)
        return {};
    QByteArray content = QByteArray::fromRawData(bytes.data(), qsizetype(bytes.size()));
    QBuffer buffer(&content);
    QImageReader reader(&buffer, format);
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    if (size.isEmpty() || size.width() != size.height() || size.width() > kLargestSide)
        return {};
    QImage image = reader.read();
    if (image.isNull())
        return {};
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                         : QImage::Format_RGB32);
}
