#include "app/editor/KTAutocompleteValues.h"

#include "platform/common/KTSortDescriptor.h"
#include "platform/common/KTTextFolding.h"
#include "platform/defaults/KTComboBoxStoreController.h"

#include <QString>
#include <algorithm>

KTAutocompleteValues::KTAutocompleteValues(KTComboBoxStoreController& store, std::string name)
    : comboBoxStore(store), key(std::move(name)), sorted(store.cacheArrayForKey(key)) {
    sort();
}

/// Two fields of one name may each have stored a text.
void KTAutocompleteValues::sort() {
    std::ranges::sort(sorted, [](const std::string& left, const std::string& right) {
        const int order = KTCompareForSorting(left, right);
        return order != 0 ? order < 0 : left < right;
    });
    sorted.erase(std::ranges::unique(sorted).begin(), sorted.end());
}

void KTAutocompleteValues::add(const std::string& typed) {
    if (typed.empty() || std::ranges::find(sorted, typed) != sorted.end())
        return;
    std::erase_if(sorted, [&, folded = KTCaseFolded(typed)](const std::string& value) {
        const bool isOld = KTCaseFolded(value) == folded;
        if (isOld)
            comboBoxStore.removeValue(value, key);
        return isOld;
    });
    sorted.push_back(typed);
    sort();
    comboBoxStore.cacheValue(typed, key);
}

std::optional<std::string> KTAutocompleteValues::firstValueMatchingPrefix(const std::string& prefix) const {
    return KTFirstTextMatchingPrefix(sorted, prefix);
}

std::optional<std::string> KTFirstTextMatchingPrefix(const std::vector<std::string>& texts,
                                                     const std::string& prefix) {
    const QString typed = QString::fromStdString(prefix);
    for (const std::string& value : texts) {
        const QString candidate = QString::fromStdString(value);
        if (!typed.isEmpty() && candidate.startsWith(typed, Qt::CaseInsensitive))
            return prefix + candidate.mid(typed.size()).toStdString();
    }
    return std::nullopt;
}
