#pragma once
#include "metadata/KTMetadataGroup.h"

#include <atomic>
#include <unordered_map>

/// The one catalogue of the metadata fields, and the time zone in which dates without a zone are taken. The
/// catalogue never changes after it is made and is read from any thread.
class KTMetadataFieldManager : public KTObservable {
public:
    /// Made on first use.
    static KTMetadataFieldManager& sharedMetadataFieldManager();

    /// All fields and groups, in the order of the table.
    const std::vector<std::shared_ptr<const KTMetadataField>>& metadataFields() const { return fields; }
    const std::vector<std::shared_ptr<const KTMetadataGroup>>& metadataGroups() const { return groups; }
    /// Every field's tags, in the order of the fields; tags that two fields list stand twice.
    const std::vector<std::string>& exifToolKeys() const { return tagKeys; }
    const std::vector<std::string>& photoKeys() const { return keys; }
    const std::unordered_map<std::string_view, const KTMetadataField*>& metadataKeyField() const {
        return fieldsByKey;
    }
    /// Null for an unknown key.
    const KTMetadataField* metadataFieldForKey(std::string_view key) const;

    /// The groups that a new user's editor shows, made of copies.
    std::vector<std::shared_ptr<KTMetadataGroup>> defaultGroups() const;

    /// A zone of fixed offset, kept in the setting "defaultAssumedTimeZoneOffset" (at first the computer's
    /// present offset). Cheap; any thread.
    KTTimeZone assumedTimeZone() const {
        return KTTimeZone::fixed(assumedOffset.load(std::memory_order_relaxed));
    }
    /// Stores the present offset of @p zone where it differs. Every call is announced under
    /// "assumedTimeZone", on the calling thread.
    void setAssumedTimeZone(const KTTimeZone& zone);

private:
    KTMetadataFieldManager();
    void makeCatalogue();
    void followAssumedOffset();

    std::vector<std::shared_ptr<const KTMetadataField>> fields;
    std::vector<std::shared_ptr<const KTMetadataGroup>> groups;
    std::vector<std::string> tagKeys, keys;
    std::unordered_map<std::string_view, const KTMetadataField*> fieldsByKey;
    std::atomic<int> assumedOffset; // follows the setting
    Observation settingObservation;
};
