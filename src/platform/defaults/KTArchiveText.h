#pragma once
#include "platform/common/KTValue.h"

/// @p value (texts, whole and decimal numbers, flags, and lists and dictionaries of these) as one line of
/// JSON. Values of other kinds become their description. Any thread.
std::string KTArchiveText(const KTValue& value);

/// The value that KTArchiveText wrote; absent for a text that is not JSON. A number that is not whole is read
/// as a decimal. Any thread.
KTValue KTValueFromArchiveText(std::string_view text);
