#include "photo/KTPhoto.h"

#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTLocalizedString.h"

namespace {

/// Filled from the file itself, not from tags.
bool isFileProperty(std::string_view key) {
    return key == "filename" || key == "fileSize" || key == "creationDate";
}

} // namespace

std::shared_ptr<KTPhoto> KTPhoto::initWithFile(const std::filesystem::path& file, KTExifTool& tool) {
    std::shared_ptr<KTPhoto> photo(new KTPhoto(file));
    photo->readSources(tool);
    photo->fillProperties();
    return photo;
}

void KTPhoto::readSources(KTExifTool& tool) {
    auto read = [&](KTMetadataSource& source, const std::filesystem::path& file, const char* description) {
        KTPhotoOperation operation = source.read(tool, file);
        operation.operationDescription = KTLocalizedString(description);
        valid = valid || operation.operationDidSucceed;
        operations.push_back(std::move(operation));
    };
    read(image, imageURL, "Read metadata from image file");
    if (hasXMPSidecar())
        read(sidecar, xmpURL(), "Read metadata from xmp sidecar");
    else
        sidecar.properties.hasXMPBlock = true;
    // Whatever the read found: fields that write EXIF tags always write them into the image file.
    image.properties.hasEXIFBlock = true;
}

void KTPhoto::fillProperties() {
    std::error_code error;
    if (auto size = std::filesystem::file_size(imageURL, error); !error)
        values.set("fileSize", static_cast<std::int64_t>(size));
    values.set("filename", imageURL.filename().string());
    const bool sidecarWins = targets().xmpSidecar && hasXMPSidecar();
    for (const auto& field : KTMetadataFieldManager::sharedMetadataFieldManager().metadataFields()) {
        if (isFileProperty(field->key()))
            continue;
        KTValue value = sidecarWins ? sidecar.valueForField(*field) : KTValue();
        assign(field->key(), value.isSomething() ? value : image.valueForField(*field));
    }
}
