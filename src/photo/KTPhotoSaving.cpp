#include "photo/KTPhoto.h"

#include "metadata/KTMetadataFieldManager.h"
#include "photo/KTWrittenValues.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/desktop/KTFileDates.h"
#include "platform/desktop/KTItemReplacement.h"

namespace fs = std::filesystem;

void KTPhoto::log(const fs::path& file, const char* description, const std::optional<std::string>& failure) {
    KTPhotoOperation operation;
    operation.url = file;
    operation.operationDescription = KTLocalizedString(description);
    operation.operationDidSucceed = !failure;
    operation.failureReason = failure ? 1 : 0;
    operation.failureDescription = failure;
    operations.push_back(std::move(operation));
}

void KTPhoto::saveWithBackupToFolder(const std::optional<fs::path>& backupFolder) {
    if (!hasUnsavedChanges())
        return;
    const KTSaveTargets where = targets();
    const bool writesImage = where.imageFile && !image.changes.empty();
    const KTValue now = KTInstantNow();
    const KTValue metadataDate = valueForKey("metadataDate"), modifyDate = valueForKey("modifyDate");
    setValueForKey("metadataDate", now);
    bool imageWritten = false;
    if (writesImage) {
        setValueForKey("modifyDate", now);
        recordDivergentIPTCFields();
        imageWritten = saveImage(backupFolder);
    }
    const bool mayGoOn = imageWritten || !writesImage;
    const bool sidecarWritten =
        mayGoOn && where.xmpSidecar && !sidecar.changes.empty() && saveSidecar(backupFolder);
    if (!imageWritten && !sidecarWritten) { // nothing was stamped on disk, so nothing may look stamped
        setValueForKey("metadataDate", metadataDate);
        if (writesImage)
            setValueForKey("modifyDate", modifyDate);
    }
}

bool KTPhoto::saveImage(const std::optional<fs::path>& backupFolder) {
    if (backupFolder) {
        auto failure = KTCopyItem(imageURL, *backupFolder / KTBackupName(*backupFolder, imageURL.filename()));
        if (failure) {
            log(imageURL, "Copy original image to backup folder", failure);
            return false;
        }
    }
    const auto modified = KTModificationDate(imageURL);
    if (!writeAndReplace(image, image.changes, imageURL, imageURL))
        return false;
    if (KTUserDefaults::standardUserDefaults().boolForKey("defaultShouldPreserveModificationDate"))
        log(imageURL, "Preserve modification date",
            modified ? KTSetModificationDate(imageURL, *modified) : std::nullopt);
    image.properties.hasEXIFBlock = true;
    return true;
}

bool KTPhoto::saveSidecar(const std::optional<fs::path>& backupFolder) {
    if (!hasXMPSidecar()) {
        KTTagDictionary content = seedsOfNewSidecar();
        for (const auto& [key, value] : sidecar.changes)
            content.set(key, value);
        return writeAndReplace(sidecar, content, xmpURL(), imageURL);
    }
    if (backupFolder) // a failure of this copy does not keep the save
        static_cast<void>(
            KTCopyItem(xmpURL(), *backupFolder / KTBackupName(*backupFolder, xmpURL().filename())));
    return writeAndReplace(sidecar, sidecar.changes, xmpURL(), xmpURL());
}

/// A new sidecar receives every value that the photo has, not only the edited ones.
KTTagDictionary KTPhoto::seedsOfNewSidecar() const {
    KTTagDictionary seeds;
    for (const auto& field : KTMetadataFieldManager::sharedMetadataFieldManager().metadataFields())
        if (!field->readonly())
            field->modifyExifToolChangesDictionary(seeds, valueForKey(field->key()), {}, sidecar.properties);
    std::vector<std::string> deletions;
    for (const auto& [key, value] : seeds)
        if (value.isNull())
            deletions.push_back(key.text());
    for (const std::string& key : deletions)
        seeds.remove(key);
    return seeds;
}

/// Writing IPTC renews its digest, which says that IPTC and XMP agree. Where they do not, the fields that the
/// user did not touch would read from XMP ever after; so both get the value that stands in the photo now.
void KTPhoto::recordDivergentIPTCFields() {
    const bool diverges = image.properties.hasIPTCChecksum && !image.properties.iptcChecksumDoesMatch;
    const bool writesIPTC = std::ranges::any_of(
        image.changes, [](const auto& change) { return std::string_view(change.key).starts_with("IPTC"); });
    if (!diverges || !writesIPTC)
        return;
    for (const auto& field : KTMetadataFieldManager::sharedMetadataFieldManager().metadataFields())
        if (!field->readonly() && !recordedKeys.contains(field->key()))
            image.record(*field, image.valueForField(*field));
}

bool KTPhoto::writeAndReplace(KTMetadataSource& source, const KTTagDictionary& changes,
                              const fs::path& target, const fs::path& contentFrom) {
    KTItemReplacement replacement(target);
    if (replacement.error()) {
        log(target, "Create temporary directory", *replacement.error());
        return false;
    }
    KTExifTool& exifTool = KTExifTool::sharedExifTool();
    const fs::path& temporary = replacement.temporaryItem();
    const KTTagDictionary written = adaptedToLanguageAlternatives(changes, source.saved);
    KTPhotoOperation operation;
    if (target == contentFrom && KTEqualIgnoringCase(target.extension().string(), ".xmp")) {
        // An existing sidecar is edited, not rebuilt: other programs keep things there that we do not know.
        if (auto failure = KTCopyItem(target, temporary)) {
            log(target, "Create temporary item url", failure);
            return false;
        }
        operation = exifTool.setValuesForKeysWithDictionary(written, temporary);
    } else {
        operation = exifTool.setValuesForKeysWithDictionary(written, temporary, contentFrom);
    }
    operation.url = target;

    // One read proves the new file before it takes the old one's place, and tells what it holds now.
    KTMetadataSource asWritten;
    std::vector<KTTagDictionary::Entry> tags;
    KTTagDictionary pending;
    if (operation.operationDidSucceed) {
        KTPhotoOperation proof = asWritten.read(exifTool, temporary, &tags);
        if (!proof.operationDidSucceed) {
            operation.operationDidSucceed = false;
            operation.failureReason = 1;
            operation.failureDescription = KTStringWithFormat(
                KTLocalizedString("The new file could not be read back: %@"), {proof.resultDescription()});
        } else {
            pending = valuesNotWritten(written, tags);
            if (!pending.empty())
                addWarning(operation, pending);
        }
    }
    const bool isWritten = operation.operationDidSucceed;
    operations.push_back(std::move(operation));
    if (!isWritten)
        return false;
    if (auto failure = KTReplaceItem(target, temporary)) {
        log(target, &source == &image ? "Overwrite original file" : "Overwrite original xmp file", failure);
        return false;
    }
    source.saved = std::move(asWritten.saved);
    source.properties = asWritten.properties;
    source.changes = std::move(pending);
    return true;
}
