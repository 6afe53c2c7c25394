#include "platform/pictures/PictureDecoder.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/desktop/KTTypeIdentifiers.h"
#include "platform/pictures/PictureFile.h"
#include "platform/pictures/PictureTurn.h"
#include "platform/pictures/PrintingColors.h"

#include <QImageReader>
#include <cmath>

namespace {

/// JPEG pictures are decoded in eighths of their size at little cost. The smallest such size that is no
/// smaller than @p wanted and of whole pixels; empty for none below the whole one.
QSize scaledDecoding(const QSize& whole, const QSize& wanted) {
    for (int eighths = 1; eighths < 8; ++eighths) {
        const int width = whole.width() * eighths, height = whole.height() * eighths;
        if (width % 8 == 0 && height % 8 == 0 && width / 8 >= wanted.width() && height / 8 >= wanted.height())
            return {width / 8, height / 8};
    }
    return {};
}

WholePicture decodeRaw(const std::filesystem::path& file, const std::optional<QSizeF>& fitting) {
    const int edge = fitting ? int(std::ceil(std::max(fitting->width(), fitting->height()))) : INT_MAX;
    DecodedPicture picture = pictureOfRawFile(file, edge);
    const QSize size = picture.image.size();
    return {std::move(picture.image), size, std::move(picture.problem)};
}

WholePicture decodeFile(const std::filesystem::path& path, const std::optional<QSizeF>& fitting) {
    if (isRawFileName(path))
        return decodeRaw(path, fitting);
    QFile file;
    if (!openPictureFile(file, path))
        return {{}, {}, KTLocalizedString("The file cannot be read.")};
    QImageReader::setAllocationLimit(kPictureAllocationLimit);
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize stored = reader.size();
    const bool isTurned = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    QSize upright = isTurned ? stored.transposed() : stored;
    if (fitting && !stored.isEmpty() && reader.format() == "jpeg") {
        const QSize wanted = fittedPictureSize(upright, *fitting);
        if (const QSize scaled = scaledDecoding(stored, isTurned ? wanted.transposed() : wanted);
            !scaled.isEmpty())
            reader.setScaledSize(scaled);
    }
    if (reader.format() == "jpeg") {
        const int eighths =
            reader.scaledSize().isEmpty() ? 8 : reader.scaledSize().width() * 8 / stored.width();
        if (const QImage printed = decodePrintingColors(path, eighths); !printed.isNull())
            return {turnedByFlip(printed, flipOfTransformation(reader.transformation())), upright, {}};
    }
    QImage image = reader.read();
    if (image.isNull())
        return {{}, {}, reader.errorString().toStdString()};
    if (upright.isEmpty())
        upright = image.size();
    return {std::move(image), upright, {}};
}

} // namespace

bool canDecodePictures(const std::filesystem::path& named) {
    const auto type = KTTypeIdentifierForPath(named);
    const KTTypeIdentifier* const known = type ? KTTypeWithIdentifier(*type) : nullptr;
    return isRawFileName(named) ||
           (known != nullptr && QImageReader::supportedMimeTypes().contains(
                                    QByteArray(known->mimeType.data(), qsizetype(known->mimeType.size()))));
}

QSize fittedPictureSize(const QSize& size, const QSizeF& box) {
    const double shape = double(size.width()) / size.height();
    const QSizeF fitted = box.width() >= box.height() * shape
                              ? QSizeF(std::round(box.height() * shape), box.height())
                              : QSizeF(box.width(), std::round(box.width() / shape));
    return fitted.toSize().expandedTo({1, 1});
}

WholePicture decodePicture(const std::filesystem::path& path, const std::optional<QSizeF>& fitting) {
    const int turn = pictureTurnBeyondDecoding(path);
    const bool isOnSide = swapsAxes(turn);
    WholePicture picture = decodeFile(path, fitting && isOnSide ? fitting->transposed() : fitting);
    if (turn != 0 && !picture.image.isNull()) {
        picture.image = turnedByFlip(picture.image, turn);
        if (isOnSide)
            picture.size.transpose();
    }
    return picture;
}
