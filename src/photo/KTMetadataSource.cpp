#include "photo/KTMetadataSource.h"

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

KTPhotoOperation KTMetadataSource::read(KTExifTool& tool, const std::filesystem::path& file,
                                        std::vector<KTTagDictionary::Entry>* allTags) {
    std::vector<KTTagDictionary::Entry> tags;
    KTPhotoOperation operation = tool.extractAllTags(tags, file);
    if (allTags != nullptr)
        *allTags = tags;
    saved = KTTagDictionary(std::move(tags));
    properties = metadataPropertiesOf(saved);
    return operation;
}
