#include "ui/window/MainWindow.h"

#include "app/KTMapAndToolbarViewController.h"
#include "app/WaymarkAppController.h"
#include "app/WaymarkMainMenu.h"
#include "app/WaymarkWindowController.h"
#include "app/editor/KTMetadataCustomizationViewController.h"
#include "geotagging/KTAppTrackPickerController.h"
#include "geotagging/KTGeotaggingController.h"
#include "geotagging/KTPhotoMatchController.h"
#include "ui/console/ConsolePane.h"
#include "ui/inspector/InspectorPane.h"
#include "ui/inspector/PasteTagsSheet.h"
#include "ui/map/MapPane.h"
#include "ui/map/MapTracks.h"
#include "ui/photos/PhotoFilterBar.h"
#include "ui/photos/PhotoMimeData.h"
#include "ui/photos/PhotoPane.h"
#include "ui/support/DroppedPaths.h"
#include "ui/support/ObservationLink.h"
#include "ui/support/UIText.h"
#include "ui/window/BatchProgressSheet.h"
#include "ui/window/DemoTripCommand.h"
#include "ui/window/DropHighlight.h"
#include "ui/window/MainMenuBar.h"
#include "ui/window/MainToolBar.h"
#include "ui/window/WindowStatusBar.h"

#include <QCloseEvent>
#include <QScreen>
#include <QSplitter>
#include <QVBoxLayout>

namespace {

constexpr QSize kUsualSize(1440, 900);
constexpr QSize kFrame(8, 48); // what a window manager may need around it
/// Whose visibility is kept, and under which names.
constexpr std::pair<WaymarkPane, const char*> kPanes[] = {{WaymarkPane::MapView, "map"},
                                                          {WaymarkPane::GeotaggingView, "console"},
                                                          {WaymarkPane::ThumbnailView, "photos"},
                                                          {WaymarkPane::MetadataView, "metadata"}};
constexpr int kUsualColumns[] = {372, 740, 328};
constexpr int kUsualMiddle[] = {520, 250};

} // namespace

MainWindow::MainWindow(WaymarkWindowController& windowController, KTThumbnailService& thumbnailService)
    : controller(windowController), thumbnails(thumbnailService), presenter(this),
      dropHighlight(new DropHighlight(*this)) {
    setObjectName("mainWindow");
    setWindowTitle(uiText("Waymark"));
    setAcceptDrops(true);
    setMinimumSize(640, 400);
    const QSize room = screen()->availableSize() - kFrame;
    resize(kUsualSize.boundedTo(room));
    if (room.width() < kUsualSize.width() || room.height() < kUsualSize.height())
        setWindowState(Qt::WindowMaximized); // as large as a small screen allows
    observations.push_back(controller.observe([this](const KTChange& change) {
        if (change.isPrior)
            return;
        if (change.key == "isWindowVisible")
            showOrHide();
        else if (change.key == "shownPanes")
            showPanes();
    }));
}

MainWindow::~MainWindow() {
    if (isSetUp)
        saveState();
}

void MainWindow::showOrHide() {
    if (!controller.isWindowVisible()) {
        hide();
        return;
    }
    if (!isSetUp)
        setUp();
    show();
    raise();
    activateWindow();
}

void MainWindow::setUp() {
    WaymarkAppController& app = controller.appController();
    photoPane =
        new PhotoPane(*controller.photoController(), thumbnails,
                      {.addPhotos = [&app] { app.loadPhotosFromFiles(); },
                       .addTracks = [&app] { app.loadTracksFromFile(); },
                       .tryDemoTrip = DemoTripCommand::isOffered() ? std::function([this] { tryDemoTrip(); })
                                                                   : std::function<void()>()});
    setMenuBar(new MainMenuBar(*app.mainMenu(), this));
    addToolBar(new MainToolBar(controller, new PhotoFilterBar(photoPane->model()), this));

    middle = new QSplitter(Qt::Vertical);
    addMap();
    addConsole();
    showMatches();
    columns = new QSplitter(Qt::Horizontal);
    columns->addWidget(photoPane);
    columns->addWidget(middle);
    addInspector();
    columns->setStretchFactor(1, 1);
    columns->setCollapsible(0, false);
    columns->setCollapsible(2, false);
    auto* const centre = new QWidget;
    auto* const layout = new QVBoxLayout(centre);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(columns, 1);
    layout->addWidget(new WindowStatusBar(*controller.photoManagerToolbarController(), app.photoManager()));
    setCentralWidget(centre);
    new BatchProgressSheet(*controller.batchOperationController(), this);
    isSetUp = true;
    restoreState();
    showPanes();
}

void MainWindow::addMap() {
    WaymarkAppController& app = controller.appController();
    KTGeotaggingController& geotagging = *controller.geotaggingController();
    auto* const pane = new MapPane(
        *controller.mapController(),
        {.photos = controller.mapAndToolbarViewController()->photoSpatialObjectController(),
         .points = geotagging,
         .contextMenu =
             [&geotagging](KTMapPoint place) { return geotagging.mapViewWasRightClickedAtLocation(place); },
         .geotagPhotos =
             [&geotagging](const MapFeatures::Photos& photos, KTMapPoint place) {
                 geotagging.geotagPhotosDraggedToLocation(photos, place);
             }},
        thumbnails, [&app] { app.zoomToFit(); });
    MapLayers& layers = pane->view().layers();
    new MapTracks(*app.trackPickerController(), layers.tracks(), pane);
    observations.push_back(observeFor(this, geotagging, "flagRotation", [&geotagging, &layers] {
        layers.points().setFlagRotation(geotagging.flagRotation());
    }));
    mapPane = pane;
    middle->addWidget(mapPane);
}

void MainWindow::addConsole() {
    WaymarkAppController& app = controller.appController();
    consolePane = new ConsolePane(*controller.geotaggingConsoleViewController(),
                                  *controller.timeZoneHUDController(), [&app] { app.loadTracksFromFile(); });
    middle->addWidget(consolePane);
    middle->setStretchFactor(0, 1);
    middle->setCollapsible(1, false);
}

void MainWindow::addInspector() {
    inspector = new InspectorPane(
        *controller.metadataEditorViewController(), *controller.metadataCustomizationViewController(),
        [this](bool isOn) { controller.setPaneShown(WaymarkPane::MetadataCustomizationView, isOn); });
    columns->addWidget(inspector);
}

void MainWindow::chooseTagsToPaste(const KTCopiedTags& tags, std::size_t photoCount,
                                   std::function<void(const KTCopiedTags& chosen)> paste) {
    (new PasteTagsSheet(tags, photoCount, std::move(paste), this))->open();
}

/// Why which photo has no match, in the table.
void MainWindow::showMatches() {
    KTPhotoMatchController& matches = *controller.photoMatchController();
    PhotoListModel& list = photoPane->model();
    list.setStatusText([&matches](const PhotoListModel::Photo& photo) {
        return QString::fromStdString(matches.textsOfPhoto(photo).explanation);
    });
    list.setFarFromTracks(
        [&matches](const PhotoListModel::Photo& photo) { return matches.isFarFromTracks(photo); });
    observations.push_back(observeFor(this, matches, "matches", [&list] { list.statusTextsDidChange(); }));
}

void MainWindow::showPanes() {
    if (!isSetUp)
        return;
    photoPane->setVisible(controller.isPaneShown(WaymarkPane::ThumbnailView));
    photoPane->setViewOptionsShown(controller.isPaneShown(WaymarkPane::ViewOptions));
    mapPane->setVisible(controller.isPaneShown(WaymarkPane::MapView));
    inspector->setVisible(controller.isPaneShown(WaymarkPane::MetadataView));
    consolePane->setVisible(controller.isPaneShown(WaymarkPane::GeotaggingView));
    middle->setVisible(controller.isPaneShown(WaymarkPane::MapView) ||
                       controller.isPaneShown(WaymarkPane::GeotaggingView));
}

void MainWindow::restoreState() {
    columns->setSizes(QList<int>(std::begin(kUsualColumns), std::end(kUsualColumns)));
    middle->setSizes(QList<int>(std::begin(kUsualMiddle), std::end(kUsualMiddle)));
    state.restoreGeometry("main", *this);
    state.restoreSizes("columns", *columns);
    state.restoreSizes("middle", *middle);
    photoPane->table().setColumnWidths(state.widths("table"));
    photoPane->table().setCompactRows(state.flag("table/compact", false));
    for (const auto& [pane, name] : kPanes)
        controller.setPaneShown(pane, state.flag(QString("panes/") + name, true));
}

void MainWindow::saveState() {
    state.saveGeometry("main", *this);
    state.saveSizes("columns", *columns);
    state.saveSizes("middle", *middle);
    state.saveWidths("table", photoPane->table().columnWidths());
    state.saveFlag("table/compact", photoPane->table().hasCompactRows());
    for (const auto& [pane, name] : kPanes)
        state.saveFlag(QString("panes/") + name, controller.isPaneShown(pane));
}

/// Closing the main window ends the program, which may ask first.
void MainWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    controller.appController().quit();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (qobject_cast<const PhotoMimeData*>(event->mimeData()) || !event->mimeData()->hasUrls())
        return;
    const auto paths = droppedPaths(*event->mimeData());
    WaymarkAppController& app = controller.appController();
    if (!app.validateFilesAtPaths(paths))
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    dropHighlight->showText(QString::fromStdString(app.descriptionOfDrop(paths)));
}

void MainWindow::dragMoveEvent(QDragMoveEvent* event) {
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(dropHighlight->isVisible());
}

void MainWindow::dragLeaveEvent(QDragLeaveEvent*) {
    dropHighlight->hide();
}

void MainWindow::dropEvent(QDropEvent* event) {
    dropHighlight->hide();
    event->setDropAction(Qt::CopyAction);
    event->accept();
    controller.appController().importFilesFromPasteboard({.files = droppedPaths(*event->mimeData())});
}

void MainWindow::tryDemoTrip() {
    DemoTripCommand::run(controller);
}
