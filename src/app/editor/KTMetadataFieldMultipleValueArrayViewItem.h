#pragma once
#include "app/editor/KTAutocompleteValues.h"
#include "app/editor/KTListEditing.h"
#include "app/editor/KTMetadataFieldArrayViewItem.h"

/// The editor of a list, as a table: a row for each element that the lists of all selected photos hold, and
/// an empty one, the last, for adding. Each change of the table is made to every photo's list, whose other
/// elements stay in their places (KTListEditing), as one undo step. Beside what the base announces: "values"
/// when the table has other rows, "selectedRows" and "editedRow".
class KTMetadataFieldMultipleValueArrayViewItem : public KTMetadataFieldArrayViewItem {
public:
    using List = KTListEditing::List;
    using Rows = std::vector<std::size_t>; ///< ascending, each once

    /// @p store must outlive the item.
    KTMetadataFieldMultipleValueArrayViewItem(KTEditorSelection& selection,
                                              std::shared_ptr<KTMetadataField> field,
                                              KTMetadataFieldItemChoice choice,
                                              KTComboBoxStoreController& store);
    ~KTMetadataFieldMultipleValueArrayViewItem() override { endEditing(); }

    // The table
    const List& values() const { return selection.commonValuesForKey(representedObject()->key()); }
    std::size_t numberOfRows() const { return values().size() + 1; }
    /// "Add a Keyword…" for the last row, where something can be added; else empty.
    std::string placeholderOfRow(std::size_t row) const;
    const Rows& selectedRows() const { return selectedTableRows; }
    void setSelectedRows(Rows rows);
    /// "comboBoxArray": the elements typed before.
    const List& comboBoxArray() const { return autocomplete.values(); }
    std::optional<std::string> firstValueMatchingPrefix(const std::string& prefix) const {
        return autocomplete.firstValueMatchingPrefix(prefix);
    }

    // Typing into a row, as an edit of the photos that are selected now
    /// The row that is being edited; nothing for none.
    std::optional<std::size_t> editedRow() const { return typedRow; }
    void beginEditingRow(std::size_t row);
    void setEditedText(std::string typed);
    /// Begins with the selected row, when one is.
    void editSelected();

    // Changes
    using KTMetadataFieldArrayViewItem::setValue;
    /// What a text typed into a row does: adds it, replaces the row's element by it, or, when it is empty,
    /// removes that. A text that is shown in some row changes no photo.
    void setValue(const std::string& text, std::size_t atIndex);
    void deleteValuesAtIndexes(const Rows& rows);
    void deleteSelected() { deleteValuesAtIndexes(selectedTableRows); }
    /// Puts the elements at @p rows, in their order, before the one at @p toIndex.
    void moveValuesAtIndexes(const Rows& rows, std::size_t toIndex);
    /// Rows are dragged within their own table, but not the one for adding.
    bool canDragRows(const Rows& rows) const;
    /// "MOVED_keywords_ROWS_TYPE".
    std::string movedValueRowsType() const;

private:
    using Edit = std::function<List(List)>;

    /// What a change is made to; outlives the item where a selection ends the typing.
    struct Context {
        KTPhotoManager* manager;
        KTEditorSelection::Snapshot photos;
        std::string key, actionName;
        List shown;
    };

    Context context() const;
    static void edit(const Context& context, const Edit& change);
    static void enter(const Context& context, const std::string& text, std::size_t row);
    void remember(const std::string& text);
    void setEditedRow(std::optional<std::size_t> row);

    KTAutocompleteValues autocomplete;
    List shownValues; // as last announced
    Rows selectedTableRows;
    std::optional<std::size_t> typedRow;
    std::shared_ptr<std::optional<std::string>> typedElement; // while a row is being edited
    Observation ownObservation;
};
