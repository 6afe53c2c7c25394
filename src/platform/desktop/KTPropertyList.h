#pragma once
#include "platform/common/KTValue.h"

#include <filesystem>

/// Property lists: texts, whole and decimal numbers, flags, and lists and dictionaries of these. Any thread.

/// What the property list in @p file, XML or binary, holds; absent when it cannot be read, is none, or is
/// larger than a megabyte. Dates and data are left out.
KTValue KTValueFromPropertyList(const std::filesystem::path& file);
/// Writes @p value as an XML property list to @p file, in one step. An error text for users, nothing when
/// done; then the file is as it was.
std::optional<std::string> KTWritePropertyList(const KTValue& value, const std::filesystem::path& file);
