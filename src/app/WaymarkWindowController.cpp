#include "app/WaymarkWindowController.h"

#include "app/KTMapAndToolbarViewController.h"
#include "app/WaymarkAppController.h"
#include "app/editor/KTMetadataCustomizationViewController.h"
#include "collection/KTBatchOperationController.h"
#include "collection/KTPhotoController.h"
#include "collection/KTPhotoManagerToolbarController.h"
#include "export/KTPhotoExportPluginManager.h"
#include "geotagging/KTAppTrackPickerController.h"
#include "geotagging/KTGeotaggingConsoleViewController.h"
#include "geotagging/KTGeotaggingController.h"
#include "geotagging/KTPhotoMatchController.h"
#include "geotagging/KTTimeZoneHUDController.h"
#include "platform/defaults/KTComboBoxStoreController.h"

WaymarkWindowController::WaymarkWindowController(WaymarkAppController& application) : app(application) {}

WaymarkWindowController::~WaymarkWindowController() {
    tearDown();
}

void WaymarkWindowController::setup(WaymarkUserInterface& userInterface) {
    KTPhotoManager& manager = app.photoManager();
    batches = std::make_unique<KTBatchOperationController>(app.undoManager());
    manager.setBatchOperationController(batches.get());

    photos = std::make_unique<KTPhotoController>(manager);
    photos->setPhotoExportPluginManager(app.photoExportPluginManager());
    photos->setBatchOperationController(batches.get());

    geotagging = std::make_unique<KTGeotaggingController>(*photos, *app.trackPickerController(), *batches);

    map = std::make_unique<KTMapController>();
    mapAndToolbar = std::make_unique<KTMapAndToolbarViewController>(*map, *photos, *geotagging);
    photos->setMapAndToolbarViewController(mapAndToolbar.get());
    geotagging->setMapController(map.get());
    app.trackPickerController()->setMapController(map.get());
    photos->setup();
    geotagging->setup();
    mapAndToolbar->setup();

    auto& typedTexts = KTComboBoxStoreController::sharedComboBoxStoreController();
    metadataEditor =
        std::make_unique<KTMetadataEditorViewController>(manager, app.metadataFieldManager(), typedTexts);
    metadataCustomization = std::make_unique<KTMetadataCustomizationViewController>(
        *metadataEditor, KTUserTemplates(KTUserTemplates::userFolder()));
    toolbar = std::make_unique<KTPhotoManagerToolbarController>(manager);
    matches = std::make_unique<KTPhotoMatchController>(*geotagging);
    console = std::make_unique<KTGeotaggingConsoleViewController>(*geotagging);
    timeZonePanel =
        std::make_unique<KTTimeZoneHUDController>(app.metadataFieldManager(), app.systemTimeZone());
    timeZonePanel->setToggleDateAndTimeShifter([this] { app.toggleDateAndTimeShifter(); });
    matches->setup();
    app.trackPickerController()->setMatchController(matches.get());
    console->setup();
    timeZonePanel->setup();

    ownWindow = userInterface.makeWaymarkWindow(*this);
    photos->setPhotoWindow(ownWindow.get());
    app.trackPickerController()->setPresenter(ownWindow.get());
    metadataCustomization->setPresenter(ownWindow.get());
    typedTexts.setPresenter(ownWindow.get());
}

void WaymarkWindowController::tearDown() {
    if (!ownWindow)
        return;
    photos->setPhotoWindow(nullptr);
    app.trackPickerController()->setPresenter(nullptr);
    metadataCustomization->setPresenter(nullptr);
    KTComboBoxStoreController::sharedComboBoxStoreController().setPresenter(nullptr);
    ownWindow.reset();
    timeZonePanel->tearDown();
    console->tearDown();
    app.trackPickerController()->setMatchController(nullptr);
    matches->tearDown();
    mapAndToolbar->tearDown();
    map->saveLocation();
    geotagging->tearDown();
    photos->tearDown();
    app.trackPickerController()->setMapController(nullptr);
    app.photoManager().setBatchOperationController(nullptr);
}

void WaymarkWindowController::setWindowVisible(bool visible) {
    willChange("isWindowVisible");
    isVisible = visible;
    didChange("isWindowVisible");
}

void WaymarkWindowController::setPaneShown(WaymarkPane pane, bool isShown) {
    using enum WaymarkPane;
    willChange("shownPanes");
    shown[std::size_t(pane)] = isShown;
    if (pane == MetadataCustomizationView && isShown)
        shown[std::size_t(MetadataView)] = true;
    if (pane == MetadataView && !isShown)
        shown[std::size_t(MetadataCustomizationView)] = false;
    if (const bool isCustomizing = shown[std::size_t(MetadataCustomizationView)];
        metadataEditor && metadataEditor->inCustomizationMode() != isCustomizing)
        metadataEditor->setInCustomizationMode(isCustomizing);
    didChange("shownPanes");
}
