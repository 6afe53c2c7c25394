#pragma once
#include "metadata/KTMetadataField.h"

/// A property that stands in one EXIF or IPTC tag and its XMP counterpart, or in XMP alone.
class KTMetadataSimpleField : public KTMetadataFieldOfClass<KTMetadataSimpleField> {
public:
    using KTMetadataFieldOfClass::KTMetadataFieldOfClass;
    const std::string& primaryExifToolKey() const { return definition.primaryExifToolKey; }
    const std::string& xmpExifToolKey() const { return definition.xmpExifToolKey; }

    std::vector<std::string> exifToolKeys() const override;
    KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                        const KTMetadataProperties& properties) const override;
    void modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                         const KTTagDictionary& existing,
                                         const KTMetadataProperties& properties) const override;

protected:
    /// The value of the two tags read as @p type.
    KTValue valueOfType(KTValueType type, const KTTagDictionary& tags,
                        const KTMetadataProperties& properties) const;
};

/// A value that ExifTool derives from others. Only read.
class KTMetadataCompositeField : public KTMetadataFieldOfClass<KTMetadataCompositeField> {
public:
    using KTMetadataFieldOfClass::KTMetadataFieldOfClass;
    const std::string& compositeExifToolKey() const { return definition.compositeExifToolKey; }

    std::vector<std::string> exifToolKeys() const override { return {compositeExifToolKey()}; }
    KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                        const KTMetadataProperties& properties) const override;
};

/// The version of the GPS tags. Reads with dots, however the file writes it; EXIF takes it with blanks.
class KTMetadataGPSVersionIDField
    : public KTMetadataFieldOfClass<KTMetadataGPSVersionIDField, KTMetadataSimpleField> {
public:
    using KTMetadataFieldOfClass::KTMetadataFieldOfClass;
    KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                        const KTMetadataProperties& properties) const override;
    void modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                         const KTTagDictionary& existing,
                                         const KTMetadataProperties& properties) const override;
};

/// A library's title that only repeats the file's name counts as none.
class KTMetadataTitleField : public KTMetadataFieldOfClass<KTMetadataTitleField, KTMetadataSimpleField> {
public:
    using KTMetadataFieldOfClass::KTMetadataFieldOfClass;
    bool iPhotoSupported() const override { return true; }
    KTValue valueFromiPhotoDictionary(const KTTagDictionary& record) const override;

protected:
    std::string_view libraryKey() const override { return "title"; }
};

class KTMetadataKeywordsField
    : public KTMetadataFieldOfClass<KTMetadataKeywordsField, KTMetadataSimpleField> {
public:
    using KTMetadataFieldOfClass::KTMetadataFieldOfClass;

protected:
    std::string_view libraryKey() const override { return "keywords"; }
};

class KTMetadataRatingField : public KTMetadataFieldOfClass<KTMetadataRatingField, KTMetadataSimpleField> {
public:
    using KTMetadataFieldOfClass::KTMetadataFieldOfClass;
    bool iPhotoSupported() const override { return true; }

protected:
    std::string_view libraryKey() const override { return "rating"; }
};
