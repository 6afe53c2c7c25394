#pragma once
#include "platform/common/KTValue.h"

#include <span>

class KTMetadataField;
class KTPhoto;

/// One property of a photo. A field of the catalogue is stored under its key, unless a row of the table says
/// otherwise; every other property has a row.
struct KTPhotoProperty {
    std::string_view key;
    KTValue (*get)(const KTPhoto&) = nullptr;        ///< null for a stored value
    void (*set)(KTPhoto&, const KTValue&) = nullptr; ///< null for a stored value, or one that cannot be set
    KTValue (*normalized)(const KTValue&) = nullptr; ///< what is stored of a value; null for the value itself
    std::string_view alsoChanges = {};               ///< announced around each change
    bool isCoordinate = false;
    const KTMetadataField* field = nullptr; ///< filled in from the catalogue; null for other properties
    std::size_t place = 0;                  ///< filled in; among the stored values
};

/// The properties of every photo, made on first use. Any thread.
class KTPhotoPropertyTable {
public:
    /// Null for a key that is none.
    static const KTPhotoProperty* propertyForKey(std::string_view key);
    static std::span<const KTPhotoProperty> properties();
    static std::size_t storedValues();
    /// Whether a field of the catalogue is filled from the file itself, not from tags.
    static bool isFromFile(std::string_view key);
};
