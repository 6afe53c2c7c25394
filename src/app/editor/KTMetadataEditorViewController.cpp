#include "app/editor/KTMetadataEditorViewController.h"

#include "app/editor/KTMetadataFieldComboBoxArrayViewItem.h"
#include "app/editor/KTMetadataFieldDateTimeArrayViewItem.h"
#include "app/editor/KTMetadataFieldLonLatArrayViewItem.h"
#include "app/editor/KTMetadataFieldMultipleValueArrayViewItem.h"
#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/defaults/KTUserDefaults.h"

#include <algorithm>
#include <charconv>

namespace {

constexpr std::string_view kGroupsSetting = "defaultEditorGroups";
constexpr std::string_view kEditorPrefix = "editor:", kCataloguePrefix = "catalogue:";

} // namespace

KTMetadataEditorViewController::KTMetadataEditorViewController(KTPhotoManager& collection,
                                                               KTMetadataFieldManager& catalogue,
                                                               KTComboBoxStoreController& store)
    : metadataFieldManager(catalogue), comboBoxStore(store), editorSelection(collection),
      editorGroups(storedGroups()) {}

std::string KTMetadataEditorViewController::title() const {
    const std::size_t count = editorSelection.photos()->size();
    if (count == 0)
        return KTLocalizedString("No Photos Selected");
    return KTLocalizedCount("1 photo", "%lu photos", count);
}

/// Those of a new user where nothing is stored, and where what is stored is no list of groups.
KTMetadataEditorViewController::Groups KTMetadataEditorViewController::storedGroups() const {
    const KTValue stored = KTUserDefaults::standardUserDefaults().valueForKey(kGroupsSetting);
    if (!stored.list())
        return metadataFieldManager.defaultGroups();
    Groups groups;
    for (const KTValue& archive : *stored.list())
        if (archive.dictionary())
            groups.push_back(KTMetadataGroup::decode(*archive.dictionary()));
    return groups.empty() && !stored.list()->empty() ? metadataFieldManager.defaultGroups() : groups;
}

void KTMetadataEditorViewController::saveGroupState() const {
    KTValue::List archive;
    for (const Group& group : editorGroups)
        archive.emplace_back(group->encode());
    KTUserDefaults::standardUserDefaults().setValue(kGroupsSetting, archive);
}

template<class Change>
void KTMetadataEditorViewController::changeGroups(Change&& change) {
    commitEditing();
    willChange("groups");
    change(editorGroups);
    didChange("groups");
    saveGroupState();
}

void KTMetadataEditorViewController::setGroups(Groups newGroups) {
    changeGroups([&](Groups& groups) { groups = std::move(newGroups); });
}

void KTMetadataEditorViewController::resetToDefaultGroups() {
    setGroups(metadataFieldManager.defaultGroups());
}

std::unique_ptr<KTMetadataFieldArrayViewItem>
KTMetadataEditorViewController::arrayViewItemForObject(const KTMetadataGroup& group,
                                                       const std::shared_ptr<KTMetadataField>& field) {
    const auto choice = KTMetadataFieldItemFor(*field);
    if (!choice)
        return nullptr;
    auto item = [&]() -> std::unique_ptr<KTMetadataFieldArrayViewItem> {
        using Kind = KTMetadataFieldItemKind;
        switch (choice->kind) {
        case Kind::LonLat:
            return std::make_unique<KTMetadataFieldLonLatArrayViewItem>(editorSelection, field, *choice);
        case Kind::DateTime:
            return std::make_unique<KTMetadataFieldDateTimeArrayViewItem>(editorSelection, field, *choice);
        case Kind::CountryCode:
            return std::make_unique<KTMetadataFieldCountryCodeArrayViewItem>(editorSelection, field, *choice,
                                                                             comboBoxStore);
        case Kind::ComboBox:
            return std::make_unique<KTMetadataFieldComboBoxArrayViewItem>(editorSelection, field, *choice,
                                                                          comboBoxStore);
        case Kind::MultipleValue:
            return std::make_unique<KTMetadataFieldMultipleValueArrayViewItem>(editorSelection, field,
                                                                               *choice, comboBoxStore);
        default:
            return std::make_unique<KTMetadataFieldArrayViewItem>(editorSelection, field, *choice);
        }
    }();
    item->setInCustomizationMode(isCustomized);
    item->setCanRenameLabel(canRenameGroup(group));
    return item;
}

void KTMetadataEditorViewController::setInCustomizationMode(bool isInMode) {
    commitEditing();
    willChange("inCustomizationMode");
    isCustomized = isInMode;
    didChange("inCustomizationMode");
}

void KTMetadataEditorViewController::renameGroup(KTMetadataGroup& group, std::string name) {
    if (KTTrimmed(name).empty())
        return;
    group.setName(std::move(name));
    saveGroupState();
}

void KTMetadataEditorViewController::renameField(KTMetadataField& field, std::string name) {
    if (KTTrimmed(name).empty())
        return;
    field.setName(std::move(name));
    saveGroupState();
}

KTMetadataEditorViewController::Group KTMetadataEditorViewController::addGroup() {
    auto group = std::make_shared<KTMetadataGroup>();
    changeGroups([&](Groups& groups) { groups.push_back(group); });
    return group;
}

KTMetadataEditorViewController::Group
KTMetadataEditorViewController::addCatalogueGroup(const KTMetadataGroup& ofCatalogue, std::size_t atIndex) {
    auto group = KTMetadataGroup::initWithName(ofCatalogue.name());
    for (const auto& field : ofCatalogue.fields())
        if (KTMetadataFieldItemFor(*field))
            group->addField(field->copy());
    changeGroups([&](Groups& groups) {
        groups.insert(groups.begin() + std::ptrdiff_t(std::min(atIndex, groups.size())), group);
    });
    return group;
}

/// By value: the caller may name an element of the list.
void KTMetadataEditorViewController::removeGroup(Group group) {
    changeGroups([&](Groups& groups) { std::erase(groups, group); });
}

void KTMetadataEditorViewController::moveGroup(std::size_t from, std::size_t toIndex) {
    if (from >= editorGroups.size() || toIndex >= editorGroups.size())
        return;
    changeGroups([&](Groups& groups) {
        const Group group = groups[from];
        groups.erase(groups.begin() + std::ptrdiff_t(from));
        groups.insert(groups.begin() + std::ptrdiff_t(toIndex), group);
    });
}

bool KTMetadataEditorViewController::addField(std::string_view key, KTMetadataGroup& toGroup,
                                              std::size_t atIndex) {
    const auto field = metadataFieldManager.metadataFieldForKey(key);
    if (field == nullptr || !KTMetadataFieldItemFor(*field))
        return false;
    if (!toGroup.addField(field->copy(), std::min(atIndex, toGroup.fields().size())))
        return false;
    saveGroupState();
    return true;
}

void KTMetadataEditorViewController::removeField(const KTMetadataField& field) {
    commitEditing();
    for (const Group& group : editorGroups)
        if (group->removeField(field))
            return saveGroupState();
}

bool KTMetadataEditorViewController::showsField(std::string_view key) const {
    return std::ranges::any_of(editorGroups, [&](const Group& group) {
        return std::ranges::any_of(group->fields(), [&](const auto& field) { return field->key() == key; });
    });
}

std::optional<KTMetadataEditorViewController::Place>
KTMetadataEditorViewController::placeOf(const KTMetadataField& field) const {
    for (const Group& group : editorGroups)
        for (std::size_t i = 0; i < group->fields().size(); ++i)
            if (group->fields()[i].get() == &field)
                return Place{group, i};
    return std::nullopt;
}

/// "editor:GROUP:FIELD", by their places.
std::string KTMetadataEditorViewController::dragDataOfField(const KTMetadataField& field) const {
    const auto place = placeOf(field);
    if (!place)
        return "";
    const auto group = std::ranges::find(editorGroups, place->group) - editorGroups.begin();
    return std::string(kEditorPrefix) + std::to_string(group) + ":" + std::to_string(place->index);
}

std::string KTMetadataEditorViewController::dragDataOfCatalogueField(std::string_view key) const {
    return std::string(kCataloguePrefix) + std::string(key);
}

bool KTMetadataEditorViewController::dropField(std::string_view dragData, KTMetadataGroup& inGroup,
                                               std::size_t atIndex) {
    if (dragData.starts_with(kCataloguePrefix))
        return addField(dragData.substr(kCataloguePrefix.size()), inGroup, atIndex);
    if (!dragData.starts_with(kEditorPrefix))
        return false;
    std::size_t group = editorGroups.size(), index = 0;
    const auto parts = KTSplit(dragData.substr(kEditorPrefix.size()), ':');
    if (parts.size() == 2) {
        std::from_chars(parts[0].data(), parts[0].data() + parts[0].size(), group);
        std::from_chars(parts[1].data(), parts[1].data() + parts[1].size(), index);
    }
    if (group >= editorGroups.size() || index >= editorGroups[group]->fields().size())
        return false;
    commitEditing();
    const Group from = editorGroups[group];
    const std::size_t before = from.get() == &inGroup && index < atIndex ? atIndex - 1 : atIndex;
    const auto field = from->fields()[index];
    if (from.get() == &inGroup)
        inGroup.moveFieldFromIndex(index, std::min(before, inGroup.fields().size() - 1));
    else if (from->removeField(*field))
        inGroup.addField(field, std::min(before, inGroup.fields().size()));
    saveGroupState();
    return true;
}
