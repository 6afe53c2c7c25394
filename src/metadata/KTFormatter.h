#pragma once
#include "platform/common/KTValue.h"

/// Turns a field's value into the text that is shown. For display only; nothing is parsed back. Any thread.
class KTFormatter {
public:
    virtual ~KTFormatter() = default;
    /// Empty for an absent value, the null marker and kinds of value that the formatter does not handle.
    virtual std::string stringForObjectValue(const KTValue& value) const = 0;
};
