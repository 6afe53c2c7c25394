#include "photo/KTPhotoWriteRequest.h"

#include "metadata/KTMetadataFieldManager.h"
#include "photo/KTPhotoChangeTracker.h"
#include "photo/KTWrittenValues.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/concurrency/KTCallContext.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/desktop/KTFileOperations.h"

namespace fs = std::filesystem;

namespace {

/// Another program may write to the file while its new version is being made; then the version is made anew.
constexpr int kMaximumAttempts = 5;

} // namespace

void KTPhoto::log(const fs::path& file, const char* description, const std::optional<std::string>& failure) {
    KTPhotoOperation operation;
    operation.url = file;
    operation.operationDescription = KTLocalizedString(description);
    operation.operationDidSucceed = !failure;
    operation.failureReason = failure ? 1 : 0;
    operation.failureDescription = failure;
    addPhotoOperation(operation);
}

void KTPhoto::saveWithBackupToFolder(const std::optional<fs::path>& backupFolder) {
    // The two date stamps are edits like any other; where nobody records edits, this save does.
    std::optional<KTPhotoChangeTracker> ownTracker;
    if (trackers == 0)
        ownTracker.emplace(*this);
    saveToIPhotoOriginalIfNecessaryWithBackupToFolder(backupFolder);
    const KTCallMark untracked(this);
    if (!saveFiles(backupFolder))
        return;
    saveLibraryItem();
    checkForUnsavedChanges();
}

void KTPhoto::stampWithDate(std::string_view key, const KTValue& date) {
    KTPerformOnMainThreadAndWait([&] { setValueForKey(key, date); });
}

/// False when a failure stops the whole save.
bool KTPhoto::saveFiles(const std::optional<fs::path>& backupFolder) {
    if (!unsavedFile() && !unsavedSidecar())
        return true;
    const KTValue metadataDate = valueForKey("metadataDate"), modifyDate = valueForKey("modifyDate");
    const double shift = readingOf(KTPhotoDateFamily::Original).shift;
    stampWithDate("metadataDate", KTInstantNow());
    dates[KTPhotoDateFamily::Original].storeShift(0); // counts from the date that will be in the file

    std::vector<WriteResult> results;
    if (unsavedFile())
        results.push_back(saveFile(KTMetadataSource::Image, backupFolder));
    const bool isStopped = !results.empty() && results.back() == WriteResult::Stopped;
    if (!isStopped && unsavedSidecar())
        results.push_back(saveFile(KTMetadataSource::Sidecar, backupFolder));
    if (std::ranges::find(results, WriteResult::Written) == results.end()) {
        // Nothing was stamped on disk, so nothing may look stamped.
        stampWithDate("metadataDate", metadataDate);
        stampWithDate("modifyDate", modifyDate);
        dates[KTPhotoDateFamily::Original].storeShift(shift);
    }
    return std::ranges::find(results, WriteResult::Stopped) == results.end();
}

KTPhoto::WriteResult KTPhoto::saveFile(KTMetadataSource::Kind kind,
                                       const std::optional<fs::path>& backupFolder) {
    const bool isImage = kind == KTMetadataSource::Image;
    for (int attempt = 1; attempt <= kMaximumAttempts; ++attempt) {
        const auto warning = refreshIfChanged(kind);
        if (isImage) {
            if (!backUpImage(backupFolder))
                return WriteResult::Stopped;
            stampWithDate("modifyDate", KTInstantNow());
        }
        WriteRequest request = isImage ? imageRequest() : sidecarRequest();
        request.warning = warning;
        request.backupFolder = backupFolder;
        const WriteResult result = writeAndReplace(request);
        if (result != WriteResult::ChangedMeanwhile)
            return result;
    }
    const fs::path file = isImage ? imageURL : xmpURL();
    log(file, isImage ? "Overwrite original file" : "Overwrite original xmp file",
        KTStringWithFormat(KTLocalizedString("“%@” keeps being changed by another program."),
                           {KTValidUTF8(file.string())}));
    return WriteResult::Failed;
}

bool KTPhoto::backUpImage(const std::optional<fs::path>& folder) {
    if (!folder)
        return true;
    const auto failure = KTCopyItem(imageURL, *folder / KTBackupName(*folder, imageURL.filename()));
    if (failure)
        log(imageURL, "Copy original image to backup folder", failure);
    return !failure;
}

KTPhoto::WriteRequest KTPhoto::imageRequest() const {
    const KTMetadataSource image = source(KTMetadataSource::Image);
    KTTagDictionary written = valuesOfDivergentIPTCFields(image);
    for (const auto& [key, value] : image.changes)
        written.set(key, value);
    return {KTMetadataSource::Image,
            imageURL,
            imageURL,
            image.changes,
            adaptedToLanguageAlternatives(written, *image.saved),
            image.stamp,
            {},
            {}};
}

KTPhoto::WriteRequest KTPhoto::sidecarRequest() const {
    const KTMetadataSource sidecar = source(KTMetadataSource::Sidecar);
    const bool exists = sidecar.stamp.has_value();
    KTTagDictionary written = exists ? KTTagDictionary() : seedsOfNewSidecar(sidecar);
    for (const auto& [key, value] : sidecar.changes)
        written.set(key, value);
    return {KTMetadataSource::Sidecar,
            xmpURL(),
            exists ? xmpURL() : imageURL,
            sidecar.changes,
            adaptedToLanguageAlternatives(written, *sidecar.saved),
            sidecar.stamp,
            {},
            {}};
}

/// A new sidecar receives every value that the photo has, not only the edited ones.
KTTagDictionary KTPhoto::seedsOfNewSidecar(const KTMetadataSource& sidecar) const {
    KTTagDictionary seeds;
    for (const auto& field : KTMetadataFieldManager::sharedMetadataFieldManager().metadataFields())
        if (!field->readonly())
            field->modifyExifToolChangesDictionary(seeds, valueForKey(field->key()), {}, sidecar.properties);
    KTTagDictionary result;
    for (const auto& [key, value] : seeds)
        if (!value.isNull())
            result.set(key, value);
    return result;
}

/// Writing IPTC renews its digest, which says that IPTC and XMP agree. Where they do not, the fields that the
/// user did not touch would read from XMP ever after; so both get the value that stands in the photo now.
KTTagDictionary KTPhoto::valuesOfDivergentIPTCFields(const KTMetadataSource& image) const {
    KTTagDictionary result;
    const bool diverges = image.properties.hasIPTCChecksum && !image.properties.iptcChecksumDoesMatch;
    const bool writesIPTC = std::ranges::any_of(
        image.changes, [](const auto& change) { return std::string_view(change.key).starts_with("IPTC"); });
    if (!diverges || !writesIPTC)
        return result;
    std::lock_guard guard(mutex);
    for (const auto& field : KTMetadataFieldManager::sharedMetadataFieldManager().metadataFields())
        if (!field->readonly() && !hasPendingKeys(*field, image.changes))
            image.record(*field, image.valueForField(*field), result);
    return result;
}
