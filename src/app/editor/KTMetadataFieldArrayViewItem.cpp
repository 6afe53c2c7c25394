#include "app/editor/KTMetadataFieldArrayViewItem.h"

#include "collection/KTPhotoEditing.h"
#include "metadata/KTMetadataField.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"

#include <algorithm>

KTMetadataFieldArrayViewItem::KTMetadataFieldArrayViewItem(KTEditorSelection& editorSelection,
                                                           std::shared_ptr<KTMetadataField> editedField,
                                                           KTMetadataFieldItemChoice itemChoice)
    : selection(editorSelection), field(std::move(editedField)), choice(itemChoice) {
    selectionObservation = selection.observe([this](const KTChange& change) { follow(change); });
    managerObservation = selection.photoManager().observe([this](const KTChange& change) {
        if (change.key == "isSyncingWithIPhoto")
            change.isPrior ? willChange("isSyncingViewHidden") : didChange("isSyncingViewHidden");
    });
}

KTMetadataFieldArrayViewItem::~KTMetadataFieldArrayViewItem() {
    endEditing();
}

void KTMetadataFieldArrayViewItem::follow(const KTChange& change) {
    if (change.isPrior)
        return;
    if (change.key == "photos") {
        forgetTyped();
        announceValue();
        willChange("isEditable");
        didChange("isEditable");
    }
    if (change.key == "photos" || change.key == "hasUnsavedEdits") {
        willChange("hasUnsavedEdit");
        didChange("hasUnsavedEdit");
    } else if (std::ranges::count(keys(), change.key) != 0) {
        if (typing && !isEditing() && editingTexts() != textsBefore)
            forgetTyped(); // what the photos have now is to be seen
        announceValue();
    }
}

void KTMetadataFieldArrayViewItem::forgetTyped() {
    typing.reset();
    whyNot.clear();
}

void KTMetadataFieldArrayViewItem::announceValue() {
    willChange("value");
    didChange("value");
}

const std::string& KTMetadataFieldArrayViewItem::label() const {
    return field->name();
}

const std::string& KTMetadataFieldArrayViewItem::secondaryLabel() const {
    return field->secondaryName();
}

const std::string& KTMetadataFieldArrayViewItem::helpText() const {
    return field->usageDescription();
}

void KTMetadataFieldArrayViewItem::renameLabel(std::string newLabel) {
    if (!mayRename || KTTrimmed(newLabel).empty())
        return;
    willChange("label");
    field->setName(std::move(newLabel));
    didChange("label");
}

void KTMetadataFieldArrayViewItem::setInCustomizationMode(bool isInMode) {
    endEditing();
    forgetTyped();
    willChange("isEditable");
    isCustomized = isInMode;
    didChange("isEditable");
}

bool KTMetadataFieldArrayViewItem::hasSyncingView() const {
    return choice.kind == Kind::MultipleValue || field->iPhotoSupported();
}

bool KTMetadataFieldArrayViewItem::isSyncingViewHidden() const {
    return !selection.photoManager().isSyncingWithIPhoto();
}

const KTSelectedValue& KTMetadataFieldArrayViewItem::selectedValue() const {
    return selection.valueForKey(field->key());
}

KTMetadataFieldArrayViewItem::Texts KTMetadataFieldArrayViewItem::editingTexts() const {
    return {KTFieldText::editingText(*field, selectedValue().value)};
}

std::string KTMetadataFieldArrayViewItem::text(Half half) const {
    return typing ? typing->texts[half] : editingTexts()[half];
}

std::string KTMetadataFieldArrayViewItem::displayText() const {
    return KTFieldText::displayText(*field, selectedValue().value);
}

std::string KTMetadataFieldArrayViewItem::placeholder(Half) const {
    return selectedValue().state == KTSelectedValue::State::Mixed ? KTLocalizedString("Multiple values") : "";
}

bool KTMetadataFieldArrayViewItem::isEditable() const {
    return choice.kind != Kind::Static && !isCustomized &&
           selectedValue().state != KTSelectedValue::State::NoSelection;
}

std::vector<std::string> KTMetadataFieldArrayViewItem::keys() const {
    return {field->key()};
}

std::string KTMetadataFieldArrayViewItem::actionName() const {
    return KTStringWithFormat(KTLocalizedString("Edit %@"), {field->name()});
}

KTFieldText::Parsed KTMetadataFieldArrayViewItem::parse(const Typed& typed) const {
    return KTFieldText::parse(*field, typed.texts[First]);
}

void KTMetadataFieldArrayViewItem::beginEditing() {
    const bool isText = choice.kind == Kind::TextField || choice.kind == Kind::ComboBox ||
                        choice.kind == Kind::ResizeableTextView;
    edit = std::make_shared<KTFieldEdit>(selection.photoManager(), selection.photos(), actionName(), isText);
    selection.beginEdit({.owner = this,
                         .commit = [edit = edit] { edit->commit(); },
                         .cancel = [edit = edit] { edit->cancel(); },
                         .didEnd = [this] { didEndEditing(); }});
    if (typing)
        return; // on with what was no value
    textsBefore = editingTexts();
    typing = Typed{textsBefore};
}

/// A text that is no value stays in the editor.
void KTMetadataFieldArrayViewItem::didEndEditing() {
    edit.reset();
    if (whyNot.empty())
        if (const auto typed = std::exchange(typing, std::nullopt))
            didCommit(typed->texts[First]);
    announceValue();
}

void KTMetadataFieldArrayViewItem::setText(std::string typed, Half half) {
    if (!isEditable() || (!isEditing() && typed == text(half)))
        return;
    if (!isEditing())
        beginEditing();
    typing->isTyped[half] = typed != textsBefore[half];
    typing->texts[half] = std::move(typed);
    KTFieldText::Parsed parsed;
    if (typing->isTyped != std::array<bool, 2>())
        parsed = parse(*typing);
    whyNot = std::move(parsed.problem);
    parsed.values ? edit->update(std::move(parsed.values)) : edit->reset();
    announceValue();
}

void KTMetadataFieldArrayViewItem::endEditing() {
    if (isEditing())
        selection.commitPendingEdit();
}

void KTMetadataFieldArrayViewItem::cancelEditing() {
    const bool hasTyped = typing.has_value();
    forgetTyped();
    if (isEditing())
        selection.cancelPendingEdit();
    else if (hasTyped)
        announceValue();
}

void KTMetadataFieldArrayViewItem::setValue(const KTValue& value) {
    if (!isEditable())
        return;
    selection.commitPendingEdit();
    cancelEditing();
    KTFieldEdit once(selection.photoManager(), selection.photos(), actionName(), false);
    KTValue::Dictionary values;
    for (const std::string& key : keys())
        values.emplace(key, value);
    once.update([&](const KTPhoto&) { return values; });
    once.commit();
}

/// What nobody edits, such as the name of the file, need not stand in any tag.
bool KTMetadataFieldArrayViewItem::hasUnsavedEdit() const {
    return !field->readonly() && std::ranges::any_of(keys(), [this](const std::string& key) {
        return selection.hasUnsavedEdit(key);
    });
}

void KTMetadataFieldArrayViewItem::revertToSaved() {
    cancelEditing();
    selection.commitPendingEdit(); // of another field
    KTFieldEdit once(selection.photoManager(), selection.photos(), KTLocalizedString("Revert to Saved"),
                     false);
    once.update([keys = keys()](const KTPhoto& photo) {
        KTValue::Dictionary values;
        for (const std::string& key : keys)
            values.emplace(key, photo.savedPropertyWithKey(key));
        return values;
    });
    once.commit();
}
