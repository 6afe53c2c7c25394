#include "app/editor/KTMetadataFieldDateTimeArrayViewItem.h"

#include "metadata/KTMetadataField.h"
#include "platform/common/KTText.h"

namespace {

std::string joined(const std::array<std::string, 2>& halves) {
    const std::string_view date = KTTrimmed(halves[0]), time = KTTrimmed(halves[1]);
    return std::string(date) + (time.empty() ? "" : " " + std::string(time));
}

bool isWholeDate(std::string_view text) {
    const auto date = KTDateComponents::dateComponentsWithString(text);
    return date && date->hour != KTDateComponents::kUndefined;
}

} // namespace

KTMetadataFieldArrayViewItem::Texts
KTMetadataFieldDateTimeArrayViewItem::textsOf(const KTMetadataField& field, const KTValue& date) {
    const std::string text = KTFieldText::editingText(field, date);
    const auto blank = text.find(' ');
    if (blank == std::string::npos)
        return {text};
    return {text.substr(0, blank), text.substr(blank + 1)};
}

KTMetadataFieldArrayViewItem::Texts KTMetadataFieldDateTimeArrayViewItem::editingTexts() const {
    return textsOf(*field, selectedValue().value);
}

KTFieldText::Parsed KTMetadataFieldDateTimeArrayViewItem::parse(const Typed& typed) const {
    if (isWholeDate(typed.texts[First]) && !typed.isTyped[Second])
        return KTFieldText::parse(*field, typed.texts[First]);
    const bool isOneHalf = typed.isTyped[First] != typed.isTyped[Second];
    if (!isOneHalf || selectedValue().state != KTSelectedValue::State::Mixed)
        return KTFieldText::parse(*field, joined(typed.texts));

    // Told by an example whether the half that was typed is one.
    const Half half = typed.isTyped[First] ? First : Second;
    Texts example = {"2000-01-01", "00:00:00"};
    example[half] = typed.texts[half];
    KTFieldText::Parsed result = KTFieldText::parse(*field, joined(example));
    if (result.values)
        result.values = [half, text = typed.texts[half], key = field->key(),
                         typedField = field](const KTPhoto& photo) -> KTValue::Dictionary {
            Texts halves = textsOf(*typedField, photo.valueForKey(key));
            halves[half] = text;
            const auto parsed = KTFieldText::parse(*typedField, joined(halves));
            return parsed.values ? parsed.values(photo) : KTValue::Dictionary();
        };
    return result;
}
