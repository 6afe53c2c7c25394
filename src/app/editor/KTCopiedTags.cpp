#include "app/editor/KTCopiedTags.h"

#include "app/editor/KTFieldEdit.h"
#include "app/editor/KTFieldText.h"
#include "app/editor/KTMetadataFieldItemKind.h"
#include "metadata/KTMetadataFieldManager.h"
#include "photo/KTSameValue.h"
#include "platform/common/KTLocalizedString.h"

#include <algorithm>

namespace {

/// What follows from the file, not from the picture.
bool isOfFile(std::string_view key) {
    return key == "creationDate" || key == "metadataDate" || key == "modifyDate";
}

std::vector<std::string> keysOfRow(const KTMetadataField& field) {
    if (field.key() == "latitude")
        return {"latitude", "longitude"};
    if (field.key() == "latitudeShown")
        return {"latitudeShown", "longitudeShown"};
    return {field.key()};
}

} // namespace

KTCopiedTags KTCopiedTags::fromPhoto(const KTPhoto& photo) {
    static const KTValue noCopyrightStatus = " ";
    KTCopiedTags tags;
    for (const auto& field : KTMetadataFieldManager::sharedMetadataFieldManager().metadataFields()) {
        const bool isHalf = field->key() == "longitude" || field->key() == "longitudeShown";
        if (field->readonly() || isOfFile(field->key()) || isHalf)
            continue;
        Row row{.field = field.get(), .isChosen = field->directlyUserEditable()};
        for (const std::string& key : keysOfRow(*field)) {
            const KTValue value = photo.valueForKey(key);
            if (KTIsSameValue(value, {}) || value == noCopyrightStatus)
                continue;
            const auto keyField =
                KTMetadataFieldManager::sharedMetadataFieldManager().metadataFieldForKey(key);
            row.text += (row.text.empty() ? "" : ", ") + KTFieldText::displayText(*keyField, value);
            row.values.emplace(key, value);
        }
        if (!row.values.empty())
            tags.copiedRows.push_back(std::move(row));
    }
    return tags;
}

bool KTCopiedTags::hasChosenRows() const {
    return std::ranges::any_of(copiedRows, &Row::isChosen);
}

void KTCopiedTags::pasteOnto(KTPhotoManager& collection, const KTPhotoManager::Snapshot& photos) const {
    KTValue::Dictionary values;
    for (const Row& row : copiedRows)
        if (row.isChosen)
            values.insert(row.values.begin(), row.values.end());
    if (values.empty())
        return;
    KTFieldEdit edit(collection, photos, KTLocalizedString("Paste Tags"), false);
    edit.update([values](const KTPhoto& photo) {
        KTValue::Dictionary own = values;
        for (auto& [key, value] : own) // the reading; the zone is the photo's own
            if (const KTValue present = photo.valueForKey(key); value.components()) {
                KTDateComponents date = *value.components();
                date.timeZone = present.components() ? present.components()->timeZone : std::nullopt;
                value = date;
            }
        return own;
    });
    edit.commit();
}
