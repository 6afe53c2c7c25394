#include "app/editor/KTMetadataCustomizationViewController.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/presentation/KTPresenter.h"

#include <algorithm>

KTMetadataCustomizationViewController::KTMetadataCustomizationViewController(
    KTMetadataEditorViewController& editor, KTUserTemplates files)
    : editorViewController(editor), templateFiles(std::move(files)) {}

void KTMetadataCustomizationViewController::setupTemplates() {
    templates.clear();
    for (const auto& path : templateFiles.userTemplatePaths())
        if (auto userTemplate = KTUserTemplates::readTemplateFromPath(path))
            templates.push_back(std::move(*userTemplate));
    templatesDidChange();
}

void KTMetadataCustomizationViewController::templatesDidChange() {
    for (const char* key : {"userTemplates", "templatesMenu"}) {
        willChange(key);
        didChange(key);
    }
}

KTMenu KTMetadataCustomizationViewController::buildTemplatesMenu() {
    KTMenu menu{{.title = KTLocalizedString("Templates")},
                {.title = KTLocalizedString("Save current…"), .action = [this] { saveNewTemplateAction(); }},
                {.title = KTLocalizedString("Remove…"), .action = [this] { removeTemplateAction(); }},
                KTMenuItem::separator(),
                {.title = KTLocalizedString("Default"), .action = [this] { defaultTemplateAction(); }}};
    for (const KTUserTemplate& userTemplate : templates)
        menu.push_back({.title = userTemplate.templateName,
                        .action = [this, userTemplate] { chooseUserTemplateAction(userTemplate); }});
    return menu;
}

void KTMetadataCustomizationViewController::defaultTemplateAction() {
    editorViewController.resetToDefaultGroups();
}

/// The template stays as it is, whatever the user then does to the groups.
void KTMetadataCustomizationViewController::chooseUserTemplateAction(const KTUserTemplate& chosen) {
    KTUserTemplate::Groups groups;
    for (const auto& group : chosen.groups)
        groups.push_back(group->copy());
    editorViewController.setGroups(std::move(groups));
}

void KTMetadataCustomizationViewController::setNewTemplateName(std::optional<std::string> name) {
    const bool isShownOrHidden = name.has_value() != newTemplateName.has_value();
    if (isShownOrHidden)
        willChange("isNewTemplateSheetShown");
    willChange("templateName");
    newTemplateName = std::move(name);
    didChange("templateName");
    if (isShownOrHidden)
        didChange("isNewTemplateSheetShown");
}

void KTMetadataCustomizationViewController::setTemplateName(std::string name) {
    if (newTemplateName)
        setNewTemplateName(std::move(name));
}

void KTMetadataCustomizationViewController::saveNewTemplateAction() {
    setNewTemplateName(KTLocalizedString("Untitled template"));
}

void KTMetadataCustomizationViewController::metadataUserNewTemplateCancelAction() {
    setNewTemplateName(std::nullopt);
}

void KTMetadataCustomizationViewController::metadataUserNewTemplateSaveAction() {
    if (!newTemplateName)
        return;
    const std::string typed = *newTemplateName;
    setNewTemplateName(std::nullopt);
    std::string problem;
    auto saved =
        templateFiles.saveTemplate(editorViewController.groups(),
                                   typed.empty() ? KTLocalizedString("Untitled template") : typed, problem);
    if (saved)
        templates.push_back(std::move(*saved));
    else if (presenter != nullptr)
        presenter->presentAlert({.message = KTLocalizedString("The template could not be saved."),
                                 .informativeText = problem,
                                 .buttons = {KTLocalizedString("OK")}});
    templatesDidChange();
}

void KTMetadataCustomizationViewController::setRemovable(std::optional<Templates> list) {
    const bool isShownOrHidden = list.has_value() != removable.has_value();
    if (isShownOrHidden)
        willChange("isTemplatesSheetShown");
    willChange("removableUserTemplates");
    removable = std::move(list);
    didChange("removableUserTemplates");
    if (isShownOrHidden)
        didChange("isTemplatesSheetShown");
}

void KTMetadataCustomizationViewController::removeTemplateAction() {
    setRemovable(templates);
}

void KTMetadataCustomizationViewController::removeRemovableUserTemplateAtIndex(std::size_t index) {
    if (!removable || index >= removable->size())
        return;
    Templates rest = *removable;
    rest.erase(rest.begin() + std::ptrdiff_t(index));
    setRemovable(std::move(rest));
}

void KTMetadataCustomizationViewController::metadataUserTemplatesDoneAction() {
    if (!removable)
        return;
    const Templates kept = *removable;
    setRemovable(std::nullopt);
    std::vector<std::filesystem::path> deleted;
    for (const KTUserTemplate& userTemplate : templates)
        if (std::ranges::find(kept, userTemplate.templatePath, &KTUserTemplate::templatePath) == kept.end())
            deleted.push_back(userTemplate.templatePath);
    removeUserTemplates(deleted);
    templatesDidChange();
}

/// One whose file cannot be deleted stays.
void KTMetadataCustomizationViewController::removeUserTemplates(
    const std::vector<std::filesystem::path>& paths) {
    std::erase_if(templates, [&](const KTUserTemplate& userTemplate) {
        return std::ranges::find(paths, userTemplate.templatePath) != paths.end() &&
               KTUserTemplates::removeTemplate(userTemplate);
    });
}
