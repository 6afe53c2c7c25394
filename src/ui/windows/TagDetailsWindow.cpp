#include "ui/windows/TagDetailsWindow.h"

#include "ui/support/CellList.h"
#include "ui/support/UIText.h"
#include "ui/windows/TagDetailsModel.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSortFilterProxyModel>

TagDetailsWindow::TagDetailsWindow(KTTagDetailsWindowController& tagController)
    : ToolWindow("tagDetails", uiText("Tag Details"), {560, 560},
                 {tagController, "isWindowVisible",
                  [&tagController] { return tagController.isWindowVisible(); },
                  [&tagController](bool isVisible) { tagController.setWindowVisible(isVisible); }}),
      controller(tagController) {}

void TagDetailsWindow::makeContent() {
    narrowed = new QSortFilterProxyModel(this);
    narrowed->setSourceModel(new TagDetailsModel(controller, this));
    narrowed->setFilterCaseSensitivity(Qt::CaseInsensitive);
    narrowed->setFilterKeyColumn(-1);
    list = new QTreeView;
    setUpCellList(*list, uiText("Tags"));
    list->setModel(narrowed);
    list->setSortingEnabled(true);
    list->sortByColumn(TagDetailsModel::KeyColumn, Qt::AscendingOrder);
    list->setColumnWidth(TagDetailsModel::KeyColumn, 240);
    list->setContextMenuPolicy(Qt::ActionsContextMenu);
    auto* const copyAction = new QAction(uiText("Copy"), list);
    copyAction->setShortcut(QKeySequence::Copy);
    copyAction->setShortcutContext(Qt::WidgetShortcut);
    connect(copyAction, &QAction::triggered, this, &TagDetailsWindow::copy);
    list->addAction(copyAction);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(makeHead());
    layout->addWidget(list);
}

QWidget* TagDetailsWindow::makeHead() {
    auto* const head = new QWidget;
    auto* const layout = new QHBoxLayout(head);
    layout->setContentsMargins({});
    auto addChoice = [&](const QString& title, const QStringList& choices, unsigned chosen, auto choose) {
        auto* const box = new QComboBox;
        box->addItems(choices);
        box->setCurrentIndex(int(chosen));
        connect(box, &QComboBox::activated, this, choose);
        auto* const label = new QLabel(title);
        label->setBuddy(box);
        layout->addWidget(label);
        layout->addWidget(box);
    };
    addChoice(uiText("Source:"), {uiText("Image File"), uiText("Sidecar"), uiText("Photo Library")},
              controller.metadataSource(),
              [this](int index) { controller.setMetadataSource(unsigned(index)); });
    addChoice(uiText("Tags:"), {uiText("Saved"), uiText("Changes")}, controller.metadataType(),
              [this](int index) { controller.setMetadataType(unsigned(index)); });
    auto* const search = new QLineEdit;
    search->setAccessibleName(uiText("Search tags"));
    search->setPlaceholderText(uiText("Search"));
    search->setClearButtonEnabled(true);
    connect(search, &QLineEdit::textChanged, narrowed, &QSortFilterProxyModel::setFilterFixedString);
    layout->addWidget(search, 1);
    return head;
}

void TagDetailsWindow::copy() const {
    QStringList lines;
    for (const int row : chosenRows(*list))
        lines << narrowed->index(row, 0).data().toString() + '\t' + narrowed->index(row, 1).data().toString();
    QGuiApplication::clipboard()->setText(lines.join('\n'));
}
