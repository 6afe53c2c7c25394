#include "app/AppPreferencesWindowController.h"
#include "app/KTMapAndToolbarViewController.h"
#include "app/MediaBrowserWindowController.h"
#include "app/WaymarkAppController.h"
#include "app/WaymarkWindowController.h"
#include "app/editor/KTCopiedTags.h"
#include "app/editor/KTMetadataEditorViewController.h"
#include "collection/KTPhotoController.h"
#include "collection/KTPhotoManager.h"
#include "collection/KTPhotoOperationWindowController.h"
#include "collection/KTTagDetailsWindowController.h"
#include "datetools/KTDateToolsWindowController.h"
#include "geotagging/KTAppTrackPickerController.h"
#include "geotagging/KTGeotaggingController.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/geodesy/KTCoordinates.h"
#include "platform/undo/KTUndoManager.h"

#include <algorithm>

void WaymarkAppController::togglePreferencesWindow() {
    if (preferences) {
        preferences->setWindowVisible(false);
        return;
    }
    willChange("appPreferencesWindowController");
    preferences = std::make_unique<AppPreferencesWindowController>(
        metadataFieldManager(), mainWindow ? mainWindow->mapController() : nullptr, gazetteer(),
        timeZoneManager());
    preferences->setPresenter(mainWindow ? mainWindow->window() : &userInterface.presenter());
    preferencesWindow = userInterface.makePreferencesWindow(*preferences);
    didChange("appPreferencesWindowController");
    preferences->setWindowVisible(true);
    preferencesObservation = preferences->observe([this](const KTChange& change) {
        if (change.key == "isWindowVisible" && !change.isPrior && !preferences->isWindowVisible())
            afterwards(&WaymarkAppController::handlePreferencesWindowWillClose);
    });
}

void WaymarkAppController::handlePreferencesWindowWillClose() {
    if (!preferences)
        return;
    preferencesObservation.stop();
    willChange("appPreferencesWindowController");
    preferencesWindow.reset();
    preferences.reset();
    didChange("appPreferencesWindowController");
}

void WaymarkAppController::toggleDateAndTimeShifter() {
    dateTools->toggleDateTool(KTDateToolsWindowController::Shift);
}

void WaymarkAppController::toggleDateAndTimeSetter() {
    dateTools->toggleDateTool(KTDateToolsWindowController::Set);
}

void WaymarkAppController::toggleDateAndTimeCopier() {
    dateTools->toggleDateTool(KTDateToolsWindowController::Copy);
}

void WaymarkAppController::toggleTagDetailsWindow() {
    if (tagDetails) {
        tagDetails->setWindowVisible(false);
        return;
    }
    willChange("tagDetailsWindowController");
    tagDetails = std::make_unique<KTTagDetailsWindowController>(photoManager());
    tagDetailsWindow = userInterface.makeTagDetailsWindow(*tagDetails);
    didChange("tagDetailsWindowController");
    tagDetails->showTagDetailsWindow();
    tagDetails->setup();
    tagDetailsObservation = tagDetails->observe([this](const KTChange& change) {
        if (change.key == "isWindowVisible" && !change.isPrior && !tagDetails->isWindowVisible())
            afterwards(&WaymarkAppController::handleTagDetailsWindowWillClose);
    });
}

void WaymarkAppController::handleTagDetailsWindowWillClose() {
    if (!tagDetails)
        return;
    tagDetailsObservation.stop();
    tagDetails->tearDown();
    willChange("tagDetailsWindowController");
    tagDetailsWindow.reset();
    tagDetails.reset();
    didChange("tagDetailsWindowController");
}

void WaymarkAppController::togglePhotoOperationWindow() {
    operationLog->setWindowVisible(!operationLog->isWindowVisible());
}

void WaymarkAppController::toggleMediaBrowser() {
    mediaBrowser->setWindowVisible(!mediaBrowser->isWindowVisible());
}

void WaymarkAppController::loadTracksFromFile() {
    trackPicker->importFilesAction();
}

void WaymarkAppController::downloadTracksFromGPS() {
    trackPicker->downloadFromGPSAction();
}

void WaymarkAppController::openTrackAndWaypointBrowser() {
    trackPicker->showWindow();
}

/// Calls @p command with the main window's photo controller, if there is one.
template<class Command>
void WaymarkAppController::withPhotos(const Command& command) {
    if (mainWindow)
        command(*mainWindow->photoController());
}

void WaymarkAppController::loadPhotosFromFiles() {
    withPhotos([](KTPhotoController& photos) { photos.importPhotosAction(); });
}

void WaymarkAppController::removeSelectedPhotos() {
    withPhotos([](KTPhotoController& photos) { photos.removeSelectedPhotosAction(); });
}

void WaymarkAppController::removeGPSTags() {
    withPhotos([](KTPhotoController& photos) { photos.removeAllGPSValues(); });
}

void WaymarkAppController::removeImageDirection() {
    withPhotos([](KTPhotoController& photos) { photos.removeImageDirection(); });
}

void WaymarkAppController::removeLocationShown() {
    withPhotos([](KTPhotoController& photos) { photos.removeLocationShownTags(); });
}

void WaymarkAppController::reverseGeocodeLocationCreated() {
    withPhotos(
        [](KTPhotoController& photos) { photos.reverseGeocodeLocationCreatedOfSelectedPhotosAction(); });
}

void WaymarkAppController::reverseGeocodeLocationShown() {
    withPhotos([](KTPhotoController& photos) { photos.reverseGeocodeLocationShownOfSelectedPhotosAction(); });
}

void WaymarkAppController::writeChangedTags() {
    withPhotos([](KTPhotoController& photos) { photos.writeUnsavedChanges(); });
}

void WaymarkAppController::zoomToFit() {
    if (mainWindow)
        mainWindow->mapAndToolbarViewController()->photoZoomToFitAction();
}

void WaymarkAppController::toggleMetadataTagViewer() {
    if (mainWindow)
        mainWindow->toggleMetadataView();
}

void WaymarkAppController::toggleThumbnail() {
    if (mainWindow)
        mainWindow->toggleThumbnailView();
}

void WaymarkAppController::toggleMap() {
    if (mainWindow)
        mainWindow->toggleMapView();
}

void WaymarkAppController::toggleGeotaggingConsole() {
    if (mainWindow)
        mainWindow->toggleGeotaggingView();
}

void WaymarkAppController::customizeMetadataTagViewer() {
    if (mainWindow)
        mainWindow->toggleMetadataCustomizationView();
}

void WaymarkAppController::togglePhotoViewOptions() {
    if (mainWindow)
        mainWindow->toggleViewOptions();
}

void WaymarkAppController::undoLastStep() {
    undo->undo();
}

void WaymarkAppController::redoLastStep() {
    undo->redo();
}

void WaymarkAppController::selectAllPhotos() {
    photoManager().setSelectedPhotos(*photoManager().photos());
}

void WaymarkAppController::deselectAllPhotos() {
    photoManager().setSelectedPhotoIndexes({});
}

/// From the last selected photo on, or from the first one back; at the ends, and with nothing selected, the
/// photo at that end.
void WaymarkAppController::selectNeighbour(bool isNext) {
    const std::size_t count = photoManager().numberOfPhotos();
    if (count == 0)
        return;
    const auto selected = photoManager().selectedPhotoIndexes();
    std::size_t index = isNext ? 0 : count - 1;
    if (!selected.empty() && isNext)
        index = std::min(selected.back() + 1, count - 1);
    else if (!selected.empty())
        index = selected.front() == 0 ? 0 : selected.front() - 1;
    photoManager().setSelectedPhotoIndexes({index});
}

void WaymarkAppController::copyCoordinates() {
    const auto selected = photoManager().selectedPhotos();
    for (const auto& photo : *selected) {
        const auto latitude = photo->decimalForKey("latitude"), longitude = photo->decimalForKey("longitude");
        if (!latitude || !longitude)
            continue;
        userInterface.setClipboardText(KTCoordinates{*latitude, *longitude}.text());
        return;
    }
}

void WaymarkAppController::pasteCoordinates() {
    if (!mainWindow || photoManager().selectedPhotoIndexes().empty())
        return;
    const auto position = KTCoordinates::fromText(userInterface.clipboardText());
    if (position) {
        mainWindow->geotaggingController()->saveCoordinates(position->latitude, position->longitude);
        return;
    }
    mainWindow->window()->presentAlert(
        {.message = KTLocalizedString("The clipboard holds no coordinates."),
         .informativeText = KTLocalizedString("Copy a position first, such as “46.05108, 14.50513” or "
                                              "“46° 3′ 3.9″ N, 14° 30′ 18.5″ E”."),
         .buttons = {KTLocalizedString("OK")}});
}

void WaymarkAppController::commitEditing() {
    if (mainWindow && mainWindow->metadataEditorViewController() != nullptr)
        mainWindow->metadataEditorViewController()->commitEditing();
}

bool WaymarkAppController::hasPendingEdit() const {
    return mainWindow && mainWindow->metadataEditorViewController() != nullptr &&
           mainWindow->metadataEditorViewController()->selection().hasPendingEdit();
}

void WaymarkAppController::copyTags() {
    const auto selected = photoManager().selectedPhotos();
    if (selected->empty())
        return;
    willChange("copiedTags");
    copiedTags = std::make_unique<KTCopiedTags>(KTCopiedTags::fromPhoto(*selected->front()));
    didChange("copiedTags");
}

void WaymarkAppController::pasteTags() {
    const auto selected = photoManager().selectedPhotos();
    if (mainWindow && copiedTags && !selected->empty())
        mainWindow->window()->chooseTagsToPaste(
            *copiedTags, selected->size(),
            [this, selected](const KTCopiedTags& chosen) { chosen.pasteOnto(photoManager(), selected); });
}

void WaymarkAppController::geotagToMapCenter() {
    if (mainWindow && !photoManager().selectedPhotoIndexes().empty())
        mainWindow->geotaggingController()->saveMapCenterPoint();
}

void WaymarkAppController::geotagToMapCenterAndGoOn() {
    geotagToMapCenter();
    if (mainWindow)
        mainWindow->geotaggingController()->selectNextPhotoWithoutLocation();
}
