#include "collection/KTPhotoController.h"
#include "platform/common/KTLocalizedString.h"

#include <algorithm>

KTMenuItem KTPhotoController::itemForPhotos(std::string title,
                                            void (KTPhotoController::*action)(const Photos&),
                                            const Snapshot& photos, bool isEnabled) {
    return {.title = std::move(title),
            .action = [this, action, photos] { (this->*action)(stillLoaded(*photos)); },
            .isEnabled = isEnabled};
}

KTMenuItem KTPhotoController::shareItem() {
    KTMenuItem share{.title = KTLocalizedString("Share")};
    for (const std::string& name : photoExportPluginManager->pluginNames()) {
        const long tag = long(share.submenu.size());
        share.submenu.push_back(
            {.title = name, .action = [this, tag] { chooseExporterFromMenuAction(tag); }, .tag = tag});
    }
    return share;
}

KTMenu KTPhotoController::menuForPhotos(const Photos& photos) {
    if (photos.empty())
        return {};
    const auto list = std::make_shared<const Photos>(photos); // one for all items
    auto any = [&](bool (KTPhoto::*property)() const) {
        return std::ranges::any_of(photos, [&](const auto& photo) { return (photo.get()->*property)(); });
    };
    auto item = [&](std::string title, void (KTPhotoController::*action)(const Photos&),
                    bool isEnabled = true) {
        return itemForPhotos(std::move(title), action, list, isEnabled);
    };
    const bool isGeotagged = any(&KTPhoto::isGeotagged);
    const bool isInLibrary = any(&KTPhoto::shouldUseMediaObjectProperties);
    using Self = KTPhotoController;

    KTMenu menu{
        item(KTLocalizedString("Reveal in Finder", "Show in File Manager"), &Self::revealInFinderAction)};
    if (mapAndToolbarViewController != nullptr)
        menu.push_back(item(KTLocalizedString("Reveal in map"), &Self::revealInMapAction, isGeotagged));
    if (photoExportPluginManager != nullptr)
        menu.push_back(shareItem());
    const KTMenu rest{
        KTMenuItem::separator(),
        item(KTLocalizedString("Save changes"), &Self::savePhotosAction, any(&KTPhoto::hasUnsavedChanges)),
        item(KTLocalizedString("Remove"), &Self::removePhotosAction),
        KTMenuItem::separator(),
        item(KTLocalizedString("Synchronize metadata"), &Self::synchronizeMetadataAction),
        item(KTLocalizedString("Reverse geocode location created"),
             &Self::reverseGeocodeLocationCreatedAction, isGeotagged),
        item(KTLocalizedString("Reverse geocode location shown"), &Self::reverseGeocodeLocationShownAction,
             any(&KTPhoto::hasLatitudeLongitudeShown)),
        item(KTLocalizedString("Copy event tag from iPhoto"), &Self::copyEventFromIPhotoAction, isInLibrary),
        item(KTLocalizedString("Copy people tag from iPhoto"), &Self::copyPeopleFromIPhotoAction,
             isInLibrary),
        item(KTLocalizedString("Add keywords from iPhoto"), &Self::addKeywordsFromIPhotoAction, isInLibrary),
        KTMenuItem::separator(),
        {.title = KTLocalizedString("Remove Tags"),
         .submenu = {
             item(KTLocalizedString("Remove Location Created Tags"), &Self::removeLocationCreatedAction),
             item(KTLocalizedString("Remove Image Direction Tags"), &Self::removeImageDirectionAction),
             item(KTLocalizedString("Remove Location Shown Tags"), &Self::removeLocationShownAction)}}};
    menu.insert(menu.end(), rest.begin(), rest.end());
    return menu;
}

KTMenu KTPhotoController::menuForRightClickAtIndex(std::size_t index) {
    const Indexes selected = selectedPhotoIndexes();
    if (!std::ranges::binary_search(selected, index))
        manager.setSelectedPhotoIndexes({index});
    return menuForPhotos(*selectedPhotos());
}
