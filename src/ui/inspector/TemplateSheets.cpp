#include "ui/inspector/TemplateSheets.h"

#include "app/editor/KTMetadataCustomizationViewController.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QListWidget>

TemplateSheets::TemplateSheets(KTMetadataCustomizationViewController& customization, QWidget& owner)
    : QObject(&owner), controller(customization), pane(owner) {
    observation = observeFor(this, controller, {}, [this] { update(); });
}

void TemplateSheets::update() {
    auto follow = [](QPointer<QDialog>& sheet, bool isShown, const std::function<QDialog*()>& make) {
        if (isShown && !sheet) {
            sheet = make();
            sheet->setAttribute(Qt::WA_DeleteOnClose);
            sheet->open();
        } else if (!isShown && sheet) {
            sheet->close();
            sheet = nullptr;
        }
    };
    follow(newTemplateSheet, controller.isNewTemplateSheetShown(), [this] { return makeNewTemplateSheet(); });
    follow(templatesSheet, controller.isTemplatesSheetShown(), [this] { return makeTemplatesSheet(); });
}

QDialog* TemplateSheets::makeNewTemplateSheet() {
    auto* const sheet = new QDialog(pane.window());
    sheet->setWindowTitle(uiText("Save Template"));
    auto* const label =
        new QLabel(uiText("Save the groups and fields of the inspector as a template named:"));
    label->setWordWrap(true);
    auto* const name = new QLineEdit(QString::fromStdString(controller.templateName()));
    name->setAccessibleName(uiText("Template name"));
    name->setToolTip(uiText("The name under which the menu Templates lists it"));
    name->selectAll();
    label->setBuddy(name);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->addButton(uiText("Save Template"), QDialogButtonBox::AcceptRole);
    auto* const layout = new QVBoxLayout(sheet);
    layout->addWidget(label);
    layout->addWidget(name);
    layout->addWidget(buttons);
    sheet->resize(380, sheet->sizeHint().height());
    connect(name, &QLineEdit::textChanged, this,
            [this](const QString& text) { controller.setTemplateName(text.toStdString()); });
    connect(buttons, &QDialogButtonBox::accepted, sheet, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, sheet, &QDialog::reject);
    connect(sheet, &QDialog::accepted, this, [this] { controller.metadataUserNewTemplateSaveAction(); });
    connect(sheet, &QDialog::rejected, this, [this] { controller.metadataUserNewTemplateCancelAction(); });
    return sheet;
}

/// Nothing is deleted before the sheet ends with "Done"; Escape is that, too, as there is no other way out.
QDialog* TemplateSheets::makeTemplatesSheet() {
    auto* const sheet = new QDialog(pane.window());
    sheet->setWindowTitle(uiText("Remove Templates"));
    auto* const label = new QLabel(uiText("Templates:"));
    auto* const list = new QListWidget;
    list->setAccessibleName(uiText("Templates that you have saved"));
    list->setToolTip(uiText("Choose a template and remove it from the list"));
    label->setBuddy(list);
    for (const KTUserTemplate& userTemplate : controller.removableUserTemplates())
        list->addItem(QString::fromStdString(userTemplate.templateName));
    auto* const buttons = new QDialogButtonBox;
    auto* const remove = buttons->addButton(uiText("Remove Template"), QDialogButtonBox::ActionRole);
    auto* const done = buttons->addButton(uiText("Done"), QDialogButtonBox::AcceptRole);
    remove->setToolTip(uiText("Removes the chosen template from the list; its file is deleted by “Done”"));
    remove->setAutoDefault(false);
    done->setDefault(true);
    auto* const layout = new QVBoxLayout(sheet);
    layout->addWidget(label);
    layout->addWidget(list);
    layout->addWidget(buttons);
    sheet->resize(380, sheet->sizeHint().height());
    auto enable = [list, remove] { remove->setEnabled(list->currentRow() >= 0); };
    connect(list, &QListWidget::currentRowChanged, remove, enable);
    enable();
    connect(remove, &QPushButton::clicked, this, [this, list] {
        const int row = list->currentRow();
        controller.removeRemovableUserTemplateAtIndex(std::size_t(row));
        delete list->takeItem(row);
    });
    connect(buttons, &QDialogButtonBox::accepted, sheet, &QDialog::accept);
    connect(sheet, &QDialog::finished, this, [this] { controller.metadataUserTemplatesDoneAction(); });
    return sheet;
}
