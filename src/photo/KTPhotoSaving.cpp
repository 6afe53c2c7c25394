#include "photo/KTPhotoWriteRequest.h"

#include "metadata/KTMetadataFieldManager.h"
#include "photo/KTNewSidecar.h"
#include "photo/KTPhotoChangeTracker.h"
#include "photo/KTSameValue.h"
#include "photo/KTWrittenValues.h"
#include "platform/common/KTCallContext.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/desktop/KTBackup.h"

namespace fs = std::filesystem;

namespace {

/// Another program may write to the file while its new version is being made; then the version is made anew.
constexpr int kMaximumAttempts = 5;

} // namespace

void KTPhoto::log(const fs::path& file, const char* description, const std::optional<std::string>& failure,
                  const std::optional<std::string>& warning) {
    KTPhotoOperation operation;
    operation.url = file;
    operation.operationDescription = KTLocalizedString(description);
    operation.operationDidSucceed = !failure;
    operation.failureReason = failure ? 1 : 0;
    operation.failureDescription = failure;
    if (warning)
        addWarning(operation, *warning);
    addPhotoOperation(operation);
}

void KTPhoto::saveWithBackupToFolder(const std::optional<fs::path>& backupFolder,
                                     const KTPhotoSaving& saving) {
    // The two date stamps are edits like any other; where nobody records edits, this save does.
    std::optional<KTPhotoChangeTracker> ownTracker;
    if (trackers == 0)
        ownTracker.emplace(*this);
    saveToIPhotoOriginalIfNecessaryWithBackupToFolder(backupFolder);
    const KTCallMark untracked(this);
    if (!saveFiles(backupFolder, saving))
        return;
    saveLibraryItem();
    checkForUnsavedChanges();
}

void KTPhoto::stampWithDate(std::string_view key, const KTValue& date) {
    KTPerformOnMainThreadAndWait([&] { setValueForKey(key, date); });
}

/// False when a failure stops the whole save.
bool KTPhoto::saveFiles(const std::optional<fs::path>& backupFolder, const KTPhotoSaving& saving) {
    if (!unsavedFile() && !unsavedSidecar())
        return true;
    // A date that nobody had edited is put back as it was shown. As an edit it might count as another one:
    // what has no zone reads otherwise since the assumed zone changed.
    const auto wayBack = [this](std::string_view key) -> std::function<void()> {
        const KTValue before = valueForKey(key);
        const KTMetadataField* field =
            KTMetadataFieldManager::sharedMetadataFieldManager().metadataFieldForKey(key);
        std::lock_guard guard(mutex);
        if (std::ranges::any_of(sources,
                                [&](const auto& each) { return hasPendingKeys(*field, each.changes); }))
            return [=, this] { stampWithDate(key, before); };
        return [=, this] {
            KTPerformOnMainThreadAndWait([&] {
                changeRecords([&] {
                    std::lock_guard held(mutex);
                    for (KTMetadataSource& each : sources)
                        for (const KTTagKey& stamped : recordedEdits[field].keys)
                            each.changes.remove(stamped);
                });
                showAsRead(*field, before);
                checkForUnsavedChanges();
            });
        };
    };
    const auto unstampMetadata = wayBack("metadataDate"), unstampModification = wayBack("modifyDate");
    const auto fields = fieldsToWrite();
    stampWithDate("metadataDate", KTInstantNow());
    // Counts from the date that will be in the file.
    const auto original = dates[KTPhotoDateFamily::Original].storeShift(0);

    std::vector<WriteResult> results;
    if (unsavedFile())
        results.push_back(saveFile(KTMetadataSource::Image, backupFolder, saving));
    const bool isStopped = !results.empty() && results.back() == WriteResult::Stopped;
    if (!isStopped && unsavedSidecar())
        results.push_back(saveFile(KTMetadataSource::Sidecar, backupFolder, saving));
    if (std::ranges::find(results, WriteResult::Written) != results.end()) {
        followFiles(fields);
    } else {
        // Nothing was stamped on disk, so nothing may look stamped.
        unstampMetadata();
        unstampModification();
        dates[KTPhotoDateFamily::Original].restoreShift(original);
    }
    return std::ranges::find(results, WriteResult::Stopped) == results.end();
}

KTPhoto::WriteResult KTPhoto::saveFile(KTMetadataSource::Kind kind,
                                       const std::optional<fs::path>& backupFolder,
                                       const KTPhotoSaving& saving) {
    const bool isImage = kind == KTMetadataSource::Image;
    const fs::path file = isImage ? imageURL : xmpURL();
    fs::path backup;
    for (int attempt = 1; attempt <= kMaximumAttempts; ++attempt) {
        const Refresh refresh = refreshIfChanged(kind);
        if (refresh.failure) {
            log(file, isImage ? "Read from primary file URL." : "Read from sidecar file URL.",
                refresh.failure);
            return WriteResult::Failed;
        }
        if (isImage) {
            if (!backUpImage(backupFolder, backup))
                return WriteResult::Stopped;
            stampWithDate("modifyDate", KTInstantNow());
        }
        WriteRequest request = isImage ? imageRequest() : sidecarRequest();
        request.warning = refresh.warning;
        request.backupFolder = backupFolder;
        request.saving = &saving;
        const WriteResult result = writeAndReplace(request);
        if (result != WriteResult::ChangedMeanwhile)
            return result;
    }
    log(file, isImage ? "Overwrite original file" : "Overwrite original xmp file",
        KTStringWithFormat(KTLocalizedString("“%@” keeps being changed by another program."),
                           {KTValidUTF8(file.string())}));
    return WriteResult::Failed;
}

/// Copies the image to @p backup, in place of an earlier copy that the same save has made there.
bool KTPhoto::backUpImage(const BackupFolder& folder, fs::path& backup) {
    if (!folder)
        return true;
    std::error_code error;
    if (!backup.empty())
        fs::remove(backup, error);
    const KTBackup made = KTBackup::of(imageURL, *folder);
    backup = made.file;
    if (made.failure)
        log(imageURL, "Copy original image to backup folder", made.failure);
    return !made.failure;
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
            {},
            nullptr};
}

KTPhoto::WriteRequest KTPhoto::sidecarRequest() const {
    const KTMetadataSource image = source(KTMetadataSource::Image),
                           sidecar = source(KTMetadataSource::Sidecar);
    const bool exists = sidecar.stamp.has_value();
    KTTagDictionary written = sidecar.changes;
    if (!exists)
        for (const auto& [key, value] : valuesOfNewSidecar(
                 image, sidecar.properties, [this](const auto& field) { return valueForKey(field.key()); }))
            written.set(key, value);
    return {KTMetadataSource::Sidecar,
            xmpURL(),
            exists ? xmpURL() : imageURL,
            sidecar.changes,
            adaptedToLanguageAlternatives(written, exists ? *sidecar.saved : *image.saved),
            sidecar.stamp,
            {},
            {},
            nullptr};
}

/// Writing IPTC renews its digest, which says that IPTC and XMP agree. A field that the user did not touch
/// and of which they tell different things would read from XMP ever after; so both get the value that stands
/// in the photo now. Where IPTC tells nothing, nothing is lost, and what XMP tells is not deleted.
KTTagDictionary KTPhoto::valuesOfDivergentIPTCFields(const KTMetadataSource& image) const {
    KTTagDictionary result;
    const bool diverges = image.properties.hasIPTCChecksum && !image.properties.iptcChecksumDoesMatch;
    const bool writesIPTC = std::ranges::any_of(
        image.changes, [](const auto& change) { return std::string_view(change.key).starts_with("IPTC"); });
    if (!diverges || !writesIPTC)
        return result;
    KTMetadataSource renewed = image;
    renewed.properties.iptcChecksumDoesMatch = true;
    std::lock_guard guard(mutex);
    for (const auto& field : KTMetadataFieldManager::sharedMetadataFieldManager().metadataFields()) {
        const KTValue value = image.valueForField(*field);
        const bool wouldChange =
            !KTIsSameValue(value, {}) && !KTIsSameValue(value, renewed.valueForField(*field));
        if (wouldChange && !field->readonly() && !hasPendingKeys(*field, image.changes))
            image.record(*field, value, result);
    }
    return result;
}
