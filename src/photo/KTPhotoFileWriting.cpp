#include "photo/KTPhotoWriteRequest.h"

#include "photo/KTPhotoSidecar.h"
#include "photo/KTWrittenValues.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/desktop/KTBackup.h"
#include "platform/desktop/KTFileCoordinator.h"
#include "platform/desktop/KTFileDates.h"
#include "platform/desktop/KTItemReplacement.h"
#include "platform/desktop/KTWriteNote.h"

namespace fs = std::filesystem;

namespace {

/// Makes the new version of a file in @p temporary.
KTPhotoOperation write(const KTTagDictionary& values, const fs::path& temporary, const fs::path& contentFrom,
                       bool editsSidecar) {
    KTExifTool& exifTool = KTExifTool::sharedExifTool();
    // An existing sidecar is edited, not rebuilt: other programs keep things there that we do not know.
    return editsSidecar ? exifTool.setValuesForKeysWithDictionary(values, temporary)
                        : exifTool.setValuesForKeysWithDictionary(values, temporary, contentFrom);
}

/// Reads the new version back into @p written: it proves it and tells what it holds now. Returns the values
/// of
/// @p given that it does not hold.
KTTagDictionary prove(KTPhotoOperation& operation, KTMetadataSource& written, const fs::path& temporary,
                      const KTTagDictionary& given, const KTPhotoSaving& saving) {
    if (!operation.operationDidSucceed)
        return {};
    if (saving.didWrite)
        saving.didWrite();
    KTExifTool* const own = saving.proofTool ? saving.proofTool() : nullptr;
    std::vector<KTTagDictionary::Entry> tags;
    const KTPhotoOperation proof =
        written.read(own != nullptr ? *own : KTExifTool::sharedExifTool(), temporary, &tags);
    if (saving.didProve)
        saving.didProve();
    if (!proof.operationDidSucceed) {
        operation.operationDidSucceed = false;
        operation.failureReason = 1;
        operation.failureDescription = KTStringWithFormat(
            KTLocalizedString("The new file could not be read back: %@"), {proof.resultDescription()});
        return {};
    }
    KTTagDictionary notWritten = valuesNotWritten(given, tags);
    if (!notWritten.empty())
        addWarning(operation, valuesNotWrittenText(notWritten));
    return notWritten;
}

/// The stamp of the file that @p ofNew has become; @p ofNew itself, which no file has then, where another
/// program was faster.
std::optional<KTFileStamp> stampAfterWrite(const fs::path& target, const std::optional<KTFileStamp>& ofNew) {
    const auto now = KTFileStamp::of(target);
    return now && ofNew && now->file == ofNew->file && now->size == ofNew->size ? now : ofNew;
}

} // namespace

KTPhoto::WriteResult KTPhoto::writeAndReplace(const WriteRequest& request) {
    const bool isSidecar = request.kind == KTMetadataSource::Sidecar;
    const KTWriteNote note(request.target);
    KTItemReplacement replacement(request.target);
    if (replacement.error()) {
        log(request.target, "Create temporary directory", *replacement.error());
        return WriteResult::Stopped;
    }
    const fs::path& temporary = replacement.temporaryItem();
    const bool editsSidecar = isSidecar && request.expected.has_value();
    if (isSidecar && !beginSidecar(request, temporary))
        return WriteResult::Stopped;

    KTPhotoOperation operation = write(request.written, temporary, request.contentFrom, editsSidecar);
    operation.url = request.target;
    KTMetadataSource written(request.kind);
    const KTTagDictionary notWritten = prove(operation, written, temporary, request.written, *request.saving);
    KTTagDictionary tags = *written.saved; // in its place, not in that of the temporary item
    tags.set("File:Directory", source(KTMetadataSource::Image).saved->valueForKey("File:Directory"));
    written.saved = std::make_shared<const KTTagDictionary>(std::move(tags));
    if (request.warning)
        addWarning(operation, *request.warning);
    if (!operation.operationDidSucceed) {
        addPhotoOperation(operation);
        return WriteResult::Failed;
    }

    const auto modified = KTModificationDate(request.target);
    const auto stampOfNew = KTFileStamp::of(temporary);
    const auto failure = KTFileCoordinator(this).coordinateWritingItemAtURL(request.target, [&] {
        return KTReplaceItem(request.target, temporary,
                             [&] { return KTFileStamp::of(request.target) == request.expected; });
    });
    const auto stampNow = KTFileStamp::of(request.target);
    const bool isReplaced = stampNow && stampOfNew && stampNow->file == stampOfNew->file;
    if (failure && !isReplaced && stampNow != request.expected)
        return WriteResult::ChangedMeanwhile;
    addPhotoOperation(operation);
    if (failure) { // also one that may not be on disk yet: the next save looks at the file anew
        log(request.target, isSidecar ? "Overwrite original xmp file" : "Overwrite original file", failure);
        return WriteResult::Failed;
    }
    if (!isSidecar)
        keepFileDates(modified);
    written.stamp = stampAfterWrite(request.target, stampOfNew);
    finishWrite(request, written, notWritten);
    return WriteResult::Written;
}

/// Prepares the write of a sidecar; false when it cannot begin.
bool KTPhoto::beginSidecar(const WriteRequest& request, const fs::path& temporary) {
    KTFileCoordinator::addFilePresenter(*photoSidecar);
    if (request.backupFolder && request.expected) // a failure of this copy does not keep the save
        static_cast<void>(KTBackup::of(request.target, *request.backupFolder));
    std::error_code error;
    if (!fs::exists(request.contentFrom, error)) {
        log(request.target, "Create temporary item url",
            KTLocalizedString("Failed to create a legitimate source URL."));
        return false;
    }
    if (!request.expected)
        return true;
    const auto failure = KTCopyItem(request.target, temporary);
    if (failure)
        log(request.target, "Create temporary item url", failure);
    return !failure;
}

/// Gives the new image file the dates that it should have.
void KTPhoto::keepFileDates(const std::optional<KTFileDate>& modified) {
    const KTValue creationDate = valueForKey("creationDate");
    if (creationDate.date()) {
        const auto date = KTFileDateFromInstant(*creationDate.date());
        const KTCreationDateOutcome outcome =
            date ? KTSetCreationDate(imageURL, *date)
                 : KTCreationDateOutcome{KTCreationDateOutcome::Failed,
                                         KTLocalizedString("No file can have a creation date in that year.")};
        const bool isFailure = outcome.kind == KTCreationDateOutcome::Failed;
        const bool isWarning = outcome.kind == KTCreationDateOutcome::NoPlace;
        log(imageURL, "Set the creation date", isFailure ? std::optional(outcome.text) : std::nullopt,
            isWarning ? std::optional(outcome.text) : std::nullopt);
        if (!isFailure) {
            std::lock_guard guard(mutex);
            knownCreationDate = *creationDate.date();
        }
    }
    if (KTUserDefaults::standardUserDefaults().boolForKey("defaultShouldPreserveModificationDate"))
        log(imageURL, "Preserve modification date",
            modified ? KTSetModificationDate(imageURL, *modified) : std::nullopt,
            modified ? std::nullopt
                     : std::optional(KTLocalizedString("The modification date could not be read.")));
}

/// Brings the record up to date with the file that was written. What the user has edited meanwhile, and what
/// the file does not hold as it was given, stays pending.
void KTPhoto::finishWrite(const WriteRequest& request, const KTMetadataSource& written,
                          const KTTagDictionary& notWritten) {
    KTPerformOnMainThreadAndWait([&] {
        const KTMetadataSource before = source(request.kind);
        KTTagDictionary pending;
        for (const auto& [key, value] : request.changes)
            if (notWritten.find(key))
                pending.set(key, value);
        adopt(written, pending, [&](const KTTagKey& key) {
            return before.changes.valueForKey(key) != request.changes.valueForKey(key);
        });
        std::error_code error;
        const auto size = fs::file_size(imageURL, error);
        if (request.kind == KTMetadataSource::Image && !error)
            setValueForKey("fileSize", static_cast<std::int64_t>(size));
    });
}
