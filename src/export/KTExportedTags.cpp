#include "export/KTExportedTags.h"

#include "metadata/KTExifTool.h"
#include "metadata/KTMetadataFieldManager.h"
#include "photo/KTPhoto.h"
#include "photo/KTSameValue.h"
#include "platform/common/KTText.h"

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

const Names& writableKeys() {
    static const Names keys = [] {
        const auto list = KTExifTool::sharedExifTool().writableTags();
        return Names(list.begin(), list.end());
    }();
    return keys;
}

/// Names of tags that are true of one file's picture only. @p tool is for the first call.
const Names& structuralNames(KTExifTool& tool) {
    static const Names names = [&tool] {
        const auto list = KTSplit(tool.evaluate(kStructure).description(), ' ');
        Names result(list.begin(), list.end());
        for (const char* name :
             {"Orientation", "ExifImageWidth", "ExifImageHeight", "ImageLength", "NativeDigest",
              "HasSettings", "ThumbnailImage", "PreviewImage", "JpgFromRaw", "OtherImage"})
            result.insert(name);
        return result;
    }();
    return names;
}

/// "Description" of "XMP:Description-de", whose other languages the list of writable tags does not know.
std::string_view withoutLanguage(std::string_view key) {
    const auto dash = key.starts_with("XMP:") ? key.rfind('-') : std::string_view::npos;
    return key.substr(0, dash);
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
    for (const auto& field : KTMetadataFieldManager::sharedMetadataFieldManager().metadataFields()) {
        const KTValue shown = photo.valueForKey(field->key());
        if (!KTIsSameValue(shown, image.valueForField(*field)))
            image.record(*field, shown, differing);
    }
}

KTTagDictionary KTExportedTags::all(KTExifTool& tool) const {
    std::vector<KTTagDictionary::Entry> tags;
    const auto add = [&](const KTTagDictionary& from) {
        for (const auto& [key, value] : from) {
            const std::string name(key.text().substr(key.text().find(':') + 1));
            const bool isOfFile =
                key.text().starts_with("MakerNotes:") || key.text().starts_with("Composite:") ||
                key.text().starts_with("ICC_Profile:") || structuralNames(tool).contains(name);
            if (!isOfFile && isCarried(value) &&
                (writableKeys().contains(key.text()) ||
                 writableKeys().contains(std::string(withoutLanguage(key)))))
                tags.push_back({key, value});
        }
    };
    add(savedTags);
    add(differing); // of two entries of a key the later one holds
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
