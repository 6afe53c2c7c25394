#pragma once
#include "platform/common/KTValue.h"
#include "tests/corpus/StockExifTool.h"

#include <ostream>

/// Which properties the check edits.
enum class Edit { NineValues, RatingAlone };

inline void PrintTo(Edit edit, std::ostream* out) {
    *out << (edit == Edit::NineValues ? "nine values" : "the rating alone");
}

/// What it writes into every photo, by property.
std::map<std::string, KTValue> editedValues(Edit edit);

/// What one file must hold afterwards: by key, the new values.
using IntendedTags = std::map<std::string, std::vector<std::string>>;

/// The tags that the edited values must become in a file that held @p before, worked out from the rules that
/// say which tags each property is kept in, without the program's own field classes.
IntendedTags intendedInImage(Edit edit, const FileTags& before);
IntendedTags intendedInSidecar(Edit edit, const FileTags& before);
