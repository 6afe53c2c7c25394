#include "app/editor/KTMetadataFieldItemKind.h"

#include "metadata/KTMetadataField.h"

#include <algorithm>

namespace {

using Kind = KTMetadataFieldItemKind;
using Choice = std::optional<KTMetadataFieldItemChoice>;

struct KeyRow {
    std::string_view key;
    Choice choice;
};

// The keys whose editor does not follow from the type of their values.
const KeyRow kKeys[] = {
    {"latitude", {{Kind::LonLat}}},
    {"longitude", std::nullopt}, // the latitude's editor shows both
    {"latitudeShown", {{Kind::LonLat, true}}},
    {"longitudeShown", std::nullopt},
    {"title", {{Kind::TextField}}},
    {"rating", {{Kind::Rating}}},
    {"marked", {{Kind::Marked}}},
    {"headline", {{Kind::ResizeableTextView}}},
    {"caption", {{Kind::ResizeableTextView}}},
    {"countryCodeCreated", {{Kind::CountryCode}}},
    {"countryCodeShown", {{Kind::CountryCode}}},
};

} // namespace

Choice KTMetadataFieldItemFor(const KTMetadataField& field) {
    const auto row = std::ranges::find(kKeys, field.key(), &KeyRow::key);
    if (row != std::end(kKeys))
        return row->choice;
    const bool isEditable = field.directlyUserEditable();
    if (field.key() == "altitude")
        return {{isEditable ? Kind::TextField : Kind::Static}};
    switch (field.propertyType()) {
    case KTValueType::Text:
    case KTValueType::Decimal:
        return {{isEditable ? Kind::ComboBox : Kind::Static}};
    case KTValueType::Date:
        return {{Kind::DateTime}};
    case KTValueType::DateComponents:
        return {{.kind = Kind::DateTime, .usesComponents = true}};
    case KTValueType::List:
        return {{Kind::MultipleValue}};
    case KTValueType::None:
        break;
    }
    return std::nullopt;
}
