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

/// One number first: "47,5" is a latitude here, not a position.
KTFieldText::Parsed KTMetadataFieldLonLatArrayViewItem::parse(const Typed& typed) const {
    const auto key = keys();
    KTValue::Dictionary values;
    for (const Half half : {First, Second}) {
        const std::string& text = typed.texts[half];
        if (!typed.isTyped[half])
            continue;
        const auto degrees =
            half == First ? KTCoordinates::latitudeFromText(text) : KTCoordinates::longitudeFromText(text);
        if (degrees)
            values.emplace(key[half], *degrees);
        else if (KTTrimmed(text).empty())
            values.emplace(key[half], KTValue::null());
        else if (const auto pair = KTCoordinates::fromText(text))
            return valuesFor({{key[First], pair->latitude}, {key[Second], pair->longitude}});
        else
            return {nullptr, half == First
                                 ? KTLocalizedString("This is no latitude, such as 46.05108 or 46° 3′ N.")
                                 : KTLocalizedString("This is no longitude, such as 14.50513 or 14° 30′ E.")};
    }
    return valuesFor(std::move(values));
}
