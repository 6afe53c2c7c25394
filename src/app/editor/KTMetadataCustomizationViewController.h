#pragma once
#include "app/editor/KTMetadataEditorViewController.h"
#include "app/editor/KTUserTemplates.h"
#include "platform/presentation/KTMenu.h"

class KTPresenter;

/// The user's templates of the metadata editor: the menu of them, and the two sheets by which they are saved
/// and removed. Observable under the names of its properties; "templatesMenu" is announced when the menu is
/// another. Main thread.
class KTMetadataCustomizationViewController : public KTObservable {
public:
    using Templates = std::vector<KTUserTemplate>;

    /// Both must outlive the controller.
    KTMetadataCustomizationViewController(KTMetadataEditorViewController& editor, KTUserTemplates files);

    /// Whom to tell that a template could not be kept; null for nobody.
    void setPresenter(KTPresenter* newPresenter) { presenter = newPresenter; }
    /// Reads the templates anew.
    void setupTemplates();
    const Templates& userTemplates() const { return templates; }
    /// "Templates", the title of a pull-down menu, the commands, and a command for each template.
    KTMenu buildTemplatesMenu();

    // Actions of the menu
    void saveNewTemplateAction();
    void removeTemplateAction();
    void defaultTemplateAction();
    void chooseUserTemplateAction(const KTUserTemplate& chosen);

    /// The sheet for a new template: shown while "isNewTemplateSheetShown"; its field is "templateName".
    bool isNewTemplateSheetShown() const { return newTemplateName.has_value(); }
    std::string templateName() const { return newTemplateName.value_or(""); }
    void setTemplateName(std::string name);
    void metadataUserNewTemplateSaveAction();
    void metadataUserNewTemplateCancelAction();

    /// The sheet of the templates: shown while "isTemplatesSheetShown"; its list, from which the user
    /// deletes, is "removableUserTemplates".
    bool isTemplatesSheetShown() const { return removable.has_value(); }
    Templates removableUserTemplates() const { return removable.value_or(Templates()); }
    void removeRemovableUserTemplateAtIndex(std::size_t index);
    void metadataUserTemplatesDoneAction();

private:
    void setNewTemplateName(std::optional<std::string> name);
    void setRemovable(std::optional<Templates> list);
    void removeUserTemplates(const std::vector<std::filesystem::path>& paths);
    void templatesDidChange();

    KTMetadataEditorViewController& editorViewController;
    const KTUserTemplates templateFiles;
    KTPresenter* presenter = nullptr;
    Templates templates;
    std::optional<std::string> newTemplateName;
    std::optional<Templates> removable;
};
