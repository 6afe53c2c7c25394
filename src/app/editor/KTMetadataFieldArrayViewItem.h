#pragma once
#include "app/editor/KTEditorSelection.h"
#include "app/editor/KTFieldText.h"
#include "app/editor/KTMetadataFieldItemKind.h"

#include <array>

class KTMetadataField;

/// The editor of one field, over the selected photos: what it shows, what is typed into it, and whether the
/// field has an edit that is not saved. Whoever draws it follows its announcements: "value" (texts, state and
/// problem), "hasUnsavedEdit", "label", "isEditable", "isSyncingViewHidden". Main thread.
///
/// A typed text is an edit of the photos that were selected when its first letter was typed. It ends with
/// endEditing, with another item's first letter, or with another selection, and is one undo step then. A
/// field that nobody has typed into is never written.
class KTMetadataFieldArrayViewItem : public KTObservable {
public:
    using Kind = KTMetadataFieldItemKind;
    /// Most items have one text; latitude and longitude, date and time have two.
    enum Half : std::size_t { First, Second };
    /// Of a field that is dragged between groups.
    static constexpr std::string_view kDragType = "com.Brightfold.Waymark.FieldItemType";

    /// @p selection must outlive the item.
    KTMetadataFieldArrayViewItem(KTEditorSelection& selection, std::shared_ptr<KTMetadataField> field,
                                 KTMetadataFieldItemChoice choice);
    ~KTMetadataFieldArrayViewItem() override;

    const std::shared_ptr<KTMetadataField>& representedObject() const { return field; }
    Kind kind() const { return choice.kind; }
    bool isLocationShown() const { return choice.isLocationShown; }
    bool usesComponents() const { return choice.usesComponents; }

    // The item in its group
    const std::string& label() const;
    const std::string& secondaryLabel() const; ///< of the second half: time beside date, longitude
    const std::string& helpText() const;
    bool inCustomizationMode() const { return isCustomized; }
    void setInCustomizationMode(bool isInMode);
    bool canRenameLabel() const { return mayRename; }
    void setCanRenameLabel(bool canRename) { mayRename = canRename; }
    void renameLabel(std::string newLabel);
    /// Whether the field carries a sign while photos of a photo library are loaded: those that the library
    /// takes, and lists.
    bool hasSyncingView() const;
    bool isSyncingViewHidden() const;

    // What the selected photos have
    const KTSelectedValue& selectedValue() const;
    /// The text in the editor: what is being typed, else the common value for editing; empty where there is
    /// none.
    std::string text(Half half = First) const;
    /// The common value as the rest of the program shows it.
    std::string displayText() const;
    /// Shown in place of an empty text: "Multiple values" where photos differ.
    virtual std::string placeholder(Half half = First) const;
    /// Whether something can be typed now.
    bool isEditable() const;

    // Editing
    /// Takes what was typed. A text that is no value of the field stays in the editor and writes nothing;
    /// `problem` says why. In a field whose photos differ an empty text is not an edit: clearValue is.
    void setText(std::string typed, Half half = First);
    /// Commits what was typed. A text that is no value stays in the editor with its `problem`, until it is
    /// typed on or given up, other photos are selected, or these get another value; it is no pending edit.
    void endEditing();
    /// Gives up what was typed.
    void cancelEditing();
    bool isEditing() const { return selection.hasPendingEdit(this); }
    const std::string& problem() const { return whyNot; }
    /// One undo step: sets a value that is not typed, such as a rating, or clears it.
    void setValue(const KTValue& value);
    void clearValue() { setValue({}); }

    // What is not saved
    bool hasUnsavedEdit() const;
    /// One undo step: gives every selected photo what its files hold.
    void revertToSaved();

protected:
    using Texts = std::array<std::string, 2>;
    /// What is in the editor; halves that nobody has typed into are as they were.
    struct Typed {
        Texts texts;
        std::array<bool, 2> isTyped = {};
    };

    /// The fields that the item edits.
    virtual std::vector<std::string> keys() const;
    /// The texts for editing of the common values.
    virtual Texts editingTexts() const;
    /// What was typed means for the photos.
    virtual KTFieldText::Parsed parse(const Typed& typed) const;
    /// A text that was typed has become the value.
    virtual void didCommit(const std::string&) {}
    void announceValue();
    std::string actionName() const; ///< "Edit Description"

    KTEditorSelection& selection;
    const std::shared_ptr<KTMetadataField> field;

private:
    void beginEditing();
    void didEndEditing();
    void forgetTyped();
    void follow(const KTChange& change);

    const KTMetadataFieldItemChoice choice;
    bool isCustomized = false, mayRename = false;
    std::optional<Typed> typing; // while something is being typed, and after it if it is no value
    Texts textsBefore;           // as they were when it began
    std::string whyNot;
    std::shared_ptr<KTFieldEdit> edit; // while something is being typed
    Observation selectionObservation, managerObservation;
};
