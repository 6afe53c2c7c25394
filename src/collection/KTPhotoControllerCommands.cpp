#include "collection/KTPhotoController.h"
#include "collection/KTPhotoEditing.h"
#include "collection/KTPhotoFileList.h"
#include "metadata/KTMetadataFieldManager.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/defaults/KTUserDefaults.h"

#include <algorithm>

struct KTPhotoController::ConfirmedRemoval {
    const char* message;
    const char* informativeText;
    void (KTPhotoController::*remove)(const Photos&);
};

namespace {

constexpr const char* kImportLocation = "defaultPhotoImportLocation";

/// What the photo library says of a property.
KTValue libraryValue(const KTPhoto& photo, std::string_view key) {
    const auto field = KTMetadataFieldManager::sharedMetadataFieldManager().metadataFieldForKey(key);
    return photo.source(KTMetadataSource::Library).valueForField(*field);
}

/// As above, for a property that is a list; null where the library has no elements.
KTValue libraryElements(const KTPhoto& photo, std::string_view key) {
    KTValue value = libraryValue(photo, key);
    const KTValue::List* list = value.list();
    return list != nullptr && !list->empty() ? value : KTValue();
}

} // namespace

void KTPhotoController::importPhotosAction() {
    if (photoWindow == nullptr)
        return;
    const auto types = KTPhotoFileList::validFileTypes();
    KTUserDefaults& defaults = KTUserDefaults::standardUserDefaults();
    photoWindow->presentFilePanel(
        {.kind = KTFilePanel::Kind::OpenFiles,
         .allowedFileTypes = {types.begin(), types.end()},
         .directory = defaults.textForKey(kImportLocation),
         .completion = [this, &defaults](const std::vector<std::filesystem::path>& paths) {
             if (paths.empty())
                 return;
             const std::filesystem::path& last = paths.back();
             const auto chosen = last.has_filename() ? last : last.parent_path(); // a folder may end in "/"
             defaults.setValue(kImportLocation, chosen.parent_path().string());
             manager.importPhotosAtURLs(paths);
         }});
}

void KTPhotoController::removePhotos(const Photos& photos) {
    const auto unsaved =
        std::ranges::count_if(photos, [](const auto& photo) { return photo->hasUnsavedChanges(); });
    if (unsaved == 0)
        return manager.removePhotos(photos);
    if (photoWindow == nullptr)
        return;
    photoWindow->presentAlert(
        {.message =
             KTLocalizedCount("You have %d photos with unsaved changes. Are you sure you want to remove "
                              "them?",
                              std::size_t(unsaved)),
         .informativeText = KTLocalizedString("If you don't save, all changes will be lost."),
         .buttons = {KTLocalizedString("Discard Changes & Remove Photos"), KTLocalizedString("Cancel")},
         .completion = [this, photos](std::size_t button) { removePhotosAlertDidEnd(button, photos); }});
}

void KTPhotoController::removePhotosAlertDidEnd(std::size_t returnCode, const Photos& photos) {
    if (returnCode == 0)
        manager.removePhotos(photos);
}

void KTPhotoController::revealInFinderAction(const Photos& photos) {
    std::vector<std::filesystem::path> files;
    std::unordered_set<std::string> paths;
    for (const auto& photo : photos)
        if (paths.insert(photo->path()).second)
            files.push_back(photo->fileURL());
    if (photoWindow != nullptr && !files.empty())
        photoWindow->revealFiles(files);
}

void KTPhotoController::revealInMapAction(const Photos& photos) {
    if (mapAndToolbarViewController != nullptr && !photos.empty())
        mapAndToolbarViewController->zoomToFitPhotos(photos);
}

void KTPhotoController::chooseExporterFromMenuAction(long tag) {
    if (photoExportPluginManager != nullptr)
        photoExportPluginManager->shouldBeginExportProcessWithPluginAtIndex(std::size_t(tag));
}

void KTPhotoController::savePhotosAction(const Photos& photos) {
    if (!photos.empty())
        manager.savePhotos(photos);
}

void KTPhotoController::synchronizeMetadataAction(const Photos& photos) {
    for (const auto& photo : photos)
        photo->synchronizeMetadataSources();
}

void KTPhotoController::edit(const Photos& photos, std::string actionName,
                             const std::function<void(KTPhoto&)>& change) {
    KTEditPhotos(manager, photos, std::move(actionName), change);
}

void KTPhotoController::copyEventFromIPhotoAction(const Photos& photos) {
    edit(photos, KTLocalizedString("Copy event tag from iPhoto"), [](KTPhoto& photo) {
        if (const KTValue event = libraryValue(photo, "event"); event.isSomething())
            photo.setValueForKey("event", event);
    });
}

void KTPhotoController::copyPeopleFromIPhotoAction(const Photos& photos) {
    edit(photos, KTLocalizedString("Copy people tag from iPhoto"), [](KTPhoto& photo) {
        if (const KTValue people = libraryElements(photo, "people"); people.isSomething())
            photo.setValueForKey("people", people);
    });
}

void KTPhotoController::addKeywordsFromIPhotoAction(const Photos& photos) {
    edit(photos, KTLocalizedString("Add keywords from iPhoto"), [](KTPhoto& photo) {
        const KTValue added = libraryElements(photo, "keywords");
        if (!added.isSomething())
            return;
        std::vector<std::string> keywords = photo.valueForKey("keywords").texts();
        std::ranges::move(added.texts(), std::back_inserter(keywords));
        photo.setValueForKey("keywords", KTValue::listOfTexts(keywords));
    });
}

/// While the flag is up, those who follow positions need not look at each one.
void KTPhotoController::removeGeotags(const Photos& photos, std::string actionName,
                                      const std::function<void(KTPhoto&)>& removal) {
    if (photos.empty())
        return;
    setIsBatchGeotagRemovalInProgress(true);
    edit(photos, std::move(actionName), removal);
    setIsBatchGeotagRemovalInProgress(false);
}

void KTPhotoController::removeLocationCreatedAction(const Photos& photos) {
    removeGeotags(photos, KTLocalizedString("Remove Location Created Tags"),
                  [](KTPhoto& photo) { photo.removeAllGPSValues(); });
}

void KTPhotoController::removeImageDirectionAction(const Photos& photos) {
    edit(photos, KTLocalizedString("Remove Image Direction Tags"),
         [](KTPhoto& photo) { photo.setValueForKey("imageDirection", {}); });
}

/// A grouped edit is a step of undo even where it changes nothing, so photos without the tags are left out.
void KTPhotoController::removeLocationShownAction(const Photos& photos) {
    const std::string actionName = KTLocalizedString("Remove latitude & longitude shown");
    removeGeotags(photos, actionName, [&](KTPhoto& photo) {
        const KTValue none = KTValue::null();
        if (photo.decimalForKey("latitudeShown") || photo.decimalForKey("longitudeShown"))
            photo.setValuesForKeysWithDictionary({{"latitudeShown", none}, {"longitudeShown", none}},
                                                 actionName);
    });
}

void KTPhotoController::removeAllGPSValues() {
    static constexpr ConfirmedRemoval removal{
        "Remove GPS tags?",
        "Are you sure you want to remove the GPS metadata (latitude, longitude, altitude & GPS date-time) "
        "from %d photos?",
        &KTPhotoController::removeLocationCreatedAction};
    confirm(removal);
}

void KTPhotoController::removeImageDirection() {
    static constexpr ConfirmedRemoval removal{
        "Remove image direction tag?",
        "Are you sure you want to remove the image direction metadata from %d photos?",
        &KTPhotoController::removeImageDirectionAction};
    confirm(removal);
}

void KTPhotoController::removeLocationShownTags() {
    static constexpr ConfirmedRemoval removal{
        "Remove location shown tags?",
        "Are you sure you want to remove the location shown metadata (latitude shown & longitude shown) from "
        "%d photos?",
        &KTPhotoController::removeLocationShownAction};
    confirm(removal);
}

void KTPhotoController::confirm(const ConfirmedRemoval& removal) {
    const Snapshot photos = selectedPhotos();
    if (photoWindow == nullptr || photos->empty())
        return;
    photoWindow->presentAlert({.message = KTLocalizedString(removal.message),
                               .informativeText = KTLocalizedCount(removal.informativeText, photos->size()),
                               .buttons = {KTLocalizedString("OK"), KTLocalizedString("Cancel")},
                               .completion = [this, &removal, photos](std::size_t button) {
                                   alertDidEnd(button, removal, *photos);
                               }});
}

void KTPhotoController::alertDidEnd(std::size_t returnCode, const ConfirmedRemoval& contextInfo,
                                    const Photos& photos) {
    if (returnCode == 0)
        (this->*contextInfo.remove)(stillLoaded(photos));
}
