#include "platform/pictures/PictureTurn.h"

#include "platform/pictures/EmbeddedPreview.h"
#include "platform/pictures/PictureFile.h"
#include "platform/pictures/RawPicture.h"

#include <QImageReader>
#include <QRegularExpression>
#include <QTransform>
#include <QtEndian>

namespace {

constexpr int kFlips[] = {0, 0, 1, 3, 2, 4, 6, 7, 5}; // of EXIF orientations 1…8
constexpr int kMirrorLeft = 1, kMirrorTop = 2, kSwapAxes = 4;
constexpr qint64 kMostOfSidecar = 1 << 20, kMostOfBlock = 1 << 20;

/// 0 where there is no sidecar, or where it does not tell.
int orientationInSidecar(const std::filesystem::path& picture) {
    std::filesystem::path sidecar = picture;
    QFile file;
    if (!openPictureFile(file, sidecar.replace_extension("xmp")) &&
        !openPictureFile(file, sidecar.replace_extension("XMP")))
        return 0;
    static const QRegularExpression pattern(
        R"(\btiff:Orientation(?:\s*=\s*["']|(?:\s[^>]*)?>)\s*([1-8])\s*["'<])");
    return pattern.match(QString::fromUtf8(file.read(kMostOfSidecar))).captured(1).toInt();
}

/// The EXIF block of a PNG or WebP file; both are rows of chunks with a type and a length.
QByteArray exifChunk(QFile& file) {
    const QByteArray head = file.read(12);
    const bool isPNG = head.startsWith("\x89PNG");
    if (!isPNG && !(head.startsWith("RIFF") && head.endsWith("WEBP")))
        return {};
    for (qint64 at = isPNG ? 8 : 12; file.seek(at);) {
        const QByteArray chunk = file.read(8);
        if (chunk.size() < 8)
            return {};
        const auto length = qint64(isPNG ? qFromBigEndian<quint32>(chunk.constData())
                                         : qFromLittleEndian<quint32>(chunk.constData() + 4));
        if (isPNG ? chunk.endsWith("eXIf") : chunk.startsWith("EXIF"))
            return file.read(std::min(length, kMostOfBlock));
        at += isPNG ? 12 + length : 8 + length + (length & 1);
    }
    return {};
}

struct Turns {
    int file = 0;    // of the file itself
    int decoded = 0; // as readers turn it
};

Turns turnsOf(const std::filesystem::path& path) {
    if (isRawFileName(path)) {
        const int flip = flipOfRawFile(path);
        return {flip, flip};
    }
    QFile file;
    if (!openPictureFile(file, path))
        return {};
    if (const QByteArray block = exifChunk(file); !block.isEmpty())
        return {flipOfOrientation(orientationInEXIF(block)), 0};
    file.seek(0);
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    const int flip = flipOfTransformation(reader.transformation());
    return {flip, flip};
}

bool mayIgnoreEXIF(const std::filesystem::path& file) {
    const QString extension = QString::fromStdString(file.extension().string()).toLower();
    return extension == ".png" || extension == ".webp";
}

} // namespace

int pictureTurnBeyondDecoding(const std::filesystem::path& file) {
    const int beside = orientationInSidecar(file);
    if (beside == 0 && !mayIgnoreEXIF(file))
        return 0;
    const Turns turns = turnsOf(file);
    return combinedFlip(inverseFlip(turns.decoded), beside == 0 ? turns.file : flipOfOrientation(beside));
}

int flipOfOrientation(int orientation) {
    return orientation >= 1 && orientation <= 8 ? kFlips[orientation] : 0;
}

int flipOfTransformation(QImageIOHandler::Transformations told) {
    const int mirrored = (told & QImageIOHandler::TransformationMirror ? kMirrorLeft : 0) |
                         (told & QImageIOHandler::TransformationFlip ? kMirrorTop : 0);
    // Then comes a quarter clockwise.
    return told & QImageIOHandler::TransformationRotate90 ? combinedFlip(mirrored, kMirrorTop | kSwapAxes)
                                                          : mirrored;
}

bool swapsAxes(int flip) {
    return (flip & kSwapAxes) != 0;
}

QImage turnedByFlip(const QImage& image, int flip) {
    const QImage mirrored = flip & (kMirrorLeft | kMirrorTop)
                                ? image.mirrored((flip & kMirrorLeft) != 0, (flip & kMirrorTop) != 0)
                                : image;
    return flip & kSwapAxes ? mirrored.transformed(QTransform(0, 1, 1, 0, 0, 0)) : mirrored;
}

int combinedFlip(int first, int second) {
    const int swapped = (second & kSwapAxes) | (second & kMirrorLeft ? kMirrorTop : 0) |
                        (second & kMirrorTop ? kMirrorLeft : 0);
    return first ^ (first & kSwapAxes ? swapped : second);
}

int inverseFlip(int flip) {
    return flip & kSwapAxes ? combinedFlip(kSwapAxes, flip & ~kSwapAxes) : flip;
}
