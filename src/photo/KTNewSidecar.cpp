#include "photo/KTNewSidecar.h"

#include "metadata/KTMetadataFieldManager.h"
#include "photo/KTSameValue.h"

#include <regex>

namespace {

/// Every tag of the image under the name that it may have in XMP.
KTTagDictionary tagsRenamedToXMP(const KTTagDictionary& image) {
    std::vector<KTTagDictionary::Entry> tags;
    for (const auto& [key, value] : image)
        tags.push_back({KTTagKey("XMP" + key.text().substr(key.text().find(':'))), value});
    return KTTagDictionary(std::move(tags));
}

/// The tags that stand in the copy as the fields would write them.
KTTagDictionary tagsCopiedAsTheyStand(const KTTagDictionary& image) {
    KTTagDictionary tags;
    tags.set("XMP:GPSDateTime", image.valueForKey("Composite:GPSDateTime"));
    tags.set("XMP:ImageDescription", image.valueForKey("EXIF:ImageDescription"));
    for (const auto& [key, value] : image)
        if (key.text().starts_with("XMP:"))
            tags.set(key, value);
    return tags;
}

/// The text of the image's XMP where that is a date, which may tell more than the one that a field writes.
KTValue datedAsItStands(const KTValue& inXMP, const KTValue& written) {
    static const std::regex date("[0-9]{4}:[0-9]{2}:[0-9]{2} [0-9]{2}:[0-9]{2}(:[0-9]{2}(\\.[0-9]+)?)?"
                                 "(Z|[+-][0-9]{2}:[0-9]{2})?");
    return inXMP.text() && std::regex_match(*inXMP.text(), date) ? inXMP : written;
}

} // namespace

KTTagDictionary valuesOfNewSidecar(const KTMetadataSource& image, const KTMetadataProperties& ofSidecar,
                                   const std::function<KTValue(const KTMetadataField&)>& shownValue) {
    const KTTagDictionary asTheyStand = tagsCopiedAsTheyStand(*image.saved);
    KTTagDictionary result;
    for (const auto& field : KTMetadataFieldManager::sharedMetadataFieldManager().metadataFields()) {
        if (field->readonly())
            continue;
        const KTValue value = shownValue(*field);
        if (KTIsSameValue(value, {}))
            continue;
        KTTagDictionary all, differing;
        field->modifyExifToolChangesDictionary(all, value, {}, ofSidecar);
        field->modifyExifToolChangesDictionary(differing, value, asTheyStand, ofSidecar);
        for (const auto& [key, written] : all)
            result.set(key, datedAsItStands(asTheyStand.valueForKey(key), written));
        for (const auto& [key, written] : differing)
            result.set(key, written);
    }
    return result;
}

void recordClearedInNewSidecar(const KTMetadataField& field, const KTMetadataSource& image,
                               KTMetadataSource& sidecar) {
    field.modifyExifToolChangesDictionary(sidecar.changes, {}, tagsRenamedToXMP(*image.saved),
                                          sidecar.properties);
}
