#pragma once
#include "metadata/KTExifTool.h"
#include "metadata/KTMetadataField.h"
#include "platform/desktop/KTFileStamp.h"

/// One of the places that hold a photo's metadata: what was last read from it or written to it, and what must
/// still be written. A value type; what was read is shared between copies.
struct KTMetadataSource {
    enum Kind { Image, Sidecar, Library };

    explicit KTMetadataSource(Kind sourceKind) : kind(sourceKind) {}

    Kind kind;
    std::shared_ptr<const KTTagDictionary> saved = std::make_shared<const KTTagDictionary>(); ///< never null
    KTTagDictionary changes;
    KTMetadataProperties properties; ///< of a file
    /// The file as it was when `saved` was read or written; nothing when there was none.
    std::optional<KTFileStamp> stamp;
    unsigned revision = 0; ///< how often `saved` was replaced since the photo was opened

    /// The keys under which a photo announces its dictionaries.
    std::string_view savedKey() const;
    std::string_view changesKey() const;

    /// Replaces `saved`, `properties` and `stamp` by what @p file holds. On failure they hold whatever was
    /// found. @p allTags, where given, receives every tag, also of those that share a key.
    KTPhotoOperation read(KTExifTool& tool, const std::filesystem::path& file,
                          std::vector<KTTagDictionary::Entry>* allTags = nullptr);

    KTValue valueForField(const KTMetadataField& field) const;
    /// Records in @p into what must be written so that this source holds @p value.
    void record(const KTMetadataField& field, const KTValue& value, KTTagDictionary& into) const;
};

/// The facts about a file's metadata blocks that the field conversions go by.
KTMetadataProperties metadataPropertiesOf(const KTTagDictionary& tags);
