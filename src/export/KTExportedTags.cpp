#include "export/KTExportedTags.h"

#include "metadata/KTExifTool.h"
#include "metadata/KTMetadataFieldManager.h"
#include "metadata/KTWritableTags.h"
#include "photo/KTPhoto.h"
#include "photo/KTSameValue.h"
#include "platform/common/KTText.h"

#include <mutex>
#include <unordered_map>
#include <unordered_set>

namespace {

using Names = std::unordered_set<std::string>;

// Directories of a TIFF structure mark what must not be copied into another file; asked of the library's own
// table.
constexpr const char* kStructure = R"perl(
join(' ', map { ref($_) eq 'HASH' && ($_->{Protected} || 0) =~ /^\d+$/ && ($_->{Protected} & 1) ? $_->{Name} : () }
          map { ref($_) eq 'ARRAY' ? @$_ : $_ }
          map { Image::ExifTool::GetTagTable('Image::ExifTool::Exif::Main')->{$_} }
          Image::ExifTool::TagTableKeys(Image::ExifTool::GetTagTable('Image::ExifTool::Exif::Main')));
)perl";

/// Those of @p keys that may be written, as @p tool says; each key is asked for once in the process.
Names writableAmong(const Names& keys, KTExifTool& tool) {
    static std::mutex mutex;
    static std::unordered_map<std::string, bool> known;
    std::vector<std::string> asked;
    {
        const std::lock_guard guard(mutex);
        std::ranges::copy_if(keys, std::back_inserter(asked),
                             [](const std::string& key) { return !known.contains(key); });
    }
    const Names found = KTWritableTagsAmong(asked, tool);
    const std::lock_guard guard(mutex);
    for (const std::string& key : asked)
        known[key] = found.contains(key);
    Names result = keys;
    std::erase_if(result, [](const std::string& key) { return !known[key]; });
    return result;
}

/// Names of tags that are true of one file's picture only. @p tool is for the first call.
const Names& structuralNames(KTExifTool& tool) {
    static const Names names = [&tool] {
        const auto list = KTSplit(tool.evaluate(kStructure).description(), ' ');
        Names result(list.begin(), list.end());
        for (const char* name : {"Orientation", "ExifImageWidth", "ExifImageHeight", "ImageLength",
                                 "NativeDigest", "HasSettings", "About", "HasExtendedXMP", "ThumbnailImage",
                                 "PreviewImage", "JpgFromRaw", "OtherImage"})
            result.insert(name);
        return result;
    }();
    return names;
}

/// "Description" of "XMP:Description-de", whose other languages the list of writable tags does not know.
std::string withoutLanguage(const std::string& key) {
    return key.starts_with("XMP:") ? key.substr(0, key.find('-')) : key;
}

bool isCarried(const KTValue& value) {
    const std::string* text = value.text();
    return text == nullptr || (!text->starts_with("Binary data ") && !text->starts_with("(Binary data "));
}

bool hasChanges(const KTPhoto& photo) {
    return photo.source(KTMetadataSource::Sidecar).stamp || photo.hasUnsavedChanges() ||
           !photo.source(KTMetadataSource::Image).changes.empty();
}

} // namespace

KTExportedTags::KTExportedTags(const KTPhoto& photo) {
    const KTMetadataSource image = photo.source(KTMetadataSource::Image);
    savedTags = *image.saved;
    differing = image.changes;
    for (const char* key : {"locationCreated", "cityCreated", "stateCreated", "countryCreated",
                            "locationShown", "cityShown", "stateShown", "countryShown"})
        if (const KTValue place = photo.valueForKey(key); place.isSomething())
            places.push_back(place.description());
    if (!hasChanges(photo))
        return;
    const KTValue turned = photo.source(KTMetadataSource::Sidecar).saved->valueForKey("XMP:Orientation");
    if (turned.isSomething() && turned != savedTags.valueForKey("EXIF:Orientation"))
        differing.set("EXIF:Orientation", turned);
    for (const auto& field : KTMetadataFieldManager::sharedMetadataFieldManager().metadataFields()) {
        const KTValue shown = photo.valueForKey(field->key());
        if (!KTIsSameValue(shown, image.valueForField(*field)))
            image.record(*field, shown, differing);
    }
}

KTTagDictionary KTExportedTags::all(KTExifTool& tool) const {
    std::vector<KTTagDictionary::Entry> tags;
    Names keys;
    for (const KTTagDictionary* const from : {&savedTags, &differing}) // of two entries the later one holds
        for (const auto& [key, value] : *from) {
            const std::string name(key.text().substr(key.text().find(':') + 1));
            const bool isOfFile =
                key.text().starts_with("MakerNotes:") || key.text().starts_with("Composite:") ||
                key.text().starts_with("ICC_Profile:") || structuralNames(tool).contains(name);
            if (isOfFile || !isCarried(value))
                continue;
            tags.push_back({key, value});
            keys.insert({key.text(), withoutLanguage(key.text())});
        }
    const Names writable = writableAmong(keys, tool);
    std::erase_if(tags, [&](const KTTagDictionary::Entry& tag) {
        return !writable.contains(tag.key.text()) && !writable.contains(withoutLanguage(tag.key.text()));
    });
    return KTTagDictionary(std::move(tags));
}

KTTagDictionary KTExportedTags::allForPicture(const QSize& size, KTExifTool& tool) const {
    KTTagDictionary tags = all(tool);
    if (savedTags.hasValue("EXIF:Orientation"))
        tags.set("EXIF:Orientation", KTValue(1));
    if (savedTags.hasValue("EXIF:ExifImageWidth")) {
        tags.set("EXIF:ExifImageWidth", KTValue(size.width()));
        tags.set("EXIF:ExifImageHeight", KTValue(size.height()));
    }
    return tags;
}
