#include "app/WaymarkCommand.h"

#include "app/MediaBrowserWindowController.h"
#include "app/WaymarkAppController.h"
#include "app/WaymarkWindowController.h"
#include "collection/KTPhotoManager.h"
#include "collection/KTPhotoManagerToolbarController.h"
#include "collection/KTPhotoOperationWindowController.h"
#include "collection/PhotoManagerMenuBarController.h"
#include "datetools/KTDateToolsWindowController.h"
#include "geotagging/KTAppTrackPickerController.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/undo/KTUndoManager.h"

namespace {

using App = WaymarkAppController;
using DateTools = KTDateToolsWindowController;

// What commands need
bool canUndo(const App& app) {
    return app.hasPendingEdit() || app.undoManager()->canUndo();
}
bool canRedo(const App& app) {
    return app.undoManager()->canRedo();
}
bool hasWindow(const App& app) {
    return app.waymarkWindowController() != nullptr;
}
bool hasPhotos(const App& app) {
    return app.photoManager().numberOfPhotos() != 0;
}
bool hasSelectedPhotos(const App& app) {
    return app.photoManagerMenuBarController()->hasSelectedPhotos();
}
bool hasLocationCreated(const App& app) {
    return app.photoManagerMenuBarController()->hasLocationCreated();
}
bool hasLocationShown(const App& app) {
    return app.photoManagerMenuBarController()->hasLocationShown();
}
bool hasImageDirection(const App& app) {
    return app.photoManagerMenuBarController()->hasImageDirection();
}
bool canWrite(const App& app) {
    return hasWindow(app) &&
           (app.hasPendingEdit() ||
            app.waymarkWindowController()->photoManagerToolbarController()->isUnsavedPhotosButtonEnabled());
}
bool canPlaceOnMap(const App& app) {
    return hasWindow(app) && hasSelectedPhotos(app);
}
bool canPasteTags(const App& app) {
    return canPlaceOnMap(app) && app.hasCopiedTags();
}
bool isOperationLogShown(const App& app) {
    return app.photoOperationWindowController()->isWindowVisible();
}
bool hasMediaBrowser(const App& app) {
    return app.hasMediaBrowserWindow();
}
bool isMediaBrowserShown(const App& app) {
    return app.mediaBrowserWindowController()->isWindowVisible();
}
bool hasDateTools(const App& app) {
    return app.hasDateToolsWindow();
}
template<unsigned tool>
bool isDateToolShown(const App& app) {
    return app.dateToolsWindowController()->selectedDateTool() == tool;
}
bool areTagDetailsShown(const App& app) {
    return app.tagDetailsWindowController() != nullptr;
}

template<WaymarkPane pane>
bool isPaneShown(const App& app) {
    return hasWindow(app) && app.waymarkWindowController()->isPaneShown(pane);
}

/// "Undo", or "Undo Geotag Photos".
std::string withAction(const char* verb, const char* verbWithAction, const std::string& action) {
    return action.empty() ? KTLocalizedString(verb)
                          : KTStringWithFormat(KTLocalizedString(verbWithAction), {action});
}
std::string undoTitle(const App& app) {
    if (app.hasPendingEdit())
        return KTLocalizedString("Undo Typing");
    return withAction("Undo", "Undo %@", app.undoManager()->undoActionName());
}
std::string redoTitle(const App& app) {
    return withAction("Redo", "Redo %@", app.undoManager()->redoActionName());
}

/// Each by its file name; where two have the same, one finds out by trying.
KTMenu recentTracks(App& app) {
    KTMenu items;
    for (const auto& file : KTTrackPickerController::recentTrackFiles())
        items.push_back({.title = file.filename().string(),
                         .action = [&app, file] { app.importFilesAtPaths({file}); },
                         .identifier = "recentTrack:" + file.string()});
    return items;
}

using enum WaymarkPane;

// clang-format off
const WaymarkCommand kCommands[] = {
    {"fileMenu", "File"},
    {"loadPhotosFromFiles", "Add Photos…", &App::loadPhotosFromFiles, "Ctrl+O", hasWindow},
    {"loadTracksFromFile", "Add Tracks…", &App::loadTracksFromFile, "Ctrl+Shift+O", hasWindow},
    {"recentTracks", "Recent Tracks", nullptr, {}, nullptr, nullptr, nullptr, recentTracks},
    {"downloadTracksFromGPS", "Download Tracks from GPS", &App::downloadTracksFromGPS, {}, hasWindow},
    {},
    {"writeChangedTags", "Write Changed Tags", &App::writeChangedTags, "Ctrl+S", canWrite},
    {"removeSelectedPhotos", "Remove Photos", &App::removeSelectedPhotos, "Ctrl+Backspace", hasSelectedPhotos},
    {},
    {"quit", "Quit", &App::quit, "Ctrl+Q"},

    {"editMenu", "Edit"},
    {"undo", "Undo", &App::undoLastStep, "Ctrl+Z", canUndo, nullptr, nullptr, nullptr, undoTitle},
    {"redo", "Redo", &App::redoLastStep, "Ctrl+Shift+Z", canRedo, nullptr, nullptr, nullptr, redoTitle},
    {},
    {"copyCoordinates", "Copy Coordinates", &App::copyCoordinates, "Ctrl+Shift+C", hasLocationCreated},
    {"pasteCoordinates", "Paste Coordinates", &App::pasteCoordinates, "Ctrl+Shift+V", canPlaceOnMap},
    {"copyTags", "Copy Tags", &App::copyTags, "Ctrl+Alt+C", hasSelectedPhotos},
    {"pasteTags", "Paste Tags…", &App::pasteTags, "Ctrl+Alt+V", canPasteTags},
    {},
    {"selectAllPhotos", "Select All Photos", &App::selectAllPhotos, "Ctrl+A", hasPhotos},
    {"deselectAllPhotos", "Deselect All Photos", &App::deselectAllPhotos, "Ctrl+Shift+A", hasSelectedPhotos},
    {"selectNextPhoto", "Select Next Photo", &App::selectNextPhoto, "Ctrl+Right", hasPhotos},
    {"selectPreviousPhoto", "Select Previous Photo", &App::selectPreviousPhoto, "Ctrl+Left", hasPhotos},
    {},
    {"togglePreferencesWindow", "Preferences…", &App::togglePreferencesWindow, "Ctrl+,"},

    {"photoMenu", "Photo"},
    {"geotagToMapCenter", "Geotag to Map Center", &App::geotagToMapCenter, "Ctrl+G", canPlaceOnMap},
    {"geotagToMapCenterAndGoOn", "Geotag to Map Center and Go On", &App::geotagToMapCenterAndGoOn,
     "Ctrl+Shift+G", canPlaceOnMap},
    {},
    {"reverseGeocodeLocationCreated", "Reverse Geocode Location Created", &App::reverseGeocodeLocationCreated, {},
     hasLocationCreated},
    {"reverseGeocodeLocationShown", "Reverse Geocode Location Shown", &App::reverseGeocodeLocationShown, {},
     hasLocationShown},
    {},
    {"toggleDateAndTimeShifter", "Adjust Date & Time…", &App::toggleDateAndTimeShifter, "Ctrl+D", nullptr,
     hasDateTools, isDateToolShown<DateTools::Shift>},
    {"toggleDateAndTimeSetter", "Set Date & Time…", &App::toggleDateAndTimeSetter, {}, nullptr, hasDateTools,
     isDateToolShown<DateTools::Set>},
    {"toggleDateAndTimeCopier", "Copy Date & Time…", &App::toggleDateAndTimeCopier, {}, nullptr, hasDateTools,
     isDateToolShown<DateTools::Copy>},
    {},
    {"removeGPSTags", "Remove GPS Tags…", &App::removeGPSTags, {}, hasLocationCreated},
    {"removeImageDirection", "Remove Image Direction…", &App::removeImageDirection, {}, hasImageDirection},
    {"removeLocationShown", "Remove Location Shown…", &App::removeLocationShown, {}, hasLocationShown},

    {"viewMenu", "View"},
    {"toggleThumbnail", "Thumbnails", &App::toggleThumbnail, "Ctrl+1", hasWindow, nullptr,
     isPaneShown<ThumbnailView>},
    {"toggleMap", "Map", &App::toggleMap, "Ctrl+2", hasWindow, nullptr, isPaneShown<MapView>},
    {"toggleGeotaggingConsole", "Geotagging Console", &App::toggleGeotaggingConsole, "Ctrl+3", hasWindow,
     nullptr, isPaneShown<GeotaggingView>},
    {"toggleMetadataTagViewer", "Metadata", &App::toggleMetadataTagViewer, "Ctrl+4", hasWindow,
     nullptr, isPaneShown<MetadataView>},
    {"customizeMetadataTagViewer", "Customize Metadata", &App::customizeMetadataTagViewer, {}, hasWindow,
     nullptr, isPaneShown<MetadataCustomizationView>},
    {"togglePhotoViewOptions", "View Options", &App::togglePhotoViewOptions, "Ctrl+J", hasWindow,
     nullptr, isPaneShown<ViewOptions>},
    {},
    {"zoomToFit", "Zoom to Photos", &App::zoomToFit, "Ctrl+0", hasPhotos},

    {"windowMenu", "Window"},
    {"openTrackAndWaypointBrowser", "Track Library", &App::openTrackAndWaypointBrowser, "Ctrl+T"},
    {"toggleMediaBrowser", "Media Browser", &App::toggleMediaBrowser, "Ctrl+B", nullptr, hasMediaBrowser,
     isMediaBrowserShown},
    {"toggleTagDetailsWindow", "Tag Details", &App::toggleTagDetailsWindow, "Ctrl+I", nullptr, nullptr,
     areTagDetailsShown},
    {"togglePhotoOperationWindow", "Operation Log", &App::togglePhotoOperationWindow, "Ctrl+L", nullptr, nullptr,
     isOperationLogShown},

    {"helpMenu", "Help"},
    {"showAboutBox", "About Waymark", &App::showAboutBox},
};
// clang-format on

} // namespace

std::span<const WaymarkCommand> WaymarkCommand::all() {
    return kCommands;
}
