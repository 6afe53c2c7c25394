#include "metadata/KTMetadataField.h"

#include "metadata/KTMetadataFieldManager.h"

KTValueType KTMetadataField::exifToolPropertyType() const {
    return definition.exifToolPropertyType == KTValueType::None ? propertyType()
                                                                : definition.exifToolPropertyType;
}

KTValue KTMetadataField::valueFromExifToolDictionary(const KTTagDictionary&,
                                                     const KTMetadataProperties&) const {
    return {};
}

void KTMetadataField::modifyExifToolChangesDictionary(KTTagDictionary&, const KTValue&,
                                                      const KTTagDictionary&,
                                                      const KTMetadataProperties&) const {}

KTValue KTMetadataField::valueFromiPhotoDictionary(const KTTagDictionary& record) const {
    std::string name(libraryKey());
    if (name.empty())
        return {};
    for (const char* source : {"xml:", "sql:", "sb:"})
        if (record.hasValue(source + name))
            return coerceExifToolValue(record.valueForKey(source + name), propertyType());
    return coerceExifToolValue({}, propertyType());
}

void KTMetadataField::modifyiPhotoChangesDictionary(KTTagDictionary& changes, const KTValue& value,
                                                    const KTTagDictionary& record) const {
    if (libraryKey().empty())
        return;
    KTTagDictionary current{{libraryKey(), valueFromiPhotoDictionary(record)}};
    addValue(value, propertyType(), libraryKey(), changes, current);
}

std::shared_ptr<KTMetadataField> KTMetadataField::copy() const {
    return std::shared_ptr<KTMetadataField>(new KTMetadataField(*this));
}

KTValue::Dictionary KTMetadataField::encode() const {
    KTValue::Dictionary archive{{"key", key()}, {"name", name()}};
    if (!secondaryName().empty())
        archive.emplace("secondaryName", secondaryName());
    return archive;
}

std::shared_ptr<KTMetadataField> KTMetadataField::decode(const KTValue::Dictionary& archive) {
    auto textOf = [&](std::string_view entry) {
        auto found = archive.find(entry);
        return found == archive.end() ? nullptr : found->second.text();
    };
    const std::string* archivedKey = textOf("key");
    if (!archivedKey)
        return nullptr;
    auto field = KTMetadataFieldManager::sharedMetadataFieldManager().metadataFieldForKey(*archivedKey);
    if (!field)
        return nullptr;
    auto result = field->copy();
    if (const std::string* archivedName = textOf("name"))
        result->setName(*archivedName);
    return result;
}
