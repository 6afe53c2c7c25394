#include "photo/KTPhoto.h"

#include "metadata/KTMetadataFieldManager.h"
#include "photo/KTPhotoPropertyTable.h"
#include "photo/KTSameValue.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTCallContext.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/desktop/KTFileCoordinator.h"

namespace {

/// Tags that tell of the file on disk, not of what is in it.
bool isOfFileSystem(std::string_view key) {
    return key.starts_with("File:File") || key == "File:Directory";
}

bool saysTheSame(const KTTagDictionary& left, const KTTagDictionary& right) {
    auto counts = [](const auto& tag) { return !isOfFileSystem(tag.key); };
    auto count = [&](const KTTagDictionary& tags) { return std::ranges::count_if(tags, counts); };
    return count(left) == count(right) && std::ranges::all_of(left, [&](const auto& tag) {
               const KTValue* other = right.find(tag.key);
               return !counts(tag) || (other != nullptr && *other == tag.value);
           });
}

} // namespace

/// Reads a file anew when another program has been there since. Returns what the user should know of it.
std::optional<std::string> KTPhoto::refreshIfChanged(KTMetadataSource::Kind kind) {
    const std::filesystem::path file = kind == KTMetadataSource::Image ? imageURL : xmpURL();
    const KTMetadataSource before = source(kind);
    if (KTFileStamp::of(file) == before.stamp)
        return std::nullopt;
    KTMetadataSource now(kind);
    now.properties.hasXMPBlock = true; // of a sidecar that is no longer there
    KTPhotoOperation operation;
    const auto failure = KTFileCoordinator(this).coordinateReadingItemAtURL(
        file, [&](const auto& url) { operation = now.read(KTExifTool::sharedExifTool(), url); });
    const bool isThere = !failure && operation.operationDidSucceed;
    if (!isThere && (kind == KTMetadataSource::Image || KTFileStamp::of(file)))
        return std::nullopt; // the write will say what is wrong with it
    const bool isOther = !before.stamp || !now.stamp || before.stamp->size != now.stamp->size ||
                         !saysTheSame(*before.saved, *now.saved);
    KTPerformOnMainThreadAndWait([&] {
        adopt(now, {}, [&](const KTTagKey& key) { return before.changes.find(key) != nullptr; });
        showUneditedValues();
    });
    return isOther ? std::optional(KTLocalizedString("The file had changed since it was read."))
                   : std::nullopt;
}

/// Takes @p read as what its file holds. Of the changes, @p pending stay, and the fields of which a key
/// @p isEdited are entered anew, against what the file holds now. On the main thread.
void KTPhoto::adopt(const KTMetadataSource& read, const KTTagDictionary& pending,
                    const std::function<bool(const KTTagKey&)>& isEdited) {
    KTMetadataSource next = read;
    next.changes = pending;
    if (next.kind == KTMetadataSource::Image)
        next.properties.hasEXIFBlock = true;
    std::map<const KTMetadataField*, KTValue> edits;
    {
        std::lock_guard guard(mutex);
        for (const auto& [field, keys] : recordedKeys)
            if (std::ranges::any_of(keys, isEdited))
                edits[field];
    }
    for (auto& [field, value] : edits)
        value = valueForKey(field->key());

    willChange(next.savedKey());
    willChange(next.changesKey());
    {
        std::lock_guard guard(mutex);
        for (const auto& [field, value] : edits)
            recordInto(next, *field, value);
        sources[next.kind] = next;
        std::erase_if(recordedKeys, [this](const auto& entry) {
            return std::ranges::none_of(
                sources, [&](const auto& source) { return hasPendingKeys(*entry.first, source.changes); });
        });
    }
    didChange(next.changesKey());
    didChange(next.savedKey());
}

/// Shows what the sources hold now in the properties that the user has not edited. On the main thread.
void KTPhoto::showUneditedValues() {
    const KTSaveTargets where = targets();
    const KTCallMark untracked(this);
    const KTCallMark unrecorded(&sources);
    for (const auto& field : KTMetadataFieldManager::sharedMetadataFieldManager().metadataFields()) {
        KTValue value;
        {
            std::lock_guard guard(mutex);
            if (KTPhotoPropertyTable::isFromFile(field->key()) ||
                std::ranges::any_of(
                    sources, [&](const auto& source) { return hasPendingKeys(*field, source.changes); }))
                continue;
            value = valueAsRead(*field, sources, where);
        }
        if (!KTIsSameValue(value, valueForKey(field->key())))
            setValueForKey(field->key(), value);
    }
}
