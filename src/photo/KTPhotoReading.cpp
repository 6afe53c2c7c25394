#include "photo/KTPhoto.h"

#include "metadata/KTMetadataFieldManager.h"
#include "photo/KTPhotoPropertyTable.h"
#include "photo/KTPhotoSidecar.h"
#include "photo/KTiPhotoTool.h"
#include "platform/common/KTCallContext.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/desktop/KTFileCoordinator.h"
#include "platform/desktop/KTFileDates.h"
#include "platform/desktop/KTMediaObject.h"

namespace {

/// Kept from the file, whatever a photo library says: a library's events, faces and keywords are not those
/// of the picture.
bool isKeptFromFile(std::string_view key) {
    return key == "event" || key == "people" || key == "keywords";
}

KTPhotoOperation failedAccess(const std::filesystem::path& file, const char* description,
                              std::string failure) {
    KTPhotoOperation operation;
    operation.url = file;
    operation.operationDescription = KTLocalizedString(description);
    operation.failureDescription = std::move(failure);
    return operation;
}

/// Tells file coordination of a sidecar's presenter for a while.
class PresentedFile {
public:
    explicit PresentedFile(KTFilePresenter& filePresenter) : presenter(filePresenter) {
        KTFileCoordinator::addFilePresenter(presenter);
    }
    ~PresentedFile() { KTFileCoordinator::removeFilePresenter(presenter); }
    PresentedFile(const PresentedFile&) = delete;
    PresentedFile& operator=(const PresentedFile&) = delete;

private:
    KTFilePresenter& presenter;
};

} // namespace

std::shared_ptr<KTPhoto> KTPhoto::initWithFile(const std::filesystem::path& file,
                                               const std::filesystem::path&,
                                               std::shared_ptr<const KTMediaObject> mediaObject,
                                               const KTPhotoOpening& opening) {
    std::shared_ptr<KTPhoto> photo(new KTPhoto(file, std::move(mediaObject)));
    const KTCallMark untracked(photo.get());
    if (!photo->readSources(opening)) {
        if (opening.log != nullptr)
            *opening.log = photo->photoOperations();
        return nullptr;
    }
    photo->readLibraryItem();
    photo->fillProperties();
    return photo;
}

bool KTPhoto::shouldUseIPhotoProperties() const {
    return libraryItem && libraryItem->mediaSourceIdentifier == "com.apple.iPhoto";
}

bool KTPhoto::readSources(const KTPhotoOpening& opening) {
    KTExifTool& tool = opening.exifTool != nullptr ? *opening.exifTool : KTExifTool::sharedExifTool();
    const bool isRaw = KTEqualIgnoringCase(imageURL.extension().string(), ".crw");
    if (opening.createsSidecarOfRawFile && isRaw && !hasXMPSidecar())
        createSidecarOfRawFile(tool);
    if (!readFile(KTMetadataSource::Image, tool))
        return false;
    if (hasXMPSidecar()) {
        const PresentedFile presented(*photoSidecar);
        if (!readFile(KTMetadataSource::Sidecar, tool))
            return false;
    }
    // Whatever the read found: fields that write EXIF tags always write them into the image file.
    sources[KTMetadataSource::Image].properties.hasEXIFBlock = true;
    return true;
}

void KTPhoto::createSidecarOfRawFile(KTExifTool& tool) {
    const PresentedFile presented(*photoSidecar);
    KTPhotoOperation operation;
    auto failure = KTFileCoordinator(this).coordinateReadingItemAtURL(imageURL, [&](const auto& url) {
        operation = tool.setValuesForKeysWithDictionary({}, xmpURL(), url);
    });
    if (!failure) // else the read that follows says so
        addPhotoOperation(operation);
}

/// Reads one file into its source; false when it cannot be opened.
bool KTPhoto::readFile(KTMetadataSource::Kind kind, KTExifTool& tool) {
    const bool isImage = kind == KTMetadataSource::Image;
    const std::filesystem::path file = isImage ? imageURL : xmpURL();
    KTPhotoOperation operation;
    auto failure = KTFileCoordinator(this).coordinateReadingItemAtURL(file, [&](const auto& url) {
        if (isImage)
            readFileAttributes();
        operation = sources[kind].read(tool, url);
    });
    if (failure) {
        addPhotoOperation(failedAccess(
            file, isImage ? "Read from primary file URL." : "Read from sidecar file URL.", *failure));
        return false;
    }
    operation.operationDescription =
        KTLocalizedString(isImage ? "Read metadata from image file" : "Read metadata from xmp sidecar");
    addPhotoOperation(operation);
    valid = valid || operation.operationDidSucceed;
    return true;
}

void KTPhoto::readFileAttributes() {
    auto place = [](std::string_view key) { return KTPhotoPropertyTable::propertyForKey(key)->place; };
    std::error_code error;
    if (const auto size = std::filesystem::file_size(imageURL, error); !error)
        values[place("fileSize")] = static_cast<std::int64_t>(size);
    if (const auto created = KTCreationDate(imageURL))
        knownCreationDate = std::chrono::floor<std::chrono::milliseconds>(*created);
    values[place("creationDate")] = knownCreationDate;
}

void KTPhoto::readLibraryItem() {
    if (libraryItem)
        sources[KTMetadataSource::Library].saved = std::make_shared<const KTTagDictionary>(
            KTiPhotoTool::sharediPhotoTool().normalizeMediaObjectAttributes(libraryItem->attributes));
}

void KTPhoto::fillProperties() {
    const KTSaveTargets where = targets();
    for (const auto& field : KTMetadataFieldManager::sharedMetadataFieldManager().metadataFields())
        if (!KTPhotoPropertyTable::isFromFile(field->key()))
            setValueForKey(field->key(), valueAsRead(*field, sources, where));
}

/// The one answer to what a photo shows of its sources: the library's value, else that of a sidecar that a
/// save writes to, else the image's.
KTValue KTPhoto::valueAsRead(const KTMetadataField& field, const Sources& from,
                             const KTSaveTargets& where) const {
    if (field.key() == "creationDate")
        return knownCreationDate;
    if (shouldUseMediaObjectProperties() && !isKeptFromFile(field.key()))
        if (KTValue value = from[KTMetadataSource::Library].valueForField(field); value.isSomething())
            return value;
    if (where.xmpSidecar && where.hasSidecar)
        if (KTValue value = from[KTMetadataSource::Sidecar].valueForField(field); value.isSomething())
            return value;
    return from[KTMetadataSource::Image].valueForField(field);
}

KTSaveTargets KTPhoto::targets() const {
    const bool isKnown = KTCallMark::count(&values) > 0 || KTCallMark::count(&sidecarOfGroup) > 0;
    const bool hasSidecar = isKnown ? sidecarOfGroup.load() : hasXMPSidecar();
    return saveTargets(
        imageURL, KTUserDefaults::standardUserDefaults().integerForKey("defaultXMPSidecarStyle"), hasSidecar);
}
