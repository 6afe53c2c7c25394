#include "export/KTExportedPhotoCopy.h"

KTExportedValue KTExportedPhotoCopy::valueForKey(std::string_view key) const {
    const KTValue value = copied->valueForKey(key);
    if (!value.isSomething())
        return {};
    if (auto number = value.number())
        return number->toDouble();
    if (auto flag = value.flag())
        return *flag;
    if (auto date = value.date())
        return *date;
    if (value.list() != nullptr)
        return value.texts();
    return value.description();
}
