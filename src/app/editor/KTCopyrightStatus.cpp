#include "app/editor/KTCopyrightStatus.h"

#include "platform/common/KTLocalizedString.h"

std::vector<KTCopyrightStatus> KTCopyrightStatuses() {
    std::vector<KTCopyrightStatus> statuses{{KTLocalizedString("Unknown"), " "}};
    for (const char* status : {"Copyrighted", "Public Domain"})
        statuses.push_back({KTLocalizedString(status), status});
    return statuses;
}

std::optional<std::size_t> KTCopyrightStatusIndex(const KTSelectedValue& value) {
    if (value.state == KTSelectedValue::State::Absent)
        return 0;
    const auto statuses = KTCopyrightStatuses();
    for (std::size_t i = 0; i < statuses.size(); ++i)
        if (value.state == KTSelectedValue::State::Equal && statuses[i].value == value.value)
            return i;
    return std::nullopt;
}
