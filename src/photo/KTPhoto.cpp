#include "photo/KTPhoto.h"

#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTCalendar.h"
#include "platform/common/KTText.h"
#include "platform/defaults/KTUserDefaults.h"

namespace {

constexpr std::string_view kRoundedKeys[] = {"latitude",       "longitude",     "altitude",
                                             "imageDirection", "latitudeShown", "longitudeShown"};
constexpr int kFractionalDigits = 8;

const KTMetadataField* fieldForKey(std::string_view key) {
    return KTMetadataFieldManager::sharedMetadataFieldManager().metadataFieldForKey(key);
}

bool readsAs(const KTMetadataSource& source, const KTMetadataField& field, const KTValue& value) {
    KTValue own = source.valueForField(field);
    return own == value || (!own.isSomething() && !value.isSomething());
}

} // namespace

std::filesystem::path KTPhoto::xmpURL() const {
    return std::filesystem::path(imageURL).replace_extension("xmp");
}

bool KTPhoto::hasXMPSidecar() const {
    std::error_code error;
    return std::filesystem::exists(xmpURL(), error);
}

KTSaveTargets KTPhoto::targets() const {
    return saveTargets(imageURL,
                       KTUserDefaults::standardUserDefaults().integerForKey("defaultXMPSidecarStyle"),
                       hasXMPSidecar());
}

bool KTPhoto::hasUnsavedChanges() const {
    const KTSaveTargets where = targets();
    return (where.imageFile && !image.changes.empty()) || (where.xmpSidecar && !sidecar.changes.empty());
}

std::optional<KTInstant> KTPhoto::dateTimeOriginal() const {
    KTValue value = valueForKey("dateTimeOriginalComponents");
    return value.components() ? KTInstantOfComponents(*value.components()) : std::nullopt;
}

bool KTPhoto::isGeotagged() const {
    return values.hasValue("latitude") && values.hasValue("longitude");
}

KTValue KTPhoto::savedPropertyWithKey(std::string_view key) const {
    const KTMetadataField* field = fieldForKey(key);
    if (field == nullptr)
        return {};
    KTValue value = targets().xmpSidecar && hasXMPSidecar() ? sidecar.valueForField(*field) : KTValue();
    return value.isSomething() ? value : image.valueForField(*field);
}

void KTPhoto::setValueForKey(std::string_view key, const KTValue& value) {
    const KTMetadataField* field = fieldForKey(key);
    if (field == nullptr || field->readonly())
        return;
    assign(key, value);
    recordEdit(*field);
}

void KTPhoto::assign(std::string_view key, const KTValue& value) {
    KTValue stored = value.isNull() ? KTValue() : value;
    if (std::ranges::find(kRoundedKeys, key) != std::end(kRoundedKeys)) {
        auto number = stored.text() ? KTDecimal::fromText(KTTrimmed(*stored.text())) : stored.number();
        stored = number && !number->isNaN() ? KTValue(number->rounded(kFractionalDigits)) : KTValue();
    } else if (auto number = stored.number(); number && key == "rating") {
        stored = KTDecimal::fromDouble(static_cast<float>(number->toDouble())).rounded(kFractionalDigits);
    }
    values.set(key, std::move(stored));
}

/// An edit back to what every source that a save writes to holds withdraws the field's pending tags; any
/// other edit is recorded for both sources, whichever of them the next save writes.
void KTPhoto::recordEdit(const KTMetadataField& field) {
    const KTValue value = valueForKey(field.key());
    const KTSaveTargets where = targets();
    const bool isAsSaved = (!where.imageFile || readsAs(image, field, value)) &&
                           (!where.xmpSidecar || !hasXMPSidecar() || readsAs(sidecar, field, value)) &&
                           (hasXMPSidecar() || readsAs(image, field, value));
    std::set<std::string>& keys = recordedKeys[field.key()];
    for (KTMetadataSource* source : {&image, &sidecar}) {
        const KTTagDictionary before = source->changes;
        source->record(field, value);
        for (const auto& [key, change] : source->changes)
            if (!before.find(key))
                keys.insert(key.text());
        if (isAsSaved)
            for (const std::string& key : keys)
                source->changes.remove(key);
    }
}
