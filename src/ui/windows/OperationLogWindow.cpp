#include "ui/windows/OperationLogWindow.h"

#include "collection/KTPhotoManager.h"
#include "collection/KTPhotoOperationWindowController.h"
#include "ui/support/CellList.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"
#include "ui/window/WindowPresenter.h"
#include "ui/windows/OperationLogModel.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSaveFile>
#include <QScrollBar>
#include <QTreeView>

OperationLogWindow::OperationLogWindow(KTPhotoOperationWindowController& logController)
    : ToolWindow("operationLog", uiText("Operation Log"), {860, 420},
                 {logController, "isWindowVisible",
                  [&logController] { return logController.isWindowVisible(); },
                  [&logController](bool isVisible) { logController.setWindowVisible(isVisible); }}),
      controller(logController) {}

void OperationLogWindow::makeContent() {
    model = new OperationLogModel(controller.photoOperationController(), this);
    list = new QTreeView;
    setUpCellList(*list, uiText("Operations"));
    list->setModel(model);
    list->setColumnWidth(OperationLogModel::ResultColumn, 96);
    list->setColumnWidth(OperationLogModel::TimeColumn, 150);
    list->setColumnWidth(OperationLogModel::FileColumn, 160);
    list->setColumnWidth(OperationLogModel::StepColumn, 200);
    list->setContextMenuPolicy(Qt::ActionsContextMenu);
    auto* const copy = new QAction(uiText("Copy"), list);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, [this] { QGuiApplication::clipboard()->setText(chosenText()); });
    list->addAction(copy);
    connect(list, &QTreeView::doubleClicked, this,
            [this](const QModelIndex& index) { selectPhoto(index.row()); });
    connect(model, &QAbstractItemModel::rowsInserted, list, &QTreeView::scrollToBottom);

    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(makeHead());
    layout->addWidget(list);
    list->scrollToBottom();
}

QWidget* OperationLogWindow::makeHead() {
    auto* const head = new QWidget;
    filter = new QComboBox;
    for (const std::string& title : KTPhotoOperationWindowController::filterPopupTitles())
        filter->addItem(QString::fromStdString(title));
    auto show = [this] { filter->setCurrentIndex(int(controller.selectedFilterIndex())); };
    filterObservation = observeFor(this, controller, "selectedFilterIndex", show);
    show();
    connect(filter, &QComboBox::activated, this,
            [this](int index) { controller.setSelectedFilterIndex(unsigned(index)); });
    auto* const label = new QLabel(uiText("Show:"));
    label->setBuddy(filter);
    auto* const saveButton = new QPushButton(uiText("Save as Text…"));
    saveButton->setToolTip(uiText("Writes the operations shown into a file"));
    connect(saveButton, &QPushButton::clicked, this, &OperationLogWindow::save);
    auto* const layout = new QHBoxLayout(head);
    layout->setContentsMargins({});
    layout->addWidget(label);
    layout->addWidget(filter);
    layout->addStretch();
    layout->addWidget(saveButton);
    return head;
}

void OperationLogWindow::selectPhoto(int row) {
    KTPhotoManager& collection = controller.photoManager();
    const std::filesystem::path file = model->operationAt(row).url;
    for (const auto& photo : *collection.photos())
        if (photo->fileURL() == file || photo->xmpURL() == file)
            collection.setSelectedPhotos({photo});
}

QString OperationLogWindow::chosenText() const {
    QStringList lines;
    for (const int row : chosenRows(*list))
        lines << model->lineOf(row);
    return lines.join('\n');
}

void OperationLogWindow::save() {
    WindowPresenter(this).presentFilePanel(
        {.kind = KTFilePanel::Kind::SaveFile,
         .proposedName = KTLocalizedString("Operation Log") + ".txt",
         .completion = [this](const std::vector<std::filesystem::path>& chosen) {
             if (chosen.empty())
                 return;
             QSaveFile file(QFile::decodeName(chosen.front().c_str()));
             bool isWritten = file.open(QIODevice::WriteOnly);
             for (int row = 0; isWritten && row < model->rowCount(); ++row)
                 isWritten = file.write(model->lineOf(row).toUtf8() + '\n') > 0;
             if (!isWritten || !file.commit())
                 WindowPresenter(this).presentAlert(
                     {.message = KTLocalizedString("The log could not be saved."),
                      .informativeText = file.errorString().toStdString(),
                      .buttons = {KTLocalizedString("Close")}});
         }});
}
