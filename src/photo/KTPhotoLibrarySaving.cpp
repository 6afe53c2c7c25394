#include "photo/KTPhoto.h"

#include "photo/KTPhotoChangeTracker.h"
#include "photo/KTSameValue.h"
#include "photo/KTiPhotoTool.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/desktop/KTMediaObject.h"

void KTPhoto::saveToIPhotoOriginalIfNecessaryWithBackupToFolder(
    const std::optional<std::filesystem::path>& backupFolder) {
    if (!shouldUseMediaObjectProperties())
        return;
    const auto record = source(KTMetadataSource::Library).saved;
    const KTValue original = record->valueForKey("xml:originalURL"), shown = record->valueForKey("xml:URL");
    const KTValue::Dictionary modified = modifiedKeyValues();
    if (!original.text() || !shown.text() || original == shown || modified.empty())
        return;
    const auto master = initWithFile(*original.text());
    if (!master || !master->isValid())
        return;
    const KTPhotoChangeTracker tracker(*master);
    for (const auto& [key, value] : modified)
        if (!KTIsSameValue(master->savedPropertyWithKey(key), value))
            master->setValueForKey(key, value);
    master->saveWithBackupToFolder(backupFolder);
    for (const KTPhotoOperation& operation : master->photoOperations())
        addPhotoOperation(operation);
}

void KTPhoto::saveLibraryItem() {
    if (!unsavedIPhoto())
        return;
    const KTTagDictionary changes = source(KTMetadataSource::Library).changes;
    const KTPhotoOperation operation =
        KTiPhotoTool::sharediPhotoTool().setValuesForKeysWithDictionary(changes, *libraryItem);
    addPhotoOperation(operation);
    if (!operation.operationDidSucceed)
        return;
    KTPerformOnMainThreadAndWait([&] {
        KTMetadataSource written = source(KTMetadataSource::Library);
        KTTagDictionary record = *written.saved;
        for (const auto& [key, value] : changes)
            record.set("xml:" + key.text(), value);
        written.saved = std::make_shared<const KTTagDictionary>(std::move(record));
        const KTTagDictionary now = written.changes;
        adopt(written, {},
              [&](const KTTagKey& key) { return now.valueForKey(key) != changes.valueForKey(key); });
    });
}
