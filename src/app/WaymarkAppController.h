#pragma once
#include "app/WaymarkModel.h"
#include "app/WaymarkUserInterface.h"
#include "platform/desktop/KTPasteboard.h"
#include "platform/observing/KTObservable.h"

#include <filesystem>
#include <functional>
#include <stop_token>
#include <vector>

class AppPreferencesWindowController;
class KTCopiedTags;
class KTExportDesktop;
class KTPhotoExportOperationController;
class KTPhotoExportPluginMenuController;
class KTPhotoExportProgressWindowController;
class MediaBrowserWindowController;
class PhotoManagerMenuBarController;
class WaymarkMainMenu;
struct DroppedFiles;

/// The application: makes model, controllers and windows in their order, routes dropped and opened files,
/// carries out the commands of the menu bar, and guards the end. Observable under the names of its
/// properties. Main thread.
class WaymarkAppController : public KTObservable {
public:
    using Paths = std::vector<std::filesystem::path>;
    /// The answer to the question whether the program may end.
    enum class TerminateReply {
        Now,
        Later, ///< the user is being asked; terminate() of the user interface follows, or nothing
    };

    /// @p screen must outlive the controller, as must what @p shared names.
    explicit WaymarkAppController(WaymarkUserInterface& screen, WaymarkModel shared = WaymarkModel::shared());
    ~WaymarkAppController() override;

    // Start-up, in this order (WaymarkAppController.cpp)
    void setupModel();
    void setupControllers();
    /// Shows the main window; makes it first, and loads the plug-ins soon after, where there is none.
    void showWaymarkWindow();
    /// Tells the user what a former run was doing when it was ended from outside, or did not do as wanted.
    void tellOfFormerRun(const std::vector<std::filesystem::path>& writesCutShort);
    void tellProblem(const std::string& message, const std::string& informativeText);
    void setupPlugins();

    KTPhotoManager& photoManager() const { return *model.photoManager; }
    KTMetadataFieldManager& metadataFieldManager() const { return *model.metadataFieldManager; }
    KTTrackManager& trackManager() const { return *model.trackManager; }
    KTTimeZoneManager& timeZoneManager() const { return *model.timeZoneManager; }
    KTGazetteer& gazetteer() const { return *model.gazetteer; }
    KTSystemTimeZone& systemTimeZone() const { return *model.systemTimeZone; }
    const std::shared_ptr<KTUndoManager>& undoManager() const { return undo; }
    const std::shared_ptr<KTSerialQueue>& undoQueue() const { return queueOfUndo; }
    KTPluginManager* pluginManager() const { return plugins.get(); }
    KTPhotoExportPluginManager* photoExportPluginManager() const { return exportPlugins.get(); }
    KTDateToolsWindowController* dateToolsWindowController() const { return dateTools.get(); }
    bool hasDateToolsWindow() const { return dateToolsWindow != nullptr; }
    KTAppTrackPickerController* trackPickerController() const { return trackPicker.get(); }
    PhotoManagerMenuBarController* photoManagerMenuBarController() const { return menuBarFlags.get(); }
    KTPhotoOperationWindowController* photoOperationWindowController() const { return operationLog.get(); }
    MediaBrowserWindowController* mediaBrowserWindowController() const { return mediaBrowser.get(); }
    bool hasMediaBrowserWindow() const { return mediaBrowserWindow != nullptr; }
    KTPhotoExportPluginMenuController* photoExportPluginMenuController() const { return exportMenu.get(); }
    KTPhotoExportProgressWindowController* photoExportProgressWindowController() const {
        return exportList.get();
    }
    /// The menu bar as data; from setupControllers() on.
    WaymarkMainMenu* mainMenu() const { return menu.get(); }
    // These exist while their windows are shown; null else. Observable.
    WaymarkWindowController* waymarkWindowController() const { return mainWindow.get(); }
    KTTagDetailsWindowController* tagDetailsWindowController() const { return tagDetails.get(); }
    AppPreferencesWindowController* appPreferencesWindowController() const { return preferences.get(); }

    // Files (WaymarkAppControllerFiles.cpp)
    /// Whether a drag of these paths may be dropped: one is a folder, a photo or a track by its name.
    bool validateFilesAtPaths(const Paths& paths) const;
    /// What a drop of @p paths would do, for the user: "Add 12 photos and 1 track". Folders are not looked
    /// into, so that it is quick; empty when nothing may be dropped.
    std::string descriptionOfDrop(const Paths& paths) const;
    /// Loads photos, then tracks; folders are looked through on another thread. Returns at once.
    void importFilesAtPaths(const Paths& paths);
    /// The same for what a drag or the clipboard carries, items of photo libraries included.
    void importFilesFromPasteboard(const KTPasteboard& pasteboard);
    /// The same for files that were given to the program; bundles of plug-ins are installed first.
    void importFilesFromOpenFilesAppDelegateAtPaths(const Paths& paths);

    /// Ends what is being typed into the metadata editor, as an edit of its photos. The commands of the menu
    /// bar begin with it. Not from code run by an announcement.
    void commitEditing();
    bool hasPendingEdit() const;

    // The end
    /// Stores what is to be kept, and asks the user where photos have unsaved changes.
    TerminateReply applicationShouldTerminate();
    /// Asks, and ends the program where nothing is to be asked.
    void quit();
    /// Stops imports, batches and questions for place names; the photo being written is finished. The last
    /// call before the controller is destroyed.
    void applicationWillTerminate();

    // Window commands (WaymarkAppControllerCommands.cpp)
    void togglePreferencesWindow();
    void toggleDateAndTimeShifter();
    void toggleDateAndTimeSetter();
    void toggleDateAndTimeCopier();
    void toggleTagDetailsWindow();
    void togglePhotoOperationWindow();
    void toggleMediaBrowser();
    void toggleTrackPickerWindow() {}
    void showAboutBox() { userInterface.showAboutBox(); }

    // Menu commands, forwarded to the controllers of the main window; nothing without one
    void loadTracksFromFile();
    void downloadTracksFromGPS();
    void openTrackAndWaypointBrowser();
    void loadPhotosFromFiles();
    void removeSelectedPhotos();
    void removeGPSTags();
    void removeImageDirection();
    void removeLocationShown();
    void reverseGeocodeLocationCreated();
    void reverseGeocodeLocationShown();
    void zoomToFit();
    void toggleMetadataTagViewer();
    void toggleThumbnail();
    void toggleMap();
    void toggleGeotaggingConsole();
    void customizeMetadataTagViewer();
    void togglePhotoViewOptions();
    void writeChangedTags();
    void undoLastStep();
    void redoLastStep();
    void selectAllPhotos();
    void deselectAllPhotos();
    void selectNextPhoto() { selectNeighbour(true); }
    void selectPreviousPhoto() { selectNeighbour(false); }
    /// The selected photo's position as text on the clipboard.
    void copyCoordinates();
    /// Geotags the selected photos to the position that the text on the clipboard names.
    void pasteCoordinates();
    /// The values of the first selected photo, to be pasted onto others.
    void copyTags();
    bool hasCopiedTags() const { return copiedTags != nullptr; }
    /// Lets the user choose among the copied values, and gives these to the photos that are selected now.
    void pasteTags();
    /// Geotags the selected photos to the map's centre.
    void geotagToMapCenter();
    /// The same, and then selects the next photo without a location.
    void geotagToMapCenterAndGoOn();

private:
    void handleWaymarkWindowWillClose();
    void closeMainWindow();
    void handleTagDetailsWindowWillClose();
    void handlePreferencesWindowWillClose();
    template<class Command>
    void withPhotos(const Command& command);
    void selectNeighbour(bool isNext);
    void afterwards(void (WaymarkAppController::*handler)());
    void loadPlugins();
    void setupExportList();
    void askToDiscardChanges(std::size_t unsaved);
    void askToStopExports();
    std::function<void(std::size_t)> whenAnswered(void (WaymarkAppController::*handler)());
    void endOrAskOn();
    void endNow();
    void importFiles(const Paths& paths, bool bundlesAreFiles);
    void selectFirstPhotos();
    void importDroppedFiles(const DroppedFiles& files);

    WaymarkUserInterface& userInterface;
    WaymarkModel model;
    std::shared_ptr<KTSerialQueue> queueOfUndo;
    std::shared_ptr<KTUndoManager> undo;
    std::shared_ptr<KTPhotoExportPluginManager> exportPlugins;
    std::unique_ptr<KTPluginManager> plugins;
    std::unique_ptr<KTAppTrackPickerController> trackPicker;
    std::unique_ptr<PhotoManagerMenuBarController> menuBarFlags;
    std::unique_ptr<KTDateToolsWindowController> dateTools;
    std::unique_ptr<KTPhotoOperationWindowController> operationLog;
    std::unique_ptr<MediaBrowserWindowController> mediaBrowser;
    std::unique_ptr<KTExportDesktop> exportDesktop;
    std::unique_ptr<KTPhotoExportOperationController> exportHistory;
    std::unique_ptr<KTPhotoExportProgressWindowController> exportList;
    std::unique_ptr<KTPhotoExportPluginMenuController> exportMenu;
    std::unique_ptr<WaymarkMainMenu> menu;
    std::unique_ptr<WaymarkWindowController> mainWindow;
    std::unique_ptr<KTTagDetailsWindowController> tagDetails;
    std::unique_ptr<AppPreferencesWindowController> preferences;
    std::unique_ptr<KTCopiedTags> copiedTags;
    bool hasToldLibraryProblem = false, hasShownMediaBrowser = false, hasSelectedFirstPhotos = false,
         isAskingToQuit = false, hasLoadedHistory = false;
    std::stop_source listingStop;
    Observation importObservation, mainWindowObservation, tagDetailsObservation, preferencesObservation;
    WaymarkUserInterface::Window tagDetailsWindow, operationLogWindow, trackPickerWindow, dateToolsWindow,
        mediaBrowserWindow, exportListWindow, preferencesWindow;
    const std::shared_ptr<WaymarkAppController*> self; // for what is posted
};
