#pragma once
#include "collection/KTExportPluginList.h"
#include "collection/KTPhotoManager.h"
#include "collection/KTPhotoMap.h"
#include "platform/presentation/KTMenu.h"
#include "platform/presentation/KTPresenter.h"

class KTBatchOperationController;

/// The photos as the main window's table, thumbnails and inspectors work on them: in the user's order, with
/// the selection, and with the commands that act on a list of photos.
///
/// What it shows is the photo manager's; between setup and tearDown it announces "photos", the arranged ones,
/// "selectedPhotos" and "selectedPhotoIndexes" as they change there. Without sort, "photos" tells of
/// insertions, removals and replacements with their indexes; with one, of a setting.
///
/// Menus and questions act on the photos for which they were made, whatever is selected by then, and leave
/// alone those that are no longer loaded. Every edit of a command is part of one undo step. Everything here
/// is for the main thread but `photos`, `selectedPhotos` and `selectedPhotoIndexes`, which any thread may
/// ask.
class KTPhotoController : public KTObservable {
public:
    using Photos = KTPhotoManager::Photos;
    using Snapshot = KTPhotoManager::Snapshot;
    using Indexes = KTPhotoManager::Indexes;

    /// @p collection and what is set below must outlive the controller, and the controller the menus and the
    /// questions that it made.
    explicit KTPhotoController(KTPhotoManager& collection) : manager(collection) {}
    /// The main window, which asks the user and reveals files. Without one, commands that must ask are
    /// cancelled.
    void setPhotoWindow(KTPresenter* window) { photoWindow = window; }
    /// Without plug-ins or map, menus have no command for them.
    void setPhotoExportPluginManager(KTExportPluginList* plugins) { photoExportPluginManager = plugins; }
    void setMapAndToolbarViewController(KTPhotoMap* map) { mapAndToolbarViewController = map; }
    /// Runs the reverse geocoding, which does nothing without it.
    void setBatchOperationController(KTBatchOperationController* runner) {
        batchOperationController = runner;
    }
    void setup();
    void tearDown();

    /// Those of @p photos that are loaded: menus and questions may stay open while photos are removed.
    Photos stillLoaded(const Photos& photos) const;
    KTPhotoManager& photoManager() const { return manager; }
    Snapshot photos() const { return manager.arrangedPhotos(); }
    Photos photosAtIndexes(const Indexes& indexes) const { return manager.arrangedPhotosAtIndexes(indexes); }
    Snapshot selectedPhotos() const { return manager.selectedPhotos(); }
    Indexes selectedPhotoIndexes() const { return manager.selectedPhotoIndexes(); }
    /// Selects the photo after the last selected one, alone; at the end, or without selection, does nothing.
    void selectNext();

    /// Moves the photos at these places of the arranged order before the one at @p toIndex (the end when
    /// there is none), as a block, and selects them. What the user then sees becomes the load order, without
    /// sort: a drag in a sorted list moves nothing but what is dragged. Returns their new places.
    Indexes moveItemsAtIndexes(const Indexes& indexes, std::size_t toIndex) {
        return manager.movePhotos(indexes, toIndex);
    }

    // Menus (KTPhotoControllerMenu.cpp)
    /// The context menu of @p photos; empty for none.
    KTMenu menuForPhotos(const Photos& photos);
    /// The context menu for a right click on the photo at that place of the arranged order: the menu of the
    /// selection, which becomes that photo alone unless it is part of it.
    KTMenu menuForRightClickAtIndex(std::size_t index);

    // Commands on a list of photos, of which an empty one does nothing (KTPhotoControllerCommands.cpp)
    void revealInFinderAction(const Photos& photos);
    void revealInMapAction(const Photos& photos);
    void chooseExporterFromMenuAction(long tag); ///< the plug-in's index
    void savePhotosAction(const Photos& photos);
    void removePhotosAction(const Photos& photos) { removePhotos(photos); }
    /// Removes them from the collection, after a question where some have unsaved changes.
    void removePhotos(const Photos& photos);
    void synchronizeMetadataAction(const Photos& photos);
    void reverseGeocodeLocationCreatedAction(const Photos& photos) {
        reverseGeocodeLocationCreatedPhotos(photos);
    }
    void reverseGeocodeLocationShownAction(const Photos& photos) {
        reverseGeocodeLocationShownPhotos(photos);
    }
    /// Write the names of the places created or shown into the photos that have the position, as a batch.
    void reverseGeocodeLocationCreatedPhotos(const Photos& photos);
    void reverseGeocodeLocationShownPhotos(const Photos& photos);
    /// Take what the photo library says of the photos; where it says nothing, they stay as they are.
    void copyEventFromIPhotoAction(const Photos& photos);
    void copyPeopleFromIPhotoAction(const Photos& photos);
    void addKeywordsFromIPhotoAction(const Photos& photos); ///< after their own, also those they have
    void removeLocationCreatedAction(const Photos& photos);
    void removeImageDirectionAction(const Photos& photos);
    void removeLocationShownAction(const Photos& photos);

    // Commands on the selected or on all photos
    void importPhotosAction();
    void cancelImportAction() { manager.setShouldCancelImport(); }
    void writeUnsavedChanges() { savePhotosAction(*photos()); }
    void removeSelectedPhotosAction() { removePhotos(*selectedPhotos()); }
    void reverseGeocodeLocationCreatedOfSelectedPhotosAction() {
        reverseGeocodeLocationCreatedPhotos(*selectedPhotos());
    }
    void reverseGeocodeLocationShownOfSelectedPhotosAction() {
        reverseGeocodeLocationShownPhotos(*selectedPhotos());
    }
    // After a question.
    void removeAllGPSValues();
    void removeImageDirection();
    void removeLocationShownTags();

    /// "isBatchGeotagRemovalInProgress": true while photos lose their positions, one after the other.
    bool isBatchGeotagRemovalInProgress() const { return isRemovingGeotags; }

private:
    /// One of the removals that are confirmed first; the context of its question.
    struct ConfirmedRemoval;
    /// One of the two places of a photo whose names can be looked up.
    struct Place;

    void forward(const KTChange& change);
    KTMenuItem itemForPhotos(std::string title, void (KTPhotoController::*action)(const Photos&),
                             const Snapshot& photos, bool isEnabled = true);
    KTMenuItem shareItem();
    void removePhotosAlertDidEnd(std::size_t returnCode, const Photos& photos);
    void confirm(const ConfirmedRemoval& removal);
    void alertDidEnd(std::size_t returnCode, const ConfirmedRemoval& contextInfo, const Photos& photos);
    void edit(const Photos& photos, std::string actionName, const std::function<void(KTPhoto&)>& change);
    void removeGeotags(const Photos& photos, std::string actionName,
                       const std::function<void(KTPhoto&)>& removal);
    void setIsBatchGeotagRemovalInProgress(bool isInProgress);
    void reverseGeocode(const Photos& photos, const Place& place);

    KTPhotoManager& manager;
    KTPresenter* photoWindow = nullptr;
    KTExportPluginList* photoExportPluginManager = nullptr;
    KTPhotoMap* mapAndToolbarViewController = nullptr;
    KTBatchOperationController* batchOperationController = nullptr;
    bool isRemovingGeotags = false;
    Observation managerObservation;
};
