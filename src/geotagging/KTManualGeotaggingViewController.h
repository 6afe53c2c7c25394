#pragma once
#include "platform/common/KTDecimal.h"
#include "platform/observing/KTObservable.h"

#include <optional>
#include <string>

class KTGeotaggingController;

/// The panel of the manual mode: the map's centre as numbers, and the buttons
/// that take it, or a selected waypoint, as the place of the selected photos.
/// While it is set up, crosshairs mark the map's centre. Observable under the
/// names of its properties. Main thread.
class KTManualGeotaggingViewController : public KTObservable {
public:
    /// @p owner, set up and with a map, must outlive the controller.
    explicit KTManualGeotaggingViewController(KTGeotaggingController& owner) : geotaggingController(owner) {}
    ~KTManualGeotaggingViewController() override { tearDown(); }
    void setup();
    void tearDown();

    // What the two fields show: the map's centre, in degrees, or what the user
    // has typed since.
    const KTDecimal& latitude() const { return degreesNorth; }
    const KTDecimal& longitude() const { return degreesEast; }
    /// Latitudes beyond ±90 and longitudes beyond ±180 are not taken.
    void setLatitude(const KTDecimal& degrees);
    void setLongitude(const KTDecimal& degrees);
    /// Both from one text, in any notation that KTCoordinates reads; false, and
    /// nothing is changed, for another text.
    bool setCoordinatesFromText(std::string_view text);

    bool canSaveToMapCenter() const { return hasSelection; }
    bool canSaveToSelectedWaypoint() const { return hasWaypoint; }
    const std::string& saveToMapCenterButtonTitle() const { return buttonTitle; }
    const std::string& saveToSelectedWaypointButtonTitle() const { return buttonTitle; }

    /// Moves the map to what the two fields show.
    void gotoLatLon();
    /// Shows all waypoints in the track library's window.
    void showWaypoints();
    void saveToMapCenter();
    void saveToSelectedWaypoint();

private:
    void copyMapCenter();
    void updateFromPhotoSelection();
    void updateSaveWaypointStatus();
    template<class Property>
    void set(std::string_view key, Property& property, Property value);

    KTGeotaggingController& geotaggingController;
    KTDecimal degreesNorth, degreesEast;
    bool hasSelection = false, hasWaypoint = false, isSetUp = false;
    std::string buttonTitle;
    Observation photosObservation, mapObservation, tracksObservation;
};
