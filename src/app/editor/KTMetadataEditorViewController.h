#pragma once
#include "app/editor/KTEditorSelection.h"
#include "metadata/KTMetadataGroup.h"

class KTComboBoxStoreController;
class KTMetadataFieldArrayViewItem;
class KTMetadataFieldManager;

/// The metadata editor: which groups of which fields it shows, in which order and under which names, and the
/// editor of each field over the selected photos. Announces "groups" (others, or in another order) and
/// "inCustomizationMode"; the groups announce what changes within them. What the user arranges is kept in the
/// setting "defaultEditorGroups". Main thread.
class KTMetadataEditorViewController : public KTObservable {
public:
    using Group = std::shared_ptr<KTMetadataGroup>;
    using Groups = std::vector<Group>;

    /// All must outlive the controller, and the controller its items.
    KTMetadataEditorViewController(KTPhotoManager& collection, KTMetadataFieldManager& catalogue,
                                   KTComboBoxStoreController& store);

    KTEditorSelection& selection() { return editorSelection; }
    /// "12 photos", "1 photo", "No Photos Selected".
    std::string title() const;
    /// To be called before whatever works on the photos, such as a save, and before the end.
    void commitEditing() { editorSelection.commitPendingEdit(); }

    const Groups& groups() const { return editorGroups; }
    void setGroups(Groups newGroups);
    /// "defaultGroups": those of a new user.
    void resetToDefaultGroups();
    /// "arrayView:itemForObject:": the editor of @p field, which is one of @p group; null for a field without
    /// one.
    std::unique_ptr<KTMetadataFieldArrayViewItem>
    arrayViewItemForObject(const KTMetadataGroup& group, const std::shared_ptr<KTMetadataField>& field);

    // Customization
    bool inCustomizationMode() const { return isCustomized; }
    void setInCustomizationMode(bool isInMode);
    bool canRenameGroup(const KTMetadataGroup&) const { return isCustomized; }
    /// A blank name is not taken, here and for fields.
    void renameGroup(KTMetadataGroup& group, std::string name);
    void renameField(KTMetadataField& field, std::string name);
    /// A new group, "Untitled", at the end.
    Group addGroup();
    /// A copy of a group of the catalogue, with those of its fields that have an editor, before the group at
    /// @p atIndex or at the end.
    Group addCatalogueGroup(const KTMetadataGroup& ofCatalogue, std::size_t atIndex);
    void removeGroup(Group group);
    void moveGroup(std::size_t from, std::size_t toIndex);
    /// Adds the catalogue's field of that key; false for an unknown one, and for one without editor.
    bool addField(std::string_view key, KTMetadataGroup& toGroup, std::size_t atIndex);
    void removeField(const KTMetadataField& field);
    /// Whether some group shows the field.
    bool showsField(std::string_view key) const;
    /// What a field is dragged as, under KTMetadataFieldArrayViewItem::kDragType: a field of the editor, or
    /// one of the catalogue.
    std::string dragDataOfField(const KTMetadataField& field) const;
    std::string dragDataOfCatalogueField(std::string_view key) const;
    /// Drops it before the field at @p atIndex of a group, or at its end. False for what was not dragged from
    /// here, or is gone.
    bool dropField(std::string_view dragData, KTMetadataGroup& inGroup, std::size_t atIndex);
    /// Keeps the groups as they are now; the changes above do so themselves.
    void saveGroupState() const;

private:
    struct Place {
        Group group;
        std::size_t index;
    };

    std::optional<Place> placeOf(const KTMetadataField& field) const;
    Groups storedGroups() const;
    template<class Change>
    void changeGroups(Change&& change);

    KTMetadataFieldManager& metadataFieldManager;
    KTComboBoxStoreController& comboBoxStore;
    KTEditorSelection editorSelection;
    Groups editorGroups;
    bool isCustomized = false;
};
