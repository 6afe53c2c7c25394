#include "datetools/KTDateChange.h"

#include "metadata/KTFormatter.h"
#include "metadata/KTMetadataFieldManager.h"

namespace {

const KTMetadataField& fieldForKey(const std::string& key) {
    return *KTMetadataFieldManager::sharedMetadataFieldManager().metadataFieldForKey(key);
}

} // namespace

std::string KTDateChange::name() const {
    return fieldForKey(key).name();
}

std::string KTDateChange::textOf(const KTValue& date) const {
    return fieldForKey(key).formatter()->stringForObjectValue(date);
}
