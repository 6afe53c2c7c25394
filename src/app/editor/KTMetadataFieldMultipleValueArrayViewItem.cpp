#include "app/editor/KTMetadataFieldMultipleValueArrayViewItem.h"

#include "metadata/KTMetadataField.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"

#include <algorithm>

KTMetadataFieldMultipleValueArrayViewItem::KTMetadataFieldMultipleValueArrayViewItem(
    KTEditorSelection& editorSelection, std::shared_ptr<KTMetadataField> editedField,
    KTMetadataFieldItemChoice itemChoice, KTComboBoxStoreController& store)
    : KTMetadataFieldArrayViewItem(editorSelection, std::move(editedField), itemChoice),
      autocomplete(store, field->name()) {
    ownObservation = observe([this](const KTChange& change) {
        if (change.key != "value" || change.isPrior || values() == shownValues)
            return;
        shownValues = values();
        willChange("values");
        didChange("values");
        setSelectedRows({});
    });
}

std::string KTMetadataFieldMultipleValueArrayViewItem::placeholderOfRow(std::size_t row) const {
    if (row + 1 < numberOfRows() || !isEditable())
        return "";
    return KTStringWithFormat(KTLocalizedString("MetadataArrayAddText", "Add a %@…"),
                              {field->singularName()});
}

void KTMetadataFieldMultipleValueArrayViewItem::setSelectedRows(Rows rows) {
    willChange("selectedRows");
    selectedTableRows = std::move(rows);
    didChange("selectedRows");
}

void KTMetadataFieldMultipleValueArrayViewItem::setEditedRow(std::optional<std::size_t> row) {
    willChange("editedRow");
    typedRow = row;
    didChange("editedRow");
}

void KTMetadataFieldMultipleValueArrayViewItem::beginEditingRow(std::size_t row) {
    if (!isEditable() || row >= numberOfRows() || (isEditing() && typedRow == row))
        return;
    const auto text = std::make_shared<std::optional<std::string>>();
    selection.beginEdit({.owner = this,
                         .commit =
                             [context = context(), text, row] {
                                 if (*text)
                                     enter(context, **text, row);
                             },
                         .cancel = [text] { text->reset(); },
                         .didEnd =
                             [this, text] {
                                 if (*text)
                                     remember(**text);
                                 typedElement.reset();
                                 setEditedRow(std::nullopt);
                             }});
    typedElement = text;
    setEditedRow(row);
}

void KTMetadataFieldMultipleValueArrayViewItem::setEditedText(std::string typed) {
    if (typedElement)
        *typedElement = std::move(typed);
}

void KTMetadataFieldMultipleValueArrayViewItem::editSelected() {
    if (selectedTableRows.size() == 1)
        beginEditingRow(selectedTableRows.front());
}

KTMetadataFieldMultipleValueArrayViewItem::Context
KTMetadataFieldMultipleValueArrayViewItem::context() const {
    return {&selection.photoManager(), selection.photos(), field->key(), actionName(), values()};
}

/// Gives every photo its list as @p change leaves it.
void KTMetadataFieldMultipleValueArrayViewItem::edit(const Context& context, const Edit& change) {
    KTFieldEdit once(*context.manager, context.photos, context.actionName, false);
    once.update([&](const KTPhoto& photo) {
        return KTValue::Dictionary{
            {context.key, KTValue::listOfTexts(change(photo.valueForKey(context.key).texts()))}};
    });
    once.commit();
}

void KTMetadataFieldMultipleValueArrayViewItem::enter(const Context& context, const std::string& text,
                                                      std::size_t row) {
    const List& shown = context.shown;
    const std::string typed(KTTrimmed(text));
    const bool isNew = !typed.empty() && !KTListEditing::holds(shown, typed);
    if (isNew && row >= shown.size())
        edit(context, [&](List list) { return KTListEditing::listByAdding(std::move(list), typed); });
    else if (isNew)
        edit(context,
             [&](List list) { return KTListEditing::listByReplacing(std::move(list), shown[row], typed); });
    else if (typed.empty() && row < shown.size())
        edit(context,
             [&](List list) { return KTListEditing::listByRemoving(std::move(list), {shown[row]}); });
}

void KTMetadataFieldMultipleValueArrayViewItem::remember(const std::string& text) {
    willChange("comboBoxArray");
    autocomplete.add(std::string(KTTrimmed(text)));
    didChange("comboBoxArray");
}

void KTMetadataFieldMultipleValueArrayViewItem::setValue(const std::string& text, std::size_t atIndex) {
    if (!isEditable())
        return;
    selection.commitPendingEdit();
    enter(context(), text, atIndex);
    remember(text);
    announceValue();
    setSelectedRows({values().size()});
}

void KTMetadataFieldMultipleValueArrayViewItem::deleteValuesAtIndexes(const Rows& rows) {
    if (!isEditable())
        return;
    selection.commitPendingEdit();
    List removed;
    for (const std::size_t row : rows)
        if (row < values().size())
            removed.push_back(values()[row]);
    edit(context(), [&](List list) { return KTListEditing::listByRemoving(std::move(list), removed); });
    announceValue();
}

void KTMetadataFieldMultipleValueArrayViewItem::moveValuesAtIndexes(const Rows& rows, std::size_t toIndex) {
    if (!isEditable() || !canDragRows(rows))
        return;
    selection.commitPendingEdit();
    const List moved = KTListEditing::valuesByMoving(values(), rows, toIndex);
    edit(context(), [&](List list) { return KTListEditing::listByOrdering(std::move(list), moved); });
    announceValue();
}

bool KTMetadataFieldMultipleValueArrayViewItem::canDragRows(const Rows& rows) const {
    return !rows.empty() && std::ranges::all_of(rows, [&](std::size_t row) { return row < values().size(); });
}

std::string KTMetadataFieldMultipleValueArrayViewItem::movedValueRowsType() const {
    return KTStringWithFormat("MOVED_%@_ROWS_TYPE", {field->key()});
}
