#pragma once
#include "metadata/KTMetadataField.h"

/// A date of the picture as components: in EXIF, in two XMP tags, and in IPTC as date and time apart. What is
/// read is labelled with the assumed time zone.
class KTMetadataPictureDateField : public KTMetadataField {
public:
    /// The tags that carry one date.
    struct Tags {
        std::string_view exif;
        std::string_view xmp;     ///< of XMP's EXIF schema
        std::string_view xmpDate; ///< of its Photoshop or basic schema
        std::string_view iptcDate;
        std::string_view iptcTime;
        std::string_view iptcBoth; ///< the two as ExifTool joins them
    };

    std::vector<std::string> exifToolKeys() const override;
    KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                        const KTMetadataProperties& properties) const override;
    void modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                         const KTTagDictionary& existing,
                                         const KTMetadataProperties& properties) const override;

protected:
    KTMetadataPictureDateField(KTMetadataFieldDefinition fieldDefinition, const Tags& fieldTags)
        : KTMetadataField(std::move(fieldDefinition)), tagKeys(fieldTags) {}
    KTMetadataPictureDateField(const KTMetadataPictureDateField&) = default;
    static KTValue valueOfTags(const Tags& keys, const KTTagDictionary& tags,
                               const KTMetadataProperties& properties);

private:
    const Tags& tagKeys;
};

class KTMetadataDateTimeDigitizedField
    : public KTMetadataFieldOfClass<KTMetadataDateTimeDigitizedField, KTMetadataPictureDateField> {
public:
    explicit KTMetadataDateTimeDigitizedField(KTMetadataFieldDefinition fieldDefinition);
};

/// Where the file has no original date at all, the digitized one is read in its place.
class KTMetadataDateTimeOriginalField
    : public KTMetadataFieldOfClass<KTMetadataDateTimeOriginalField, KTMetadataPictureDateField> {
public:
    explicit KTMetadataDateTimeOriginalField(KTMetadataFieldDefinition fieldDefinition);
    KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                        const KTMetadataProperties& properties) const override;
    bool iPhotoSupported() const override { return true; }
    KTValue valueFromiPhotoDictionary(const KTTagDictionary& record) const override;
    void modifyiPhotoChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                       const KTTagDictionary& record) const override;
};

/// When the file's picture or metadata was last changed: the later of what EXIF and XMP say.
class KTMetadataModifyDateField : public KTMetadataFieldOfClass<KTMetadataModifyDateField> {
public:
    using KTMetadataFieldOfClass::KTMetadataFieldOfClass;
    KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                        const KTMetadataProperties& properties) const override;
    void modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                         const KTTagDictionary& existing,
                                         const KTMetadataProperties& properties) const override;
};

class KTMetadataMetadataDateField : public KTMetadataFieldOfClass<KTMetadataMetadataDateField> {
public:
    using KTMetadataFieldOfClass::KTMetadataFieldOfClass;
    KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                        const KTMetadataProperties& properties) const override;
    void modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                         const KTTagDictionary& existing,
                                         const KTMetadataProperties& properties) const override;
};

/// The file's own date; the photo takes it from the file system.
class KTMetadataCreationDateField : public KTMetadataFieldOfClass<KTMetadataCreationDateField> {
public:
    using KTMetadataFieldOfClass::KTMetadataFieldOfClass;
};

/// When the position was measured; always UTC.
class KTMetadataGPSDateTimeField : public KTMetadataFieldOfClass<KTMetadataGPSDateTimeField> {
public:
    using KTMetadataFieldOfClass::KTMetadataFieldOfClass;
    KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                        const KTMetadataProperties& properties) const override;
    void modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                         const KTTagDictionary& existing,
                                         const KTMetadataProperties& properties) const override;
};
