#include "photo/KTPhotoPropertyTable.h"

#include "metadata/KTMetadataFieldManager.h"
#include "photo/KTPhoto.h"
#include "platform/common/KTText.h"

#include <charconv>

namespace {

using Which = KTPhotoDateFamily::Which;
using Kind = KTMetadataSource::Kind;

/// Degrees, metres: a decimal with 8 fractional digits at most; what is no number is absent.
KTValue roundedDecimal(const KTValue& value) {
    auto number = value.text() ? KTDecimal::fromText(KTTrimmed(*value.text())) : value.number();
    return number && !number->isNaN() ? KTValue(KTMetadataField::roundingBehavior(*number)) : KTValue();
}

/// A rating passes through a single-precision number, as other programs keep it.
KTValue ratingDecimal(const KTValue& value) {
    const auto number = value.number();
    if (!number)
        return value;
    std::array<char, 32> text = {};
    const auto end = std::to_chars(text.begin(), text.end(), static_cast<float>(number->toDouble())).ptr;
    const auto rating = KTDecimal::fromText({text.data(), end});
    return rating ? KTValue(KTMetadataField::roundingBehavior(*rating)) : KTValue();
}

KTValue dictionary(const KTTagDictionary& tags) {
    KTValue::Dictionary result;
    for (const auto& [key, value] : tags)
        result.emplace(key.text(), value);
    return result;
}

template<Kind kind>
KTValue savedDictionary(const KTPhoto& photo) {
    return dictionary(*photo.source(kind).saved);
}

template<Kind kind>
KTValue changesDictionary(const KTPhoto& photo) {
    return dictionary(photo.source(kind).changes);
}

template<Kind kind>
KTValue metadataProperties(const KTPhoto& photo) {
    const KTMetadataProperties flags = photo.source(kind).properties;
    return KTValue::Dictionary{{"hasEXIFBlock", flags.hasEXIFBlock},
                               {"hasIPTCBlock", flags.hasIPTCBlock},
                               {"hasXMPBlock", flags.hasXMPBlock},
                               {"hasIPTCChecksum", flags.hasIPTCChecksum},
                               {"iptcChecksumDoesMatch", flags.iptcChecksumDoesMatch}};
}

template<Which which>
KTValue components(const KTPhoto& photo) {
    return photo.readingOf(which).components;
}

template<Which which>
void setComponents(KTPhoto& photo, const KTValue& value) {
    photo.setDateComponents(which, value.components() ? std::optional(*value.components()) : std::nullopt);
}

template<Which which>
KTValue timeZone(const KTPhoto& photo) {
    const auto date = photo.readingOf(which).components;
    return date ? KTValue(date->timeZone) : KTValue();
}

template<Which which>
void setTimeZone(KTPhoto& photo, const KTValue& value) {
    if (value.timeZone())
        photo.setDateTimeZone(which, *value.timeZone());
}

template<Which which>
KTValue shift(const KTPhoto& photo) {
    return KTDecimal::fromDouble(photo.readingOf(which).shift);
}

template<Which which>
void setShift(KTPhoto& photo, const KTValue& value) {
    const auto number = value.number();
    photo.setDateShift(which, number ? std::optional(number->toDouble()) : std::nullopt);
}

template<Which which>
KTValue date(const KTPhoto& photo) {
    return photo.instantOf(which);
}

template<Which which>
void setDate(KTPhoto& photo, const KTValue& value) {
    photo.setDate(which, value.date() ? std::optional(*value.date()) : std::nullopt);
}

template<auto method>
KTValue call(const KTPhoto& photo) {
    return (photo.*method)();
}

KTValue pathOfSidecar(const KTPhoto& photo) {
    return photo.xmpURL().string();
}

KTValue undoCount(const KTPhoto& photo) {
    return photo.doNotTrackChangesStack();
}

KTValue representationType(const KTPhoto&) {
    return "path";
}

// key, get, set, normalized, alsoChanges, isCoordinate
const KTPhotoProperty kRows[] = {
    // Catalogue fields of which more is to be said than their row there
    {"latitude", nullptr, nullptr, roundedDecimal, "imageSubtitle", true},
    {"longitude", nullptr, nullptr, roundedDecimal, "imageSubtitle", true},
    {"altitude", nullptr, nullptr, roundedDecimal},
    {"imageDirection", nullptr, nullptr, roundedDecimal, "geometry"},
    {"latitudeShown", nullptr, nullptr, roundedDecimal, {}, true},
    {"longitudeShown", nullptr, nullptr, roundedDecimal, {}, true},
    {"rating", nullptr, nullptr, ratingDecimal},
    {"filename", call<&KTPhoto::filename>},
    {"dateTimeOriginalComponents", components<Which::Original>, setComponents<Which::Original>},
    {"dateTimeDigitizedComponents", components<Which::Digitized>, setComponents<Which::Digitized>},

    // Capture dates
    {"dateTimeOriginal", date<Which::Original>, setDate<Which::Original>},
    {"dateTimeOriginalTimeZone", timeZone<Which::Original>, setTimeZone<Which::Original>},
    {"dateTimeOriginalShift", shift<Which::Original>, setShift<Which::Original>},
    {"dateTimeDigitized", date<Which::Digitized>, setDate<Which::Digitized>},
    {"dateTimeDigitizedTimeZone", timeZone<Which::Digitized>, setTimeZone<Which::Digitized>},
    {"dateTimeDigitizedShift", shift<Which::Digitized>, setShift<Which::Digitized>},

    // Sources
    {"savedExifToolImageMetadataDictionary", savedDictionary<Kind::Image>},
    {"exifToolImageMetadataChangesDictionary", changesDictionary<Kind::Image>},
    {"imageMetadataProperties", metadataProperties<Kind::Image>},
    {"savedExifToolSidecarMetadataDictionary", savedDictionary<Kind::Sidecar>},
    {"exifToolSidecarMetadataChangesDictionary", changesDictionary<Kind::Sidecar>},
    {"sidecarMetadataProperties", metadataProperties<Kind::Sidecar>},
    {"savedIPhotoMetadataDictionary", savedDictionary<Kind::Library>},
    {"iPhotoMetadataChangesDictionary", changesDictionary<Kind::Library>},

    // State
    {"isValid", call<&KTPhoto::isValid>},
    {"shouldUseIPhotoProperties", call<&KTPhoto::shouldUseIPhotoProperties>},
    {"shouldUseMediaObjectProperties", call<&KTPhoto::shouldUseMediaObjectProperties>},
    {"isSyncingWithAperture", call<&KTPhoto::isSyncingWithAperture>},
    {"writingToImageFile", call<&KTPhoto::writingToImageFile>},
    {"writingToXMPSidecar", call<&KTPhoto::writingToXMPSidecar>},
    {"unsavedFile", call<&KTPhoto::unsavedFile>},
    {"unsavedSidecar", call<&KTPhoto::unsavedSidecar>},
    {"unsavedIPhoto", call<&KTPhoto::unsavedIPhoto>},
    {"hasUnsavedChanges", call<&KTPhoto::hasUnsavedChanges>},
    {"lastRecordedUndoKey", call<&KTPhoto::lastRecordedUndoKey>},
    {"doNotTrackChangesStack", undoCount},
    {"isGeotagged", call<&KTPhoto::isGeotagged>},
    {"hasLatitudeLongitudeCreated", call<&KTPhoto::hasLatitudeLongitudeCreated>},
    {"hasLatitudeLongitudeShown", call<&KTPhoto::hasLatitudeLongitudeShown>},

    // Files
    {"fileURL", call<&KTPhoto::path>},
    {"presentedItemURL", call<&KTPhoto::path>},
    {"path", call<&KTPhoto::path>},
    {"xmpURL", pathOfSidecar},
    {"hasXMPSidecar", call<&KTPhoto::hasXMPSidecar>},
    {"uti", call<&KTPhoto::uti>},

    // Browser and map
    {"imageUID", call<&KTPhoto::path>},
    {"imageRepresentation", call<&KTPhoto::path>},
    {"imageRepresentationType", representationType},
    {"imageTitle", call<&KTPhoto::filename>},
    {"imageSubtitle", call<&KTPhoto::imageSubtitle>},
    {"featureName", call<&KTPhoto::featureName>},
    {"featureDescription", call<&KTPhoto::featureDescription>},
    {"kind", call<&KTPhoto::kind>},
    {"allowsInteraction", call<&KTPhoto::allowsInteraction>},
};

/// The rows and the catalogue's fields put together.
struct Table {
    std::vector<KTPhotoProperty> all;
    std::unordered_map<std::string_view, const KTPhotoProperty*> byKey;
    std::size_t stored = 0;

    Table() {
        const auto& fields = KTMetadataFieldManager::sharedMetadataFieldManager().metadataFields();
        all.assign(std::begin(kRows), std::end(kRows));
        for (const auto& field : fields) {
            auto row = std::ranges::find(all, field->key(), &KTPhotoProperty::key);
            if (row == all.end())
                row = all.insert(all.end(), KTPhotoProperty{field->key()});
            row->field = field.get();
        }
        for (KTPhotoProperty& property : all) {
            if (property.get == nullptr)
                property.place = stored++;
            byKey.emplace(property.key, &property);
        }
    }

    static const Table& shared() {
        static const Table table;
        return table;
    }
};

} // namespace

const KTPhotoProperty* KTPhotoPropertyTable::propertyForKey(std::string_view key) {
    const auto& byKey = Table::shared().byKey;
    const auto entry = byKey.find(key);
    return entry == byKey.end() ? nullptr : entry->second;
}

std::span<const KTPhotoProperty> KTPhotoPropertyTable::properties() {
    return Table::shared().all;
}

std::size_t KTPhotoPropertyTable::storedValues() {
    return Table::shared().stored;
}

bool KTPhotoPropertyTable::isFromFile(std::string_view key) {
    return key == "filename" || key == "fileSize" || key == "creationDate";
}
