#pragma once
#include "app/editor/KTAutocompleteValues.h"
#include "app/editor/KTMetadataFieldArrayViewItem.h"

/// The editor of a text with the texts typed before.
class KTMetadataFieldComboBoxArrayViewItem : public KTMetadataFieldArrayViewItem {
public:
    /// @p store must outlive the item.
    KTMetadataFieldComboBoxArrayViewItem(KTEditorSelection& selection, std::shared_ptr<KTMetadataField> field,
                                         KTMetadataFieldItemChoice choice, KTComboBoxStoreController& store);
    ~KTMetadataFieldComboBoxArrayViewItem() override { endEditing(); }

    /// "comboBoxArray": what is offered.
    virtual std::vector<std::string> comboBoxArray() const { return autocomplete.values(); }
    /// The typed text completed; nothing where nothing offered begins with it.
    virtual std::optional<std::string> firstValueMatchingPrefix(const std::string& prefix) const {
        return autocomplete.firstValueMatchingPrefix(prefix);
    }

protected:
    void didCommit(const std::string& typed) override;

private:
    KTAutocompleteValues autocomplete;
};

/// The editor of a country code: codes and names of countries can be typed, and all are offered by name.
class KTMetadataFieldCountryCodeArrayViewItem : public KTMetadataFieldComboBoxArrayViewItem {
public:
    using KTMetadataFieldComboBoxArrayViewItem::KTMetadataFieldComboBoxArrayViewItem;

    /// The names of all countries.
    std::vector<std::string> comboBoxArray() const override;
    std::optional<std::string> firstValueMatchingPrefix(const std::string& prefix) const override;
    /// The name of the country whose code the selected photos have, or which is being typed; empty for none.
    std::string countryName() const;

protected:
    void didCommit(const std::string&) override {} // names are known without being remembered
};
