#include "ui/export/ExportListWindow.h"

#include "export/KTPhotoExportProgressWindowController.h"
#include "ui/export/ExportListDelegate.h"
#include "ui/export/ExportListModel.h"
#include "ui/export/PrivacyZonesSheet.h"
#include "ui/support/CellList.h"
#include "ui/support/MenuBuilder.h"
#include "ui/support/UIText.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

KTPhotoExportOperationController::Records recordsOf(const QTreeView& list, const ExportListModel& model) {
    KTPhotoExportOperationController::Records records;
    for (const int row : chosenRows(list))
        records.push_back(model.recordAt(row));
    return records;
}

} // namespace

ExportListWindow::ExportListWindow(KTPhotoExportProgressWindowController& windowController)
    : ToolWindow("exportList", uiText("Export List"), {560, 320},
                 {windowController, "isWindowVisible",
                  [&windowController] { return windowController.isWindowVisible(); },
                  [&windowController](bool isVisible) { windowController.setWindowVisible(isVisible); }}),
      controller(windowController) {}

void ExportListWindow::makeContent() {
    model = new ExportListModel(controller.photoExportOperationController(), this);
    auto* const delegate = new ExportListDelegate(this);
    list = new QTreeView;
    setUpCellList(*list, uiText("Exports"));
    list->setUniformRowHeights(false);
    list->setItemDelegate(delegate);
    list->setModel(model);
    list->setIconSize({28, 28});
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(ExportListModel::DescriptionColumn, QHeaderView::Stretch);
    list->setColumnWidth(ExportListModel::IconColumn, 44);
    list->setColumnWidth(ExportListModel::RevealColumn, 64);
    list->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(list, &QWidget::customContextMenuRequested, this, &ExportListWindow::showMenu);
    connect(list, &QTreeView::doubleClicked, this,
            [this](const QModelIndex& index) { controller.revealAction(model->recordAt(index.row())); });
    connect(delegate, &ExportListDelegate::revealPressed, this,
            [this](const QModelIndex& index) { controller.revealAction(model->recordAt(index.row())); });
    connect(delegate, &ExportListDelegate::stopPressed, this, [this](const QModelIndex& index) {
        controller.shouldCancelExportForOperation(model->recordAt(index.row()));
    });
    emptyText =
        new QLabel(uiText("No exports yet. Choose photos and a way to share them from the menu “Share”."));
    emptyText->setAlignment(Qt::AlignCenter);
    emptyText->setWordWrap(true);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(list, 1);
    layout->addWidget(emptyText, 1);
    layout->addWidget(makeButtons());
    connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ExportListWindow::updateButtons);
    connect(model, &QAbstractItemModel::dataChanged, this, &ExportListWindow::updateButtons);
    connect(model, &QAbstractItemModel::modelReset, this, &ExportListWindow::updateButtons);
    connect(model, &QAbstractItemModel::modelReset, list, &QTreeView::scrollToBottom);
    connect(new QShortcut(QKeySequence::Delete, list), &QShortcut::activated, remove, &QPushButton::click);
    updateButtons();
    list->scrollToBottom();
}

QWidget* ExportListWindow::makeButtons() {
    auto* const buttons = new QWidget;
    auto* const layout = new QHBoxLayout(buttons);
    layout->setContentsMargins({});
    const auto add = [&](const char* title, const char* help) {
        auto* const button = new QPushButton(uiText(title));
        button->setToolTip(uiText(help));
        layout->addWidget(button);
        return button;
    };
    stop = add("Stop", "Ends the chosen exports; the photos that are finished stay");
    connect(add("Privacy Zones…", "Places that no export tells"), &QPushButton::clicked, this,
            [this] { (new PrivacyZonesSheet(this))->open(); });
    layout->addStretch();
    reveal = add("Show Destination", "Opens what was exported");
    remove = add("Remove From List", "Forgets the chosen exports; what was exported stays");
    connect(stop, &QPushButton::clicked, this, &ExportListWindow::stopChosen);
    connect(reveal, &QPushButton::clicked, this,
            [this] { controller.photoExportOperationController().revealAction(recordsOf(*list, *model)); });
    connect(remove, &QPushButton::clicked, this,
            [this] { controller.photoExportOperationController().deleteAction(recordsOf(*list, *model)); });
    return buttons;
}

void ExportListWindow::stopChosen() {
    for (const auto& record : recordsOf(*list, *model))
        controller.shouldCancelExportForOperation(record);
}

void ExportListWindow::updateButtons() {
    bool isRunning = false, isOver = false, hasDestination = false;
    for (const auto& record : recordsOf(*list, *model)) {
        isRunning |= record->inProgress;
        isOver |= !record->inProgress;
        hasDestination |= !record->destinationURL.empty();
    }
    stop->setEnabled(isRunning);
    remove->setEnabled(isOver);
    reveal->setEnabled(hasDestination);
    list->setVisible(model->rowCount() > 0);
    emptyText->setVisible(model->rowCount() == 0);
}

void ExportListWindow::showMenu() {
    popUpMenu(controller.photoExportOperationController().menuForOperations(recordsOf(*list, *model)), *list);
}
