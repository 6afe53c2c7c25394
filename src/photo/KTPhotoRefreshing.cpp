#include "photo/KTPhoto.h"

#include "metadata/KTMetadataFieldManager.h"
#include "photo/KTPhotoPropertyTable.h"
#include "photo/KTSameValue.h"
#include "platform/common/KTCallContext.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
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

/// Looks whether another program has been at a file since it was read, and reads it anew then.
KTPhoto::Refresh KTPhoto::refreshIfChanged(KTMetadataSource::Kind kind) {
    const std::filesystem::path file = kind == KTMetadataSource::Image ? imageURL : xmpURL();
    const KTMetadataSource before = source(kind);
    if (KTFileStamp::of(file) == before.stamp)
        return {};
    KTMetadataSource now(kind);
    now.properties.hasXMPBlock = true; // of a sidecar that is no longer there
    KTPhotoOperation operation;
    const auto failure = KTFileCoordinator(this).coordinateReadingItemAtURL(
        file, [&](const auto& url) { operation = now.read(KTExifTool::sharedExifTool(), url); });
    const bool hasVanished = failure && kind == KTMetadataSource::Sidecar && !KTFileStamp::of(file);
    if (failure && !hasVanished)
        return {{}, failure};
    const bool isUnreadable = !failure && !operation.operationDidSucceed;
    const bool isDone = KTPerformOnMainThreadAndWait([&] {
        const KTTagDictionary pending = source(kind).changes;
        if (isUnreadable) { // nothing better is known; the write will say what is wrong with it
            std::lock_guard guard(mutex);
            sources[kind].stamp = now.stamp;
        } else {
            adopt(now, {}, [&](const KTTagKey& key) { return pending.find(key) != nullptr; });
            showUneditedValues(hasVanished ? Pending::Anywhere : Pending::InTargets);
        }
    });
    if (!isDone)
        return {{}, KTLocalizedString("The program is about to end.")};
    const bool isOther = !before.stamp || !now.stamp || before.stamp->size != now.stamp->size ||
                         isUnreadable || !saysTheSame(*before.saved, *now.saved);
    return {isOther ? std::optional(KTLocalizedString("The file had changed since it was read."))
                    : std::nullopt,
            {}};
}

/// Takes @p read as what its file holds. Of the changes, @p pending stay, and the fields of which a key
/// @p isEdited are entered anew, against what the file holds now; those that are cleared also for a sidecar
/// that is yet to be made of the image. On the main thread.
void KTPhoto::adopt(const KTMetadataSource& read, const KTTagDictionary& pending,
                    const std::function<bool(const KTTagKey&)>& isEdited) {
    KTMetadataSource next = read;
    next.changes = pending;
    if (next.kind == KTMetadataSource::Image)
        next.properties.hasEXIFBlock = true;
    std::map<const KTMetadataField*, KTValue> edits;
    {
        std::lock_guard guard(mutex);
        for (const auto& [field, recorded] : recordedEdits)
            if (std::ranges::any_of(recorded.keys, isEdited))
                edits[field];
    }
    for (auto& [field, value] : edits)
        value = valueForKey(field->key());

    const std::string_view ofSidecar = sources[KTMetadataSource::Sidecar].changesKey();
    const bool isImage = next.kind == KTMetadataSource::Image;
    willChange(next.savedKey());
    willChange(next.changesKey());
    if (isImage)
        willChange(ofSidecar);
    {
        std::lock_guard guard(mutex);
        for (const auto& [field, value] : edits)
            recordInto(next, *field, value);
        next.revision = sources[next.kind].revision + 1;
        sources[next.kind] = next;
        KTMetadataSource& sidecar = sources[KTMetadataSource::Sidecar];
        for (const auto& [field, value] : edits)
            if (isImage && !sidecar.stamp && KTIsSameValue(value, {}))
                recordInto(sidecar, *field, value);
        std::erase_if(recordedEdits, [this](const auto& entry) {
            return std::ranges::none_of(
                sources, [&](const auto& source) { return hasPendingKeys(*entry.first, source.changes); });
        });
    }
    if (isImage)
        didChange(ofSidecar);
    didChange(next.changesKey());
    didChange(next.savedKey());
}

/// Shows what the sources hold now in the properties that nobody has edited: those of which nothing is
/// @p pending for a source that a save writes to, or anywhere where the file is gone that held the value. On
/// the main thread.
void KTPhoto::showUneditedValues(Pending pending) {
    const KTSaveTargets where = targets();
    for (const auto& field : KTMetadataFieldManager::sharedMetadataFieldManager().metadataFields()) {
        KTValue value;
        {
            std::lock_guard guard(mutex);
            const bool isEdited = pending == Pending::InTargets
                                      ? isPendingInTargets(*field, where)
                                      : std::ranges::any_of(sources, [&](const auto& source) {
                                            return hasPendingKeys(*field, source.changes);
                                        });
            if (isEdited || KTPhotoPropertyTable::isFromFile(field->key()) || isBeingEdited(field->key()))
                continue;
            value = valueAsRead(*field, sources, where);
        }
        if (!KTIsSameValue(value, valueForKey(field->key())))
            showAsRead(*field, value);
    }
}

void KTPhoto::showAsRead(const KTMetadataField& field, const KTValue& value) {
    const KTPhotoProperty& property = *KTPhotoPropertyTable::propertyForKey(field.key());
    const KTCallMark untracked(this);
    const KTCallMark unrecorded(&sources);
    followedKey = field.key();
    if (property.set != nullptr)
        property.set(*this, value);
    else
        storeAndAnnounce(property, value, true);
    followedKey = {};
}

/// The fields of which something is to be written.
std::vector<const KTMetadataField*> KTPhoto::fieldsToWrite() const {
    const KTSaveTargets where = targets();
    std::vector<const KTMetadataField*> fields;
    std::lock_guard guard(mutex);
    for (const auto& [field, edits] : recordedEdits)
        if ((where.imageFile && hasPendingKeys(*field, sources[KTMetadataSource::Image].changes)) ||
            (where.xmpSidecar && hasPendingKeys(*field, sources[KTMetadataSource::Sidecar].changes)))
            fields.push_back(field);
    return fields;
}

/// Shows what the files hold after a save. A value that was cleared in a sidecar and that the image still has
/// shows again: no sidecar can say "nothing".
void KTPhoto::followFiles(const std::vector<const KTMetadataField*>& written) {
    std::vector<std::string> names;
    KTPerformOnMainThreadAndWait([&] {
        std::vector<const KTMetadataField*> cleared;
        for (const KTMetadataField* field : written)
            if (KTIsSameValue(valueForKey(field->key()), {}))
                cleared.push_back(field);
        showUneditedValues(Pending::InTargets);
        for (const KTMetadataField* field : cleared)
            if (!KTIsSameValue(valueForKey(field->key()), {}))
                names.push_back(field->name());
    });
    if (!names.empty())
        log(imageURL, "Write metadata to file", {},
            KTStringWithFormat(KTLocalizedString("The image file still holds what was cleared: %@"),
                               {KTJoin(names, ", ")}));
}
