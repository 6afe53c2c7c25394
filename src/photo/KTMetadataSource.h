#pragma once
#include "metadata/KTExifTool.h"
#include "metadata/KTMetadataField.h"

/// One of the places that hold a photo's metadata, an image file or a sidecar: what was last read from it or
/// written to it, and what must still be written.
struct KTMetadataSource {
    KTTagDictionary saved;
    KTTagDictionary changes;
    KTMetadataProperties properties;

    /// Replaces `saved` and `properties` by what @p file holds. On failure they hold whatever was found. @p
    /// allTags, where given, receives every tag, also of those that share a key.
    KTPhotoOperation read(KTExifTool& tool, const std::filesystem::path& file,
                          std::vector<KTTagDictionary::Entry>* allTags = nullptr);

    KTValue valueForField(const KTMetadataField& field) const {
        return field.valueFromExifToolDictionary(saved, properties);
    }
    /// Records in `changes` what must be written so that this source holds @p value.
    void record(const KTMetadataField& field, const KTValue& value) {
        field.modifyExifToolChangesDictionary(changes, value, saved, properties);
    }
};

/// The facts about a file's metadata blocks that the field conversions go by.
KTMetadataProperties metadataPropertiesOf(const KTTagDictionary& tags);
