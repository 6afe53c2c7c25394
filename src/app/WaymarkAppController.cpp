#include "app/WaymarkAppController.h"

#include "app/AppPreferencesWindowController.h"
#include "app/MediaBrowserWindowController.h"
#include "app/WaymarkMainMenu.h"
#include "app/WaymarkWindowController.h"
#include "app/editor/KTCopiedTags.h"
#include "app/editor/KTMetadataEditorViewController.h"
#include "collection/KTBatchOperationController.h"
#include "collection/KTPhotoManager.h"
#include "collection/KTPhotoOperationWindowController.h"
#include "collection/KTTagDetailsWindowController.h"
#include "collection/PhotoManagerMenuBarController.h"
#include "datetools/KTDateToolsWindowController.h"
#include "export/KTPhotoExportPluginMenuController.h"
#include "export/KTPhotoExportProgressWindowController.h"
#include "export/KTPluginManager.h"
#include "export/slideshow/KTSlideShowExporterClass.h"
#include "geotagging/KTAppTrackPickerController.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/concurrency/KTThreadHeap.h"
#include "platform/concurrency/KTThreadPool.h"
#include "platform/gazetteer/KTGazetteer.h"
#include "platform/undo/KTUndoManager.h"

#include <algorithm>

namespace {

/// The desktop as far as there is a screen.
class ScreenDesktop final : public KTExportDesktop {
public:
    explicit ScreenDesktop(WaymarkUserInterface& shown) : screen(shown) {}
    void openURL(const std::string& url) override { screen.openURL(url); }
    void setClipboardText(const std::string& text) override { screen.setClipboardText(text); }

private:
    WaymarkUserInterface& screen;
};

} // namespace

WaymarkAppController::WaymarkAppController(WaymarkUserInterface& screen, WaymarkModel shared)
    : userInterface(screen), model(std::move(shared)), self(std::make_shared<WaymarkAppController*>(this)) {}

/// Windows go before what they show.
WaymarkAppController::~WaymarkAppController() {
    preferencesWindow.reset();
    tagDetailsWindow.reset();
    mediaBrowserWindow.reset();
    trackPickerWindow.reset();
    operationLogWindow.reset();
    dateToolsWindow.reset();
    exportListWindow.reset();
    menu.reset();
    if (mainWindow)
        closeMainWindow();
}

void WaymarkAppController::setupModel() {
    queueOfUndo =
        std::make_shared<KTSerialQueue>("com.Brightfold.UndoQueue", KTSerialQueue::Kind::Announcing);
    undo = std::make_shared<KTUndoManager>(queueOfUndo);
    exportPlugins = KTPhotoExportPluginManager::make();
    KTPluginManager::BuiltInClasses partsOfTheProgram;
    if (KTSlideShowScreen* const slideShows = userInterface.slideShowScreen())
        partsOfTheProgram.push_back(std::make_shared<KTSlideShowExporterClass>(*slideShows));
    plugins = std::make_unique<KTPluginManager>(exportPlugins, std::move(partsOfTheProgram));
    photoManager().setUndoManager(undo, queueOfUndo);
    photoManager().setCreatesSidecarsOfRawFiles(true);
}

void WaymarkAppController::setupControllers() {
    trackPicker = std::make_unique<KTAppTrackPickerController>(trackManager());
    trackPicker->setPhotoManager(&photoManager());
    trackPicker->setUndoManager(undo);
    trackPicker->setup();
    trackPickerWindow = userInterface.makeTrackPickerWindow(*trackPicker);
    menuBarFlags = std::make_unique<PhotoManagerMenuBarController>(photoManager());
    menuBarFlags->setup();
    dateTools = std::make_unique<KTDateToolsWindowController>(photoManager(), metadataFieldManager(),
                                                              timeZoneManager());
    dateTools->setup();
    dateToolsWindow = userInterface.makeDateToolsWindow(*dateTools);
    operationLog = std::make_unique<KTPhotoOperationWindowController>(photoManager());
    operationLog->setup();
    operationLogWindow = userInterface.makePhotoOperationWindow(*operationLog);
    mediaBrowser = std::make_unique<MediaBrowserWindowController>(
        userInterface.picturesFolder(), [this](const auto& paths) { importFilesAtPaths(paths); });
    mediaBrowserWindow = userInterface.makeMediaBrowserWindow(*mediaBrowser);
    setupExportList();
    menu = std::make_unique<WaymarkMainMenu>(*this);
    menu->setup();
    importObservation = photoManager().observe([this](const KTChange& change) {
        if (change.key == "importInProgress" && !change.isPrior && !photoManager().importInProgress())
            KTRunOnThreadPool(KTReturnFreeMemory); // what reading took beside the photos
    });
}

/// Exports go on, and are recorded, also without a main window.
void WaymarkAppController::setupExportList() {
    exportDesktop = std::make_unique<ScreenDesktop>(userInterface);
    exportHistory =
        std::make_unique<KTPhotoExportOperationController>(KTExportHistoryStore::userFile(), *exportDesktop);
    exportHistory->store().setPresenter(&userInterface.presenter());
    exportList = std::make_unique<KTPhotoExportProgressWindowController>(*exportHistory);
    exportList->setPhotoExportPluginManager(exportPlugins.get());
    exportListWindow = userInterface.makeExportListWindow(*exportList);
}

void WaymarkAppController::showWaymarkWindow() {
    if (!mainWindow) {
        willChange("waymarkWindowController");
        mainWindow = std::make_unique<WaymarkWindowController>(*this);
        mainWindow->setup(userInterface);
        didChange("waymarkWindowController");
        mainWindowObservation = mainWindow->observe([this](const KTChange& change) {
            if (change.key == "isWindowVisible" && !change.isPrior && !mainWindow->isWindowVisible())
                afterwards(&WaymarkAppController::handleWaymarkWindowWillClose);
        });
        setupPlugins();
        menu->setup();
    }
    mainWindow->setWindowVisible(true);
    if (!std::exchange(hasShownMediaBrowser, true) && MediaBrowserWindowController::defaultVisibility())
        mediaBrowser->setWindowVisible(true);
    if (!std::exchange(hasToldLibraryProblem, true) && !model.trackLibraryProblem.empty())
        mainWindow->window()->presentAlert(
            {.message = KTLocalizedString("The track library cannot be used."),
             .informativeText =
                 model.trackLibraryProblem + "\n" +
                 KTLocalizedString(
                     "Tracks that you add now are kept until you quit. Your library stays as it is."),
             .buttons = {KTLocalizedString("OK")}});
}

void WaymarkAppController::tellProblem(const std::string& message, const std::string& informativeText) {
    KTPresenter& told = mainWindow ? *mainWindow->window() : userInterface.presenter();
    told.presentAlert(
        {.message = message, .informativeText = informativeText, .buttons = {KTLocalizedString("OK")}});
}

void WaymarkAppController::tellOfFormerRun(const Paths& writesCutShort) {
    constexpr std::size_t kShown = 10;
    std::string text;
    for (std::size_t i = 0; i < std::min(writesCutShort.size(), kShown); ++i)
        text += KTValidUTF8(writesCutShort[i].string()) + "\n";
    if (writesCutShort.size() > kShown)
        text += KTLocalizedCount("… and %d more", writesCutShort.size() - kShown) + "\n";
    text +=
        "\n" + KTLocalizedString("Each file holds what it held before, or its new version as a whole. Look "
                                 "whether it has what you changed last.");
    tellProblem(KTLocalizedString("Waymark was ended while it wrote to photos."), text);
}

/// Runs @p handler from the event loop: it destroys the one who announces.
void WaymarkAppController::afterwards(void (WaymarkAppController::*handler)()) {
    KTPerformOnMainThread([handler, alive = std::weak_ptr(self)] {
        if (const auto controller = alive.lock())
            ((*controller)->*handler)();
    });
}

void WaymarkAppController::setupPlugins() {
    exportMenu = std::make_unique<KTPhotoExportPluginMenuController>();
    exportMenu->setPhotoExportPluginManager(exportPlugins.get());
    exportMenu->setProgressWindowController(exportList.get());
    exportMenu->setup();
    exportList->setup();
    exportPlugins->setPhotoController(mainWindow->photoController());
    exportPlugins->setTrackManager(&trackManager());
    exportPlugins->setMetadataController(&metadataFieldManager());
    exportPlugins->setPresenter(mainWindow->window());
    exportPlugins->setPrimaryWindow(mainWindow->window()->viewHandle());
    afterwards(&WaymarkAppController::loadPlugins); // the window is up first
}

void WaymarkAppController::loadPlugins() {
    if (!mainWindow)
        return;
    plugins->loadAllPlugins();
    if (!std::exchange(hasLoadedHistory, true))
        exportHistory->loadSavedExportOperations();
}

void WaymarkAppController::handleWaymarkWindowWillClose() {
    if (!mainWindow || mainWindow->isWindowVisible())
        return;
    handlePreferencesWindowWillClose(); // it knows the window's map
    willChange("waymarkWindowController");
    closeMainWindow();
    didChange("waymarkWindowController");
}

void WaymarkAppController::closeMainWindow() {
    exportPlugins->setPhotoController(nullptr);
    exportPlugins->setPresenter(nullptr);
    exportPlugins->setPrimaryWindow(nullptr);
    exportMenu->tearDown();
    mainWindowObservation.stop();
    mainWindow->tearDown();
    mainWindow.reset();
}

WaymarkAppController::TerminateReply WaymarkAppController::applicationShouldTerminate() {
    commitEditing();
    mediaBrowser->storeDefaults();
    const std::size_t unsaved = photoManager().unsavedPhotos()->size();
    const bool isExporting = exportPlugins->isExporting();
    if (unsaved == 0 && !isExporting)
        return TerminateReply::Now;
    if (std::exchange(isAskingToQuit, true))
        return TerminateReply::Later;
    if (unsaved != 0)
        askToDiscardChanges(unsaved);
    else
        askToStopExports();
    return TerminateReply::Later;
}

/// For a question of which the first button goes on to the end, with @p handler.
std::function<void(std::size_t)> WaymarkAppController::whenAnswered(void (WaymarkAppController::*handler)()) {
    return [handler, alive = std::weak_ptr(self)](std::size_t button) {
        const auto controller = alive.lock();
        if (!controller)
            return;
        (*controller)->isAskingToQuit = false;
        if (button == 0)
            ((*controller)->*handler)();
    };
}

void WaymarkAppController::askToDiscardChanges(std::size_t unsaved) {
    KTPresenter& asked = mainWindow ? *mainWindow->window() : userInterface.presenter();
    asked.presentAlert(
        {.message = KTLocalizedCount(
             "You have %d photos with unsaved changes. Are you sure you want to quit?", std::size_t(unsaved)),
         .informativeText = KTLocalizedString("If you don't save, all changes will be lost."),
         .buttons = {KTLocalizedString("Discard Changes & Quit"), KTLocalizedString("Cancel")},
         .completion = whenAnswered(&WaymarkAppController::endOrAskOn)});
}

void WaymarkAppController::askToStopExports() {
    KTPresenter& asked = mainWindow ? *mainWindow->window() : userInterface.presenter();
    asked.presentAlert(
        {.message = KTLocalizedString("An export is in progress. Are you sure you want to quit?"),
         .informativeText = KTLocalizedString("The photos that are finished stay."),
         .buttons = {KTLocalizedString("Stop Export & Quit"), KTLocalizedString("Cancel")},
         .completion = whenAnswered(&WaymarkAppController::endNow)});
}

void WaymarkAppController::endOrAskOn() {
    if (!exportPlugins->isExporting())
        return endNow();
    isAskingToQuit = true;
    askToStopExports();
}

void WaymarkAppController::endNow() {
    userInterface.terminate();
}

void WaymarkAppController::quit() {
    if (applicationShouldTerminate() == TerminateReply::Now)
        userInterface.terminate();
}

void WaymarkAppController::applicationWillTerminate() {
    listingStop.request_stop();
    photoManager().setShouldCancelImport();
    trackManager().cancelImport();
    exportPlugins->stopAllOperations();
    if (mainWindow)
        mainWindow->batchOperationController()->abortBatch();
    gazetteer().close();
}
