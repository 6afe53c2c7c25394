#include "export/KTPhotoFileExport.h"

#include "export/KTExportedTags.h"
#include "export/KTPhotoExportOption.h"
#include "metadata/KTExifToolLease.h"
#include "photo/KTPhoto.h"
#include "photo/KTWrittenValues.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/desktop/KTItemReplacement.h"
#include "platform/desktop/KTTypeIdentifiers.h"
#include "platform/pictures/ColorProfile.h"
#include "platform/pictures/PictureDecoder.h"
#include "platform/pictures/PictureFile.h"
#include "platform/pictures/PictureResizer.h"

#include <QColorSpace>
#include <QImageWriter>
#include <cmath>

namespace {

using Failure = std::optional<std::string>;

// What the bridge may write, of the types that the toolkit's writers know.
constexpr std::string_view kWritten[] = {"public.jpeg", "public.tiff", "public.png"};
constexpr double kLargestSide = 32'000; // pixels; JPEG counts to 65,500

/// One photo's export under way.
class FileExport {
public:
    FileExport(const KTPhotoFileExport& wanted, const KTPhoto& exported)
        : request(wanted), photo(exported), tags(exported), traces(tags.saved(), tags.placeNames()) {}

    Failure run() {
        const KTItemReplacement place(request.destination);
        if (place.error())
            return place.error();
        item = place.temporaryItem();
        const bool isAnew = request.size || (!request.type.empty() && request.type != typeOf());
        Failure failure = isAnew ? makePicture() : copyFile();
        if (!failure && request.excludesLocation)
            failure = proveThatNoPlaceIsTold();
        if (!failure)
            failure =
                KTReplaceItem(request.destination, item, [this] { return request.mayReplace || !isTaken(); });
        return failure;
    }

private:
    std::string typeOf() const { return photo.uti().description(); }

    bool isTaken() const {
        std::error_code error;
        return std::filesystem::exists(std::filesystem::symlink_status(request.destination, error));
    }

    Failure copyFile() {
        if (request.excludesLocation)
            return copyWithoutLocation();
        if (tags.differences().empty())
            return KTCopyItem(photo.fileURL(), item);
        return write(adaptedToLanguageAlternatives(tags.differences(), tags.saved()), photo.fileURL());
    }

    /// Files whose blocks all can be taken away receive only what is known to tell no place; from others the
    /// tags that tell one are removed, and the proof decides.
    Failure copyWithoutLocation() {
        const std::string type = typeOf();
        if (type == "public.jpeg" || type == "public.png")
            return rebuild(traces.removedFrom(tags.all(*tool)));
        KTTagDictionary changes = traces.removalsFor(tags.saved());
        for (const auto& [key, value] : tags.differences())
            if (!KTLocationTraces::isPlaceKey(key))
                changes.set(key, value);
        return write(changes, photo.fileURL());
    }

    Failure rebuild(const KTTagDictionary& content) {
        KTExifTool& bridge = *tool;
        bridge.newExifTool();
        bridge.evaluate("$exifTool->SetNewValue('all');");
        bridge.evaluate("$exifTool->SetNewValue('ICC_Profile:all', undef, Replace => 2);"); // keeps it
        for (const auto& [key, value] : content)
            bridge.setNewValue(value, key.text());
        // It belongs to the picture itself, which stays as it is.
        const KTValue* const turned = tags.differences().find("EXIF:Orientation");
        bridge.setNewValue(turned != nullptr ? *turned : tags.saved().valueForKey("EXIF:Orientation"),
                           "EXIF:Orientation");
        return failureOf(bridge.writeResultToFile(item, photo.fileURL()));
    }

    Failure makePicture() {
        std::optional<QSizeF> box;
        if (request.size)
            box = QSizeF(std::min(request.size->width, kLargestSide),
                         std::min(request.size->height, kLargestSide));
        WholePicture picture = decodePicture(photo.fileURL(), box);
        if (picture.image.isNull())
            return picture.problem;
        if (Failure failure = settleColors(picture.image))
            return failure;
        QSize size = picture.image.size();
        if (box) {
            size = fittedPictureSize(picture.size, *box);
            picture.image = resizedPicture(picture.image, size);
            if (picture.image.isNull())
                return KTLocalizedString("There is not enough memory for the picture.");
        }
        if (Failure failure = writePicture(picture.image))
            return failure;
        KTTagDictionary content = tags.allForPicture(size, *tool);
        if (request.excludesLocation)
            content = traces.removedFrom(content);
        return write(adaptedToLanguageAlternatives(content, tags.saved()), item);
    }

    /// The toolkit keeps the profiles that it knows with the picture; the colours of others become sRGB.
    Failure settleColors(QImage& image) const {
        if (image.colorSpace().isValid() || isRawFileName(photo.fileURL()))
            return std::nullopt;
        if (!tags.saved().hasValue("ICC_Profile:ProfileVersion")) {
            if (tags.saved().valueForKey("EXIF:InteropIndex").description() == "R03") // cameras' Adobe RGB
                image.setColorSpace(QColorSpace::AdobeRgb);
            return std::nullopt;
        }
        KTExifTool& bridge = *tool;
        bridge.setValueForVariable(photo.path(), "profilePath");
        const KTValue profile = bridge.evaluate(
            "require MIME::Base64; $profileInfo = Image::ExifTool::ImageInfo($profilePath, 'ICC_Profile');"
            "MIME::Base64::encode_base64(${$$profileInfo{ICC_Profile}}, '');");
        const QByteArray bytes = QByteArray::fromBase64(QByteArray::fromStdString(profile.description()));
        if (convertPictureToSRGB(image, bytes))
            return std::nullopt;
        return KTLocalizedString(
            "The picture's colours cannot be converted: its colour profile is not one for red, "
            "green and blue.");
    }

    Failure writePicture(const QImage& image) const {
        const std::string type = request.type.empty() ? typeOf() : request.type;
        const KTTypeIdentifier* known =
            std::ranges::count(kWritten, type) ? KTTypeWithIdentifier(type) : nullptr;
        const auto formats = QImageWriter::imageFormatsForMimeType(
            known == nullptr ? QByteArray()
                             : QByteArray(known->mimeType.data(), qsizetype(known->mimeType.size())));
        if (formats.isEmpty())
            return KTStringWithFormat(KTLocalizedString("Pictures of the type “%@” cannot be made."), {type});
        QFile file;
        if (!openNewPictureFile(file, item))
            return KTLocalizedString("The file cannot be made.");
        QImageWriter writer(&file, formats.first());
        const bool isJPEG = type == "public.jpeg";
        if (isJPEG)
            writer.setQuality(int(std::lround(std::clamp(request.quality, 0.0, 1.0) * 100)));
        if (type == "public.tiff")
            writer.setCompression(1); // LZW, which loses nothing
        if (!writer.write(isJPEG ? opaquePicture(image) : image))
            return writer.errorString().toStdString();
        return file.flush() && file.error() == QFileDevice::NoError ? Failure()
                                                                    : file.errorString().toStdString();
    }

    /// Writes @p content into the item, made from @p source or being there already.
    Failure write(const KTTagDictionary& content, const std::filesystem::path& source) {
        return failureOf((*tool).setValuesForKeysWithDictionary(content, item, source));
    }

    static Failure failureOf(const KTPhotoOperation& operation) {
        return operation.operationDidSucceed ? Failure() : operation.resultDescription();
    }

    Failure proveThatNoPlaceIsTold() {
        if (const auto trace = traces.foundIn(item, *tool))
            return KTStringWithFormat(
                KTLocalizedString("It is not exported, because its place could not be removed from it: %@."),
                {*trace});
        return std::nullopt;
    }

    const KTPhotoFileExport& request;
    const KTPhoto& photo;
    const KTExportedTags tags;
    const KTLocationTraces traces;
    const KTExifToolLease tool;
    std::filesystem::path item;
};

} // namespace

KTPhotoFileExport KTPhotoFileExport::withOptions(const KTPhotoExportOptions& options) {
    KTPhotoFileExport result;
    const auto size = KTOptionOr(options, KTImageSizeOption, KTImageSize());
    if (size.width >= 1 && size.height >= 1)
        result.size = size;
    result.type = KTOptionOr(options, KTImageTypeOption, std::string());
    result.quality = KTOptionOr(options, KTImageQualityOption, 1.0);
    result.excludesLocation = KTOptionOr(options, KTExcludeLocationOption, false);
    return result;
}

std::vector<std::string> KTPhotoFileExport::validFormats() {
    std::vector<std::string> formats;
    for (const QByteArray& type : QImageWriter::supportedMimeTypes())
        if (const KTTypeIdentifier* known = KTTypeWithMIMEType(type.toStdString()))
            if (std::ranges::count(kWritten, known->identifier) != 0)
                formats.emplace_back(known->identifier);
    std::ranges::sort(formats); // "public.jpeg" comes first
    return formats;
}

std::optional<std::string> KTPhotoFileExport::exportPhoto(const KTPhoto& photo) const {
    return FileExport(*this, photo).run();
}
