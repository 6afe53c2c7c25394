#pragma once
#include "metadata/KTMetadataField.h"

/// The description of the picture.
class KTMetadataCaptionField : public KTMetadataFieldOfClass<KTMetadataCaptionField> {
public:
    using KTMetadataFieldOfClass::KTMetadataFieldOfClass;
    std::vector<std::string> exifToolKeys() const override;
    KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                        const KTMetadataProperties& properties) const override;
    void modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                         const KTTagDictionary& existing,
                                         const KTMetadataProperties& properties) const override;
    bool iPhotoSupported() const override { return true; }

protected:
    std::string_view libraryKey() const override { return "caption"; }
};

class KTMetadataCopyrightField : public KTMetadataFieldOfClass<KTMetadataCopyrightField> {
public:
    using KTMetadataFieldOfClass::KTMetadataFieldOfClass;
    KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                        const KTMetadataProperties& properties) const override;
    void modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                         const KTTagDictionary& existing,
                                         const KTMetadataProperties& properties) const override;
};

/// Several creators are one text, joined with "; ".
class KTMetadataCreatorField : public KTMetadataFieldOfClass<KTMetadataCreatorField> {
public:
    using KTMetadataFieldOfClass::KTMetadataFieldOfClass;
    KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                        const KTMetadataProperties& properties) const override;
    void modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                         const KTTagDictionary& existing,
                                         const KTMetadataProperties& properties) const override;
};

/// The people shown, as a list.
class KTMetadataPeopleField : public KTMetadataFieldOfClass<KTMetadataPeopleField> {
public:
    using KTMetadataFieldOfClass::KTMetadataFieldOfClass;
    KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                        const KTMetadataProperties& properties) const override;
    void modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                         const KTTagDictionary& existing,
                                         const KTMetadataProperties& properties) const override;
    KTValue valueFromiPhotoDictionary(const KTTagDictionary& record) const override;
};

class KTMetadataEventField : public KTMetadataFieldOfClass<KTMetadataEventField> {
public:
    using KTMetadataFieldOfClass::KTMetadataFieldOfClass;
    KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                        const KTMetadataProperties& properties) const override;
    void modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                         const KTTagDictionary& existing,
                                         const KTMetadataProperties& properties) const override;
    KTValue valueFromiPhotoDictionary(const KTTagDictionary& record) const override;
};

class KTMetadataCopyrightURLField : public KTMetadataFieldOfClass<KTMetadataCopyrightURLField> {
public:
    using KTMetadataFieldOfClass::KTMetadataFieldOfClass;
    KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                        const KTMetadataProperties& properties) const override;
    void modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                         const KTTagDictionary& existing,
                                         const KTMetadataProperties& properties) const override;
};

/// Copyright status: "Copyrighted", "Public Domain" or, unknown, one blank.
class KTMetadataMarkedField : public KTMetadataFieldOfClass<KTMetadataMarkedField> {
public:
    using KTMetadataFieldOfClass::KTMetadataFieldOfClass;
    KTValue valueFromExifToolDictionary(const KTTagDictionary& tags,
                                        const KTMetadataProperties& properties) const override;
    void modifyExifToolChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                         const KTTagDictionary& existing,
                                         const KTMetadataProperties& properties) const override;
};
