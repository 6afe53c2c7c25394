#pragma once
#include <optional>
#include <string>
#include <vector>

class KTComboBoxStoreController;

/// @p prefix as typed, followed by the rest of the first of @p texts that begins with it without regard to
/// letter case; nothing when none does, and for an empty prefix.
std::optional<std::string> KTFirstTextMatchingPrefix(const std::vector<std::string>& texts,
                                                     const std::string& prefix);

/// The texts that were typed for one field before, to be offered again. Each stands once, in the letter case
/// last typed. Main thread.
class KTAutocompleteValues {
public:
    /// @p store must outlive the object; @p name is the field's display name.
    KTAutocompleteValues(KTComboBoxStoreController& store, std::string name);

    /// "comboBoxArray": sorted without regard to letter case.
    const std::vector<std::string>& values() const { return sorted; }
    /// Remembers what the user has typed; an empty text is not taken.
    void add(const std::string& typed);
    std::optional<std::string> firstValueMatchingPrefix(const std::string& prefix) const;

private:
    void sort();

    KTComboBoxStoreController& comboBoxStore;
    const std::string key;
    std::vector<std::string> sorted;
};
