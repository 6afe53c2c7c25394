#pragma once
#include "export/waymark/KTPhotoExportInterface.h"

/// The option @p key; @p fallback where it is missing or of another kind.
template<class Value>
Value KTOptionOr(const KTPhotoExportOptions& options, const char* key, Value fallback) {
    const auto option = options.find(key);
    const Value* value = option == options.end() ? nullptr : std::get_if<Value>(&option->second);
    return value == nullptr ? fallback : *value;
}
