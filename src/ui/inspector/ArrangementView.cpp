#include "ui/inspector/ArrangementView.h"

#include "app/editor/KTMetadataEditorViewController.h"
#include "ui/inspector/CatalogueModel.h"
#include "ui/inspector/GroupTreeModel.h"
#include "ui/support/PrimaryButton.h"
#include "ui/support/UIText.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QTreeView>

namespace {

QTreeView* tree(QAbstractItemModel* model, const QString& name, const QString& tip) {
    auto* const view = new QTreeView;
    view->setAccessibleName(name);
    view->setToolTip(tip);
    view->setModel(model);
    view->setHeaderHidden(true);
    view->setUniformRowHeights(true);
    view->setIndentation(14);
    view->setDragEnabled(true);
    return view;
}

QLabel* labelOf(const QString& text, QWidget* buddy) {
    auto* const label = new QLabel(text);
    label->setBuddy(buddy);
    return label;
}

} // namespace

ArrangementView::ArrangementView(KTMetadataEditorViewController& controller,
                                 const std::function<void()>& done)
    : editor(controller), groups(new GroupTreeModel(controller, this)),
      catalogue(new CatalogueModel(controller, this)), narrowed(new QSortFilterProxyModel(this)),
      groupTree(tree(groups, uiText("Groups and Fields"),
                     uiText("Drag fields and groups, double click to rename, Alt with arrows to move"))),
      catalogueTree(tree(narrowed, uiText("All Fields"),
                         uiText("Drag a field into a group above, or double click to add it"))) {
    auto* const parts = new QSplitter(Qt::Vertical);
    parts->setChildrenCollapsible(false);
    parts->addWidget(makeGroups());
    parts->addWidget(makeCatalogue());
    auto* const doneButton = new PrimaryButton(uiText("Done"));
    doneButton->setAccessibleName(uiText("End customizing"));
    doneButton->setToolTip(uiText("Shows the inspector as arranged"));
    connect(doneButton, &QPushButton::clicked, this, [done] { done(); });
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 6, 8, 8);
    layout->addWidget(parts, 1);
    layout->addWidget(doneButton, 0, Qt::AlignRight);
    auto follow = [this] {
        groupTree->expandAll();
        catalogue->showMarks();
        enableButtons();
    };
    connect(groups, &QAbstractItemModel::modelReset, this, follow);
    follow();
}

QPushButton* ArrangementView::makeButton(const QString& text, const QString& tip,
                                         void (ArrangementView::*command)()) {
    auto* const button = new QPushButton(text);
    button->setAutoDefault(false);
    button->setToolTip(tip);
    connect(button, &QPushButton::clicked, this, command);
    return button;
}

QWidget* ArrangementView::makeGroups() {
    groupTree->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                               QAbstractItemView::SelectedClicked);
    groupTree->setExpandsOnDoubleClick(false);
    groupTree->setAcceptDrops(true);
    groupTree->setDropIndicatorShown(true);
    groupTree->setDragDropMode(QAbstractItemView::DragDrop);
    groupTree->setDefaultDropAction(Qt::MoveAction);
    groupTree->installEventFilter(this);
    connect(groupTree->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &ArrangementView::enableButtons);
    removeButton =
        makeButton(uiText("Remove"), uiText("Removes the chosen group or field from the inspector"),
                   &ArrangementView::remove);
    auto* const part = new QWidget;
    auto* const layout = new QVBoxLayout(part);
    layout->setContentsMargins({});
    layout->addWidget(labelOf(uiText("Groups and Fields"), groupTree));
    layout->addWidget(groupTree, 1);
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(
        makeButton(uiText("Add Group"), uiText("Adds a group at the end"), &ArrangementView::addGroup));
    buttons->addWidget(removeButton);
    buttons->addStretch();
    layout->addLayout(buttons);
    return part;
}

QWidget* ArrangementView::makeCatalogue() {
    narrowed->setSourceModel(catalogue);
    narrowed->setRecursiveFilteringEnabled(true);
    narrowed->setAutoAcceptChildRows(true);
    narrowed->setFilterCaseSensitivity(Qt::CaseInsensitive);
    catalogueTree->setDragDropMode(QAbstractItemView::DragOnly);
    catalogueTree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    catalogueTree->installEventFilter(this);
    connect(catalogueTree, &QTreeView::doubleClicked, this, [this](const QModelIndex& index) {
        if (!CatalogueModel::groupAt(index)) // which is opened
            add();
    });
    connect(catalogueTree->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &ArrangementView::enableButtons);
    auto* const search = new QLineEdit;
    search->setAccessibleName(uiText("Search fields"));
    search->setPlaceholderText(uiText("Search fields"));
    search->setToolTip(uiText("Shows only fields and groups with this in their name"));
    search->setClearButtonEnabled(true);
    connect(search, &QLineEdit::textChanged, this, [this](const QString& text) {
        narrowed->setFilterFixedString(text.trimmed());
        text.trimmed().isEmpty() ? catalogueTree->collapseAll() : catalogueTree->expandAll();
    });
    addButton = makeButton({}, {}, &ArrangementView::add);
    auto* const part = new QWidget;
    auto* const layout = new QVBoxLayout(part);
    layout->setContentsMargins(0, 6, 0, 0);
    layout->addWidget(labelOf(uiText("All Fields"), catalogueTree));
    layout->addWidget(search);
    layout->addWidget(catalogueTree, 1);
    layout->addWidget(addButton, 0, Qt::AlignLeft);
    return part;
}

void ArrangementView::enableButtons() {
    if (addButton == nullptr || removeButton == nullptr)
        return;
    removeButton->setEnabled(groupTree->currentIndex().isValid());
    const QModelIndex chosen = catalogueTree->currentIndex();
    const bool isGroup = CatalogueModel::groupAt(chosen) != nullptr;
    addButton->setText(isGroup ? uiText("Add Whole Group") : uiText("Add Field"));
    addButton->setToolTip(isGroup ? uiText("Adds the group with all its fields")
                                  : uiText("Adds the field to the group that is chosen above"));
    addButton->setEnabled(isGroup || (!CatalogueModel::keyAt(chosen).empty() && !editor.groups().empty()));
}

void ArrangementView::addGroup() {
    editor.addGroup();
    const QModelIndex added = groups->index(groups->rowCount() - 1, 0);
    groupTree->setCurrentIndex(added);
    groupTree->edit(added);
}

/// After the group that is chosen above, else at the end.
void ArrangementView::addChosenGroup(const KTMetadataGroup& group) {
    const QModelIndex current = groupTree->currentIndex();
    const QModelIndex before = current.parent().isValid() ? current.parent() : current;
    const int row = before.isValid() ? before.row() + 1 : groups->rowCount();
    editor.addCatalogueGroup(group, std::size_t(row));
    groupTree->setCurrentIndex(groups->index(row, 0));
    groupTree->scrollTo(groupTree->currentIndex(), QAbstractItemView::PositionAtTop);
}

/// A field after the one that is chosen above, or at the end of the chosen group, else of the last one.
void ArrangementView::add() {
    if (const auto group = CatalogueModel::groupAt(catalogueTree->currentIndex()))
        return addChosenGroup(*group);
    const std::string key = CatalogueModel::keyAt(catalogueTree->currentIndex());
    if (key.empty() || editor.groups().empty())
        return;
    const QModelIndex current = groupTree->currentIndex();
    const auto group = current.isValid() ? groups->groupAt(current) : editor.groups().back();
    const std::size_t at = groups->fieldAt(current) ? std::size_t(current.row()) + 1 : group->fields().size();
    if (editor.addField(key, *group, at))
        groupTree->setCurrentIndex(groups->indexOfField(*group->fields()[at]));
}

void ArrangementView::remove() {
    groups->remove(groupTree->currentIndex());
}

void ArrangementView::move(bool isUp) {
    if (groupTree->currentIndex().isValid())
        groupTree->setCurrentIndex(groups->move(groupTree->currentIndex(), isUp));
}

bool ArrangementView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto& key = static_cast<QKeyEvent&>(*event);
    const bool isUp = key.key() == Qt::Key_Up;
    const bool isReturn = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (watched == catalogueTree && isReturn)
        add();
    else if (watched == groupTree && key.key() == Qt::Key_Delete)
        remove();
    else if (watched == groupTree && (isUp || key.key() == Qt::Key_Down) &&
             key.modifiers().testFlag(Qt::AltModifier))
        move(isUp);
    else
        return false;
    return true;
}
