#include "ui/windows/TrackLibraryWindow.h"

#include "geotagging/KTAppTrackPickerController.h"
#include "ui/support/CellList.h"
#include "ui/support/DroppedPaths.h"
#include "ui/support/ImportProgressLine.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"
#include "ui/windows/TrackListModel.h"

#include <QAction>
#include <QDropEvent>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QTreeView>

TrackLibraryWindow::TrackLibraryWindow(KTAppTrackPickerController& pickerController)
    : ToolWindow("trackLibrary", uiText("Track Library"), {780, 360},
                 {pickerController, "isWindowVisible",
                  [&pickerController] { return pickerController.isWindowVisible(); },
                  [&pickerController](bool isVisible) { pickerController.setWindowVisible(isVisible); },
                  [&pickerController] { return pickerController.isShownQuietly(); }}),
      controller(pickerController) {
    setAcceptDrops(true);
}

void TrackLibraryWindow::makeContent() {
    auto* const columns = new QSplitter;
    columns->addWidget(makeSources());
    columns->addWidget(makeTracks());
    columns->setStretchFactor(1, 1);
    columns->setSizes({130, 630});
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(columns, 1);
    layout->addWidget(makeFoot());
}

QListWidget* TrackLibraryWindow::makeSources() {
    sources = new QListWidget;
    sources->setAccessibleName(uiText("Collections of tracks"));
    auto update = [this] {
        const QScopedValueRollback showing(isShowing, true);
        sources->clear();
        for (const auto& entry : controller.sourceLists()) {
            sources->addItem(QString::fromStdString(entry->name()));
            if (entry == controller.selectedSourceList())
                sources->setCurrentRow(sources->count() - 1);
        }
    };
    connect(sources, &QListWidget::currentRowChanged, this, [this](int row) {
        if (!isShowing && row >= 0)
            controller.setSelectedSourceList(controller.sourceLists()[std::size_t(row)]);
    });
    for (const char* key : {"sourceLists", "selectedSourceList"})
        observations.push_back(observeFor(this, controller, key, update));
    update();
    return sources;
}

QTreeView* TrackLibraryWindow::makeTracks() {
    sorted = new QSortFilterProxyModel(this);
    sorted->setSourceModel(new TrackListModel(controller, this));
    sorted->setSortRole(TrackListModel::SortRole);
    tracks = new QTreeView;
    setUpCellList(*tracks, uiText("Tracks and waypoints"));
    tracks->setModel(sorted);
    tracks->setSortingEnabled(true);
    tracks->sortByColumn(TrackListModel::BeginColumn, Qt::AscendingOrder);
    tracks->setColumnWidth(TrackListModel::NameColumn, 140);
    tracks->setColumnWidth(TrackListModel::BeginColumn, 132);
    tracks->setColumnWidth(TrackListModel::EndColumn, 132);
    tracks->setColumnWidth(TrackListModel::LengthColumn, 60);
    tracks->setColumnWidth(TrackListModel::PointsColumn, 64);
    auto* const remove = new QAction(uiText("Remove"), tracks);
    remove->setShortcut(QKeySequence::Delete);
    remove->setShortcutContext(Qt::WidgetShortcut);
    connect(remove, &QAction::triggered, this, [this] { controller.removeSelectedAction(); });
    tracks->addAction(remove);
    tracks->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(tracks->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &TrackLibraryWindow::takeSelection);
    connect(sorted, &QAbstractItemModel::modelReset, this, &TrackLibraryWindow::showSelection);
    observations.push_back(observeFor(this, controller.trackSourceList(), "selectedTracksAndWaypoints",
                                      [this] { showSelection(); }));
    return tracks;
}

QWidget* TrackLibraryWindow::makeFoot() {
    auto* const foot = new QWidget;
    auto* const layout = new QHBoxLayout(foot);
    layout->setContentsMargins({});
    auto add = [&](const QString& text, const QString& tip, auto command) {
        auto* const button = new QPushButton(text);
        button->setToolTip(tip);
        connect(button, &QPushButton::clicked, this, [this, command] { (controller.*command)(); });
        layout->addWidget(button);
    };
    add(uiText("Import…"), uiText("Adds track files to the library"),
        &KTTrackPickerController::importFilesAction);
    add(uiText("Export GPX…"), uiText("Writes the chosen tracks into a file"),
        &KTTrackPickerController::exportSelectedAction);
    add(uiText("Remove"), uiText("Removes the chosen tracks from the library; the files stay"),
        &KTTrackPickerController::removeSelectedAction);
    layout->addStretch();
    progress = new ImportProgressLine([this] { controller.trackManager().cancelImport(); });
    layout->addWidget(progress);
    observations.push_back(observeFor(this, controller.trackManager(), {}, [this] { showImport(); }));
    showImport();
    return foot;
}

void TrackLibraryWindow::showImport() {
    const KTTrackManager& library = controller.trackManager();
    if (library.importInProgress())
        progress->show(QString::fromStdString(library.importDescription()), int(library.importValue()),
                       int(library.importMax()));
    else
        progress->showNothing();
}

void TrackLibraryWindow::showSelection() {
    const QScopedValueRollback showing(isShowing, true);
    QItemSelection selection;
    for (const std::size_t row : controller.trackSourceList().selectedIndexes()) {
        const QModelIndex index = sorted->mapFromSource(sorted->sourceModel()->index(int(row), 0));
        selection.select(index, index);
    }
    tracks->selectionModel()->select(selection,
                                     QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void TrackLibraryWindow::takeSelection() {
    if (isShowing)
        return;
    const QScopedValueRollback showing(isShowing, true);
    KTTrackSourceList::Indexes rows;
    for (const QModelIndex& index : tracks->selectionModel()->selectedRows())
        rows.push_back(std::size_t(sorted->mapToSource(index).row()));
    std::ranges::sort(rows);
    controller.trackSourceList().setSelectedIndexes(rows);
}

void TrackLibraryWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (std::ranges::any_of(droppedPaths(*event->mimeData()), KTTrackManager::validFileTypePredicate))
        event->acceptProposedAction();
}

void TrackLibraryWindow::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    KTTrackManager::Paths files = droppedPaths(*event->mimeData());
    std::erase_if(files, [](const auto& file) { return !KTTrackManager::validFileTypePredicate(file); });
    controller.importFilesAtPaths(files);
}
