#include "geotagging/KTAppTrackPickerController.h"
#include "geotagging/KTGeotaggingController.h"
#include "platform/cartography/KTMapController.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/geodesy/KTGeodesy.h"
#include "platform/undo/KTUndoManager.h"

#include <algorithm>

namespace {

using Point = KTGeotaggingController::Point;

Point mapPoint(const KTDecimal& latitude, const KTDecimal& longitude) {
    return KTLinkablePoint::initWithGeoPoint(KTGeoPoint{.latitude = latitude, .longitude = longitude},
                                             KTLinkablePointTypeMapPoint);
}

Point mapPoint(KTMapPoint location) {
    return mapPoint(KTDecimal::fromDouble(location.y), KTDecimal::fromDouble(location.x));
}

double degrees(const KTPhoto& photo, std::string_view key) {
    return photo.decimalForKey(key).value_or(KTDecimal()).toDouble();
}

} // namespace

KTMenu KTGeotaggingController::mapViewWasRightClickedAtLocation(KTMapPoint location) {
    clicked = location;
    return contextualGeotaggingMenuForPhotos(*photos.selectedPhotos());
}

KTMenu KTGeotaggingController::contextualGeotaggingMenuForPhotos(const Photos& given) {
    Photos geotagged;
    std::ranges::copy_if(given, std::back_inserter(geotagged),
                         [](const auto& photo) { return photo->isGeotagged(); });
    auto item = [&](std::string title, const char* identifier, const Photos& carried,
                    void (KTGeotaggingController::*action)(const Photos&, KTMapPoint)) {
        return KTMenuItem{
            .title = std::move(title),
            .action = [this, carried, action,
                       location = clicked] { (this->*action)(photos.stillLoaded(carried), location); },
            .isEnabled = !carried.empty(),
            .identifier = identifier};
    };
    using Self = KTGeotaggingController;
    return {
        item(KTLocalizedString("Geotag to point"), "geotagToPointAction", given, &Self::geotagToPointAction),
        item(KTLocalizedString("Set image direction"), "setImageDirectionToPointAction", geotagged,
             &Self::setImageDirectionToPointAction),
        item(KTLocalizedString("Set image location shown"), "setLocationShownToPointAction", geotagged,
             &Self::setLocationShownToPointAction)};
}

void KTGeotaggingController::geotagToPointAction(const Photos& given, KTMapPoint location) {
    if (!given.empty())
        tagger->geotagPhotos(given, mapPoint(location));
    animateNewGeotagAtPoint(location);
}

void KTGeotaggingController::setImageDirectionToPointAction(const Photos& given, KTMapPoint location) {
    const auto undo = photos.photoManager().undoManager();
    if (given.empty())
        return;
    if (undo)
        undo->beginUndoGrouping(KTLocalizedString("Set image direction"));
    for (const auto& photo : given) {
        if (!photo->isGeotagged())
            continue;
        const double bearing = KTInitialBearingBetweenPoints(
            degrees(*photo, "longitude"), degrees(*photo, "latitude"), location.x, location.y);
        photo->invalidateLastRecordedUndoKey();
        photo->setValueForKey("imageDirection", KTDecimal::fromDouble(bearing));
        photo->invalidateLastRecordedUndoKey();
    }
    if (undo)
        undo->endUndoGrouping();
}

void KTGeotaggingController::setLocationShownToPointAction(const Photos& given, KTMapPoint location) {
    if (!given.empty())
        tagger->geotagPhotosToLocationShown(given, mapPoint(location));
}

void KTGeotaggingController::geotagPhotosDraggedToLocation(const Photos& given, KTMapPoint location) {
    geotagToPointAction(photos.stillLoaded(given), location);
}

std::string KTGeotaggingController::descriptionOfDropOfPhotos(std::size_t count) {
    return KTLocalizedCount("Geotag 1 Photo", "Geotag %d Photos", count);
}

void KTGeotaggingController::animateNewGeotagAtPoint(KTMapPoint location) {
    set("currentAnimations", animations,
        {Animation{Animation::Change::NewGeotag, geotaggingMode(), {}, location}});
}

void KTGeotaggingController::saveMapCenterPoint() {
    if (map != nullptr)
        tagger->geotagPhotos(*photos.selectedPhotos(), mapPoint({map->longitude(), map->latitude()}));
}

bool KTGeotaggingController::hasSelectedWaypoint() const {
    const auto& selected = picker.trackSourceList().selectedTracksAndWaypoints();
    return !selected.empty() && selected.back().entityName() == "KTWaypoint";
}

void KTGeotaggingController::saveSelectedWaypoint() {
    if (!hasSelectedWaypoint())
        return;
    const KTWaypoint& waypoint = *picker.trackSourceList().selectedTracksAndWaypoints().back().waypoint();
    tagger->geotagPhotos(*photos.selectedPhotos(),
                         KTLinkablePoint::initWithGeoPoint(waypoint.point, KTLinkablePointTypeMapPoint));
}

void KTGeotaggingController::saveCoordinates(const KTDecimal& latitude, const KTDecimal& longitude) {
    tagger->geotagPhotos(*photos.selectedPhotos(), mapPoint(latitude, longitude));
}

bool KTGeotaggingController::selectNextPhotoWithoutLocation() {
    const auto arranged = photos.photos();
    const auto selected = photos.selectedPhotoIndexes();
    const std::size_t count = arranged->size(), after = selected.empty() ? 0 : selected.back() + 1;
    for (std::size_t step = 0; step < count; ++step) {
        const std::size_t index = (after + step) % count;
        if ((*arranged)[index]->isGeotagged() || std::ranges::binary_search(selected, index))
            continue;
        photos.photoManager().setSelectedPhotoIndexes({index});
        return true;
    }
    return false;
}
