#include "app/editor/KTMetadataFieldComboBoxArrayViewItem.h"

#include "metadata/KTMetadataField.h"
#include "platform/common/KTCountryCodes.h"
#include "platform/common/KTText.h"

KTMetadataFieldComboBoxArrayViewItem::KTMetadataFieldComboBoxArrayViewItem(
    KTEditorSelection& editorSelection, std::shared_ptr<KTMetadataField> editedField,
    KTMetadataFieldItemChoice itemChoice, KTComboBoxStoreController& store)
    : KTMetadataFieldArrayViewItem(editorSelection, std::move(editedField), itemChoice),
      autocomplete(store, field->name()) {}

void KTMetadataFieldComboBoxArrayViewItem::didCommit(const std::string& typed) {
    if (KTTrimmed(typed).empty())
        return;
    willChange("comboBoxArray");
    autocomplete.add(typed);
    didChange("comboBoxArray");
}

std::vector<std::string> KTMetadataFieldCountryCodeArrayViewItem::comboBoxArray() const {
    std::vector<std::string> names;
    for (const KTCountry& country : KTCountries())
        names.push_back(country.name);
    return names;
}

std::optional<std::string>
KTMetadataFieldCountryCodeArrayViewItem::firstValueMatchingPrefix(const std::string& prefix) const {
    return KTFirstTextMatchingPrefix(comboBoxArray(), prefix);
}

std::string KTMetadataFieldCountryCodeArrayViewItem::countryName() const {
    const auto code = KTCountryCodeFromText(text());
    return code ? KTCountryNameOfCode(*code) : "";
}
