#include "export/KTExportedPhotoCopy.h"

#include <algorithm>

namespace {

/// Whether a photo's property says where it was taken or what place it shows.
bool isLocation(std::string_view key) {
    constexpr std::string_view kCreated[] = {"latitude", "longitude", "altitude", "imageDirection"};
    return key.starts_with("gps") || key.ends_with("Created") || key.ends_with("Shown") ||
           std::ranges::count(kCreated, key) != 0;
}

} // namespace

KTExportedValue KTExportedPhotoCopy::valueForKey(std::string_view key) const {
    if (isLocationHidden && isLocation(key))
        return {};
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
