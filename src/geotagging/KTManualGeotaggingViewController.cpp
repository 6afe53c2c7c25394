#include "geotagging/KTManualGeotaggingViewController.h"

#include "geotagging/KTAppTrackPickerController.h"
#include "geotagging/KTGeotaggingController.h"
#include "platform/cartography/KTMapController.h"
#include "platform/geodesy/KTCoordinates.h"

template<class Property>
void KTManualGeotaggingViewController::set(std::string_view key, Property& property, Property value) {
    willChange(key);
    property = std::move(value);
    didChange(key);
}

void KTManualGeotaggingViewController::setup() {
    isSetUp = true;
    photosObservation = geotaggingController.photoController().observe([this](const KTChange& change) {
        if (change.key != "selectedPhotoIndexes" || change.isPrior)
            return;
        updateFromPhotoSelection();
        updateSaveWaypointStatus();
    });
    tracksObservation = geotaggingController.trackPickerController().trackSourceList().observe(
        [this](const KTChange& change) {
            if (change.key == "selectedTracksAndWaypoints" && !change.isPrior)
                updateSaveWaypointStatus();
        });
    if (KTMapController* map = geotaggingController.mapController()) {
        mapObservation = map->observe([this](const KTChange& change) {
            if (change.key == "latitudeLongitude" && !change.isPrior)
                copyMapCenter();
        });
        map->setShouldShowCrosshairs(true);
        copyMapCenter();
    }
    updateFromPhotoSelection();
    updateSaveWaypointStatus();
}

void KTManualGeotaggingViewController::tearDown() {
    photosObservation.stop();
    mapObservation.stop();
    tracksObservation.stop();
    if (std::exchange(isSetUp, false) && geotaggingController.mapController() != nullptr)
        geotaggingController.mapController()->setShouldShowCrosshairs(false);
}

void KTManualGeotaggingViewController::copyMapCenter() {
    const KTMapController& map = *geotaggingController.mapController();
    set("latitude", degreesNorth, KTDecimal::fromDouble(map.latitude()));
    set("longitude", degreesEast, KTDecimal::fromDouble(map.longitude()));
}

void KTManualGeotaggingViewController::setLatitude(const KTDecimal& degrees) {
    if (KTCoordinates::isLatitude(degrees))
        set("latitude", degreesNorth, degrees);
}

void KTManualGeotaggingViewController::setLongitude(const KTDecimal& degrees) {
    if (KTCoordinates::isLongitude(degrees))
        set("longitude", degreesEast, degrees);
}

bool KTManualGeotaggingViewController::setCoordinatesFromText(std::string_view text) {
    const auto position = KTCoordinates::fromText(text);
    if (position) {
        setLatitude(position->latitude);
        setLongitude(position->longitude);
    }
    return position.has_value();
}

void KTManualGeotaggingViewController::updateFromPhotoSelection() {
    const std::size_t count = geotaggingController.photoController().selectedPhotoIndexes().size();
    set("canSaveToMapCenter", hasSelection, count > 0);
    willChange("saveToMapCenterButtonTitle");
    willChange("saveToSelectedWaypointButtonTitle");
    buttonTitle = KTGeotaggingController::descriptionOfDropOfPhotos(count);
    didChange("saveToSelectedWaypointButtonTitle");
    didChange("saveToMapCenterButtonTitle");
}

void KTManualGeotaggingViewController::updateSaveWaypointStatus() {
    set("canSaveToSelectedWaypoint", hasWaypoint, hasSelection && geotaggingController.hasSelectedWaypoint());
}

void KTManualGeotaggingViewController::gotoLatLon() {
    if (KTMapController* map = geotaggingController.mapController())
        map->setLatitudeLongitude({degreesEast.toDouble(), degreesNorth.toDouble()}, map->scale());
}

void KTManualGeotaggingViewController::showWaypoints() {
    KTAppTrackPickerController& picker = geotaggingController.trackPickerController();
    picker.setSelectedSourceList(picker.allWaypoints());
    picker.showWindow();
}

void KTManualGeotaggingViewController::saveToMapCenter() {
    geotaggingController.saveMapCenterPoint();
}

void KTManualGeotaggingViewController::saveToSelectedWaypoint() {
    geotaggingController.saveSelectedWaypoint();
}
