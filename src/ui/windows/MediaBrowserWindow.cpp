#include "ui/windows/MediaBrowserWindow.h"

#include "ui/photos/ThumbnailWisher.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"
#include "ui/windows/MediaBrowserDelegate.h"
#include "ui/windows/MediaBrowserModel.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QScrollBar>
#include <QStackedWidget>
#include <QToolButton>

MediaBrowserWindow::MediaBrowserWindow(MediaBrowserWindowController& browserController,
                                       KTThumbnailService& thumbnailService)
    : ToolWindow({}, uiText("Media Browser"), {560, 480},
                 {browserController, "isWindowVisible",
                  [&browserController] { return browserController.isWindowVisible(); },
                  [&browserController](bool isVisible) { browserController.setWindowVisible(isVisible); }}),
      controller(browserController), thumbnails(thumbnailService) {
    if (const auto frame = MediaBrowserWindowController::defaultBrowserFrame())
        placeAt(QRect(frame->x, frame->y, frame->width, frame->height));
}

void MediaBrowserWindow::makeContent() {
    nothing = new QLabel(uiText("There are no photos in this folder."));
    nothing->setAlignment(Qt::AlignCenter);
    nothing->setForegroundRole(QPalette::PlaceholderText);
    stack = new QStackedWidget;
    stack->addWidget(makeGrid());
    stack->addWidget(nothing);
    auto* const column = new QVBoxLayout(this);
    column->addWidget(makeHead());
    column->addWidget(stack, 1);
    observations.push_back(observeFor(this, controller, {}, [this] { showFolder(); }));
    showFolder();
    grid->setFocus();
}

QWidget* MediaBrowserWindow::makeHead() {
    auto* const head = new QWidget;
    up = new QToolButton;
    up->setIcon(QIcon::fromTheme("go-up"));
    up->setAccessibleName(uiText("Enclosing folder"));
    up->setToolTip(uiText("Shows the folder that holds this one"));
    connect(up, &QToolButton::clicked, this, [this] { controller.goUp(); });
    place = new QLabel;
    place->setAccessibleName(uiText("Folder"));
    place->setTextInteractionFlags(Qt::TextSelectableByMouse);
    place->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* const add = new QPushButton(uiText("Add to Photos"));
    add->setToolTip(uiText("Adds the chosen photos and folders, or all of this folder when none is chosen"));
    connect(add, &QPushButton::clicked, this, &MediaBrowserWindow::addChosen);
    auto* const line = new QHBoxLayout(head);
    line->setContentsMargins({});
    line->addWidget(up);
    line->addWidget(place, 1);
    line->addWidget(add);
    return head;
}

QListView* MediaBrowserWindow::makeGrid() {
    model = new MediaBrowserModel(controller, this);
    grid = new QListView;
    grid->setAccessibleName(uiText("Pictures"));
    grid->setModel(model);
    grid->setItemDelegate(new MediaBrowserDelegate(thumbnails, grid));
    grid->setViewMode(QListView::ListMode);
    grid->setFlow(QListView::LeftToRight);
    grid->setWrapping(true);
    grid->setResizeMode(QListView::Adjust);
    grid->setUniformItemSizes(true);
    const QSize cell(MediaBrowserDelegate::cellSize(fontMetrics()));
    grid->setGridSize(cell);
    grid->setSelectionMode(QAbstractItemView::ExtendedSelection);
    grid->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    grid->setDragEnabled(true);
    grid->setDragDropMode(QAbstractItemView::DragOnly);
    connect(grid, &QListView::activated, this,
            [this](const QModelIndex& index) { controller.openEntry(model->entryAt(index.row())); });
    new ThumbnailWisher(
        *grid, thumbnails,
        [this, cell] {
            const int perLine = std::max(1, grid->viewport()->width() / cell.width());
            const int top = grid->verticalScrollBar()->value();
            const int lastLine = (top + grid->viewport()->height()) / cell.height();
            return ThumbnailWisher::Rows{top / cell.height() * perLine,
                                         std::min((lastLine + 1) * perLine, model->rowCount()) - 1};
        },
        [this](int row) {
            const auto& entry = model->entryAt(row);
            return entry.isFolder ? std::filesystem::path() : entry.path;
        },
        [] { return MediaBrowserDelegate::kPicture; });
    return grid;
}

void MediaBrowserWindow::showFolder() {
    place->setText(uiPath(controller.folder()));
    place->setToolTip(place->text());
    up->setEnabled(controller.canGoUp());
    stack->setCurrentWidget(controller.entries().empty() ? static_cast<QWidget*>(nothing) : grid);
}

void MediaBrowserWindow::addChosen() {
    MediaBrowserWindowController::Paths paths;
    for (const QModelIndex& index : grid->selectionModel()->selectedIndexes())
        paths.push_back(model->entryAt(index.row()).path);
    controller.addPaths(paths.empty() ? MediaBrowserWindowController::Paths{controller.folder()} : paths);
}

void MediaBrowserWindow::noteFrame() {
    controller.setFrame({x(), y(), width(), height()});
}

void MediaBrowserWindow::moveEvent(QMoveEvent* event) {
    ToolWindow::moveEvent(event);
    noteFrame();
}

void MediaBrowserWindow::resizeEvent(QResizeEvent* event) {
    ToolWindow::resizeEvent(event);
    noteFrame();
}

void MediaBrowserWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Backspace)
        controller.goUp();
    else
        ToolWindow::keyPressEvent(event);
}
