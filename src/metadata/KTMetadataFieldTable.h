#pragma once
#include "metadata/KTMetadataField.h"

#include <span>

/// How a field's value can be changed.
enum class KTFieldEditing {
    ReadOnly,
    Tools,  ///< by the geotagging, date and location tools
    Direct, ///< by typing
};

/// The tags of a simple or composite field, null where it has none.
struct KTFieldTagKeys {
    const char* primary = nullptr;
    const char* xmp = nullptr;
    const char* composite = nullptr;
};

/// What few rows need.
struct KTFieldNotes {
    const char* secondaryName = nullptr;
    const char* singularName = nullptr;
    KTValueType writtenType = KTValueType::None; ///< where it differs from the property's type
};

/// One row of the catalogue.
struct KTMetadataFieldRow {
    const char* key;
    std::shared_ptr<KTMetadataField> (*make)(KTMetadataFieldDefinition definition);
    const char* name; ///< English
    KTValueType type;
    std::shared_ptr<const KTFormatter> (*formatter)(); ///< null for none
    KTFieldEditing editing;
    KTFieldTagKeys tagKeys = {};
    KTFieldNotes notes = {};
};

struct KTMetadataGroupRow {
    const char* name; ///< English
    std::span<const KTMetadataFieldRow> fields;
};

/// The catalogue as written down: 89 fields in 12 groups.
std::span<const KTMetadataGroupRow> KTMetadataFieldTable();
