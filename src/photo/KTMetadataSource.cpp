#include "photo/KTMetadataSource.h"

namespace {

struct Keys {
    std::string_view saved, changes;
};

constexpr Keys kKeys[] = {
    {"savedExifToolImageMetadataDictionary", "exifToolImageMetadataChangesDictionary"},
    {"savedExifToolSidecarMetadataDictionary", "exifToolSidecarMetadataChangesDictionary"},
    {"savedIPhotoMetadataDictionary", "iPhotoMetadataChangesDictionary"},
};

} // namespace

KTMetadataProperties metadataPropertiesOf(const KTTagDictionary& tags) {
    KTMetadataProperties properties;
    properties.hasXMPBlock = true;
    for (const auto& [key, value] : tags) {
        std::string_view text(key);
        properties.hasIPTCBlock = properties.hasIPTCBlock || text.starts_with("IPTC");
        properties.hasEXIFBlock = properties.hasEXIFBlock || text.starts_with("EXIF");
    }
    const KTValue digest = tags.valueForKey("Photoshop:IPTCDigest");
    properties.hasIPTCChecksum = digest.isSomething();
    properties.iptcChecksumDoesMatch =
        digest.isSomething() &&
        digest.description() == tags.valueForKey("File:CurrentIPTCDigest").description();
    return properties;
}

std::string_view KTMetadataSource::savedKey() const {
    return kKeys[kind].saved;
}

std::string_view KTMetadataSource::changesKey() const {
    return kKeys[kind].changes;
}

KTPhotoOperation KTMetadataSource::read(KTExifTool& tool, const std::filesystem::path& file,
                                        std::vector<KTTagDictionary::Entry>* allTags) {
    stamp = KTFileStamp::of(file); // before reading, so that a change meanwhile shows later
    std::vector<KTTagDictionary::Entry> tags;
    KTPhotoOperation operation = tool.extractAllTags(tags, file);
    if (allTags != nullptr)
        *allTags = tags;
    saved = std::make_shared<const KTTagDictionary>(std::move(tags));
    properties = metadataPropertiesOf(*saved);
    return operation;
}

KTValue KTMetadataSource::valueForField(const KTMetadataField& field) const {
    return kind == Library ? field.valueFromiPhotoDictionary(*saved)
                           : field.valueFromExifToolDictionary(*saved, properties);
}

void KTMetadataSource::record(const KTMetadataField& field, const KTValue& value,
                              KTTagDictionary& into) const {
    if (kind == Library)
        field.modifyiPhotoChangesDictionary(into, value, *saved);
    else
        field.modifyExifToolChangesDictionary(into, value, *saved, properties);
}
