#include "app/editor/KTMetadataFieldLonLatArrayViewItem.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/geodesy/KTCoordinates.h"

namespace {

KTFieldText::Parsed valuesFor(KTValue::Dictionary values) {
    return {[values = std::move(values)](const KTPhoto&) { return values; }, {}};
}

} // namespace

std::vector<std::string> KTMetadataFieldLonLatArrayViewItem::keys() const {
    return isLocationShown() ? std::vector<std::string>{"latitudeShown", "longitudeShown"}
                             : std::vector<std::string>{"latitude", "longitude"};
}

std::string KTMetadataFieldLonLatArrayViewItem::placeholder(Half half) const {
    return selection.valueForKey(keys()[half]).state == KTSelectedValue::State::Mixed
               ? KTLocalizedString("Multiple values")
               : "";
}

KTMetadataFieldArrayViewItem::Texts KTMetadataFieldLonLatArrayViewItem::editingTexts() const {
    Texts texts;
    for (const Half half : {First, Second})
        if (const auto degrees = selection.valueForKey(keys()[half]).value.number())
            texts[half] = degrees->toText();
    return texts;
}

KTFieldText::Parsed KTMetadataFieldLonLatArrayViewItem::parse(const Typed& typed) const {
    const auto key = keys();
    for (const Half half : {First, Second})
        if (const auto pair = KTCoordinates::fromText(typed.texts[half]); pair && typed.isTyped[half])
            return valuesFor({{key[First], pair->latitude}, {key[Second], pair->longitude}});
    KTValue::Dictionary values;
    for (const Half half : {First, Second}) {
        if (!typed.isTyped[half])
            continue;
        if (KTTrimmed(typed.texts[half]).empty()) {
            values.emplace(key[half], KTValue::null());
            continue;
        }
        const auto degrees = half == First ? KTCoordinates::latitudeFromText(typed.texts[half])
                                           : KTCoordinates::longitudeFromText(typed.texts[half]);
        if (!degrees)
            return {nullptr, half == First
                                 ? KTLocalizedString("This is no latitude, such as 46.05108 or 46° 3′ N.")
                                 : KTLocalizedString("This is no longitude, such as 14.50513 or 14° 30′ E.")};
        values.emplace(key[half], *degrees);
    }
    return valuesFor(std::move(values));
}
