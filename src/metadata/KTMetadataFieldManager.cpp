#include "metadata/KTMetadataFieldManager.h"

#include "metadata/KTMetadataFieldTable.h"
#include "metadata/KTMetadataHelpTexts.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/defaults/KTUserDefaults.h"

namespace {

constexpr std::string_view kAssumedOffset = "defaultAssumedTimeZoneOffset";
constexpr std::string_view kAssumedTimeZone = "assumedTimeZone";

struct DefaultGroup {
    const char* name;
    std::vector<const char*> keys;
};

std::string localized(std::string_view table, std::string_view key, std::string_view english) {
    return KTLocalizedString(std::string(table) + std::string(key), english);
}

std::string orEmpty(const char* text) {
    return text ? text : "";
}

std::shared_ptr<KTMetadataField> fieldOfRow(const KTMetadataFieldRow& row) {
    KTMetadataFieldDefinition definition;
    definition.key = row.key;
    definition.name = localized("MetadataFieldName.", row.key, row.name);
    if (row.notes.secondaryName)
        definition.secondaryName =
            localized("MetadataFieldName.", definition.key + ".secondaryName", row.notes.secondaryName);
    if (row.notes.singularName)
        definition.singularName =
            localized("MetadataFieldName.", definition.key + ".singularName", row.notes.singularName);
    definition.usageDescription =
        localized("MetadataFieldUsageDescription.", row.key, KTMetadataHelpText(row.key, definition.name));
    definition.propertyType = row.type;
    definition.exifToolPropertyType = row.notes.writtenType;
    if (row.formatter)
        definition.formatter = row.formatter();
    definition.readonlyFlag = row.editing != KTFieldEditing::Tools;
    definition.directlyUserEditable = row.editing == KTFieldEditing::Direct;
    definition.primaryExifToolKey = orEmpty(row.tagKeys.primary);
    definition.xmpExifToolKey = orEmpty(row.tagKeys.xmp);
    definition.compositeExifToolKey = orEmpty(row.tagKeys.composite);
    return row.make(std::move(definition));
}

} // namespace

KTMetadataFieldManager& KTMetadataFieldManager::sharedMetadataFieldManager() {
    static KTMetadataFieldManager manager;
    return manager;
}

KTMetadataFieldManager::KTMetadataFieldManager() {
    settingObservation = KTUserDefaults::standardUserDefaults().observe([this](const KTChange& change) {
        if (change.key == kAssumedOffset && !change.isPrior)
            followAssumedOffset();
    });
    followAssumedOffset();
    makeCatalogue();
}

void KTMetadataFieldManager::followAssumedOffset() {
    assumedOffset = int(KTUserDefaults::standardUserDefaults().integerForKey(kAssumedOffset));
}

void KTMetadataFieldManager::makeCatalogue() {
    for (const KTMetadataGroupRow& groupRow : KTMetadataFieldTable()) {
        auto group =
            KTMetadataGroup::initWithName(localized("MetadataGroupName.", groupRow.name, groupRow.name));
        for (const KTMetadataFieldRow& row : groupRow.fields) {
            auto field = fieldOfRow(row);
            std::ranges::move(field->exifToolKeys(), std::back_inserter(tagKeys));
            keys.push_back(field->key());
            fieldsByKey.emplace(field->key(), field.get());
            fields.push_back(field);
            group->addField(std::move(field));
        }
        groups.push_back(std::move(group));
    }
}

const KTMetadataField* KTMetadataFieldManager::metadataFieldForKey(std::string_view key) const {
    auto entry = fieldsByKey.find(key);
    return entry == fieldsByKey.end() ? nullptr : entry->second;
}

std::vector<std::shared_ptr<KTMetadataGroup>> KTMetadataFieldManager::defaultGroups() const {
    static const DefaultGroup kDefaultGroups[] = {
        {"Name & Date", {"filename", "dateTimeOriginalComponents"}},
        {"Common Tags", {"caption", "people", "keywords", "creator", "event"}},
        {"Geotags",
         {"latitude", "altitude", "cityCreated", "stateCreated", "countryCreated", "locationCreated"}},
    };
    std::vector<std::shared_ptr<KTMetadataGroup>> result;
    for (const DefaultGroup& row : kDefaultGroups) {
        auto group =
            KTMetadataGroup::initWithName(localized("MetadataDefaultGroupName.", row.name, row.name));
        for (const char* key : row.keys)
            group->addField(metadataFieldForKey(key)->copy());
        result.push_back(std::move(group));
    }
    return result;
}

void KTMetadataFieldManager::setAssumedTimeZone(const KTTimeZone& zone) {
    willChange(kAssumedTimeZone);
    int offset = zone.secondsFromGMT(KTInstantNow());
    if (offset != assumedOffset)
        KTUserDefaults::standardUserDefaults().setValue(kAssumedOffset, offset);
    didChange(kAssumedTimeZone);
}
