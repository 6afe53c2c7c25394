#include "app/thumbnails/ThumbnailDecoder.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/pictures/EmbeddedPreview.h"
#include "platform/pictures/PictureFile.h"
#include "platform/pictures/PictureTurn.h"

#include <QImageReader>
#include <cmath>

namespace {

constexpr double kSameProportions = 1.02; // previews with black bars have others than their picture

QSize fitted(const QSize& size, int edge) {
    return size.width() <= edge && size.height() <= edge
               ? size
               : size.scaled(edge, edge, Qt::KeepAspectRatio).expandedTo({1, 1});
}

QImage fitted(const QImage& image, int edge) {
    const QSize size = fitted(image.size(), edge);
    return size == image.size() ? image : image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

bool haveSameProportions(const QSize& left, const QSize& right) {
    const double ratio = double(left.width()) * right.height() / (double(right.width()) * left.height());
    return ratio < kSameProportions && ratio > 1 / kSameProportions;
}

QImage previewInJPEG(QFile& file, int edge) {
    const auto preview = embeddedPreviewOfJPEG(file.peek(kJPEGHeadLength));
    if (!preview || preview->imageSize.isEmpty())
        return {};
    const QImage image = QImage::fromData(preview->jpeg, "JPEG");
    if (std::max(image.width(), image.height()) < edge ||
        !haveSameProportions(image.size(), preview->imageSize))
        return {};
    return turnedByFlip(image, flipOfOrientation(preview->orientation));
}

DecodedPicture decodeWithReader(QFile& file, int edge) {
    QImageReader::setAllocationLimit(kPictureAllocationLimit);
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (const QSize size = reader.size(); size.isValid())
        reader.setScaledSize(fitted(size, edge)); // JPEG decodes that much faster
    const QImage image = reader.read();
    if (image.isNull())
        return {{}, reader.errorString().toStdString()};
    return {image, {}};
}

} // namespace

DecodedPicture decodeThumbnail(const std::filesystem::path& path, ThumbnailSize size) {
    return decodePicture(path, edgeOf(size));
}

DecodedPicture decodePicture(const std::filesystem::path& path, int edge) {
    if (isRawFileName(path)) {
        DecodedPicture result = previewOfRawFile(path, edge);
        result.image = fitted(result.image, edge);
        return result;
    }
    QFile file;
    if (!openPictureFile(file, path))
        return {{}, KTLocalizedString("The file cannot be read.")};
    if (const QImage preview = previewInJPEG(file, edge); !preview.isNull())
        return {fitted(preview, edge), {}};
    DecodedPicture result = decodeWithReader(file, edge);
    result.image = fitted(result.image, edge);
    return result;
}
