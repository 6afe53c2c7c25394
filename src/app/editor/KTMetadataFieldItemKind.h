#pragma once
#include <optional>

class KTMetadataField;

/// The kinds of editor that a field can get.
enum class KTMetadataFieldItemKind {
    LonLat,             ///< latitude and longitude in one
    TextField,          ///< one line
    Rating,             ///< stars
    Marked,             ///< the copyright status
    ResizeableTextView, ///< long texts
    CountryCode,        ///< a combo box of countries
    ComboBox,           ///< with autocomplete
    Static,             ///< shown, not typed
    DateTime,           ///< a date and a time
    MultipleValue,      ///< the elements of a list as rows
};

/// The editor of one field.
struct KTMetadataFieldItemChoice {
    KTMetadataFieldItemKind kind;
    bool isLocationShown = false; ///< of LonLat: the place shown, not the one where the picture was taken
    bool usesComponents = false;  ///< of DateTime: date components, not an instant
};

/// The editor that @p field gets, by its key and type; nothing for a field without one: those that another
/// field's editor shows too, and kinds of value that nobody edits.
std::optional<KTMetadataFieldItemChoice> KTMetadataFieldItemFor(const KTMetadataField& field);
