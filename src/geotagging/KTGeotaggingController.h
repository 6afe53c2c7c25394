#pragma once
#include "geotagging/KTGeotagger.h"
#include "platform/cartography/KTGeometry.h"
#include "platform/cartography/KTSpatialObjectController.h"
#include "platform/presentation/KTMenu.h"

#include <unordered_set>

class KTAppTrackPickerController;
class KTMapController;

/// The ways of geotagging, as the setting "KTGeotaggingModeDefault" keeps them.
enum KTGeotaggingMode : unsigned {
    KTGeotaggingModeBatch = 0,    ///< the map shows the proposed point of every accepted selected photo
    KTGeotaggingModeManual = 1,   ///< crosshairs mark the map's centre
    KTGeotaggingModeStandard = 2, ///< the map shows the candidates of the one selected photo
};

/// Which panel the geotagging console shows.
enum KTGeotaggingModeStatus : unsigned {
    KTGeotaggingStatusNoSelection = 0,
    KTGeotaggingStatusBatch = 1,
    KTGeotaggingStatusSingle = 2,
    KTGeotaggingStatusSeveral = 3, ///< several photos in standard mode
    KTGeotaggingStatusNoTracks = 4,
    KTGeotaggingStatusManual = 5,
};

/// Geotagging as the main window has it: mode and status, the points that the
/// map shows, and the gestures on the map. As a map layer it is called
/// "Linkable Points". Observable under the names of its properties. Main
/// thread: what the geotagger announces on its own thread is taken over soon,
/// in one step for all that a turn of the event loop brings.
class KTGeotaggingController : public KTSpatialObjectController {
public:
    using Photos = KTPhotoManager::Photos;
    using Point = KTGeotagger::Point;
    using Points = KTGeotagger::Points;

    /// What a change of the shown points looks like; whoever draws the map knows
    /// how.
    struct Animation {
        enum class Change {
            Added,
            Removed,
            Moved, ///< stands for the same in another mode
            NewGeotag,
        } change;
        /// 0 in batch mode, 2 in standard mode, 3 for the transition between the
        /// two.
        unsigned kind;
        Points points;         ///< none for a new geotag
        KTMapPoint place = {}; ///< of a new geotag
    };

    /// All must outlive the controller.
    KTGeotaggingController(KTPhotoController& photos, KTAppTrackPickerController& trackPicker,
                           KTBatchOperationController& batches);
    ~KTGeotaggingController() override; ///< as tearDown()
    /// The map of the window; set before setup(), outlives tearDown().
    void setMapController(KTMapController* shownMap) { map = shownMap; }
    void setup();
    void tearDown();

    KTGeotagger& geotagger() const { return *tagger; }
    KTPhotoController& photoController() const { return photos; }
    KTAppTrackPickerController& trackPickerController() const { return picker; }
    KTMapController* mapController() const { return map; }

    // Mode and status
    unsigned geotaggingMode() const;
    void setGeotaggingMode(unsigned mode);
    /// The mode in force before the last change.
    unsigned lastGeotaggingMode() const { return formerMode; }
    unsigned geotaggingModeStatus() const { return status; }
    void updateGeotaggingModeStatus();

    // Points on the map
    /// Also whether the geotagger computes, and in manual mode the crosshairs.
    bool shouldShowSpatialObjects() const { return isShowing; }
    void setShouldShowSpatialObjects(bool shows);
    const Points& activeLinkablePoints() const { return active; }
    /// Brings them in line with what the geotagger proposes in the present mode.
    void updateLinkerPoints();
    /// The animations that the last change began, for whoever draws; announced
    /// with it.
    const std::vector<Animation>& currentAnimations() const { return animations; }
    std::string name() const override;
    Objects spatialObjects() const override;
    Indexes spatialObjectSelectionIndexes() const override { return {}; }
    bool addSelectedSpatialObjects(const Objects&) override { return false; }
    bool removeSelectedSpatialObjects(const Objects&) override { return false; }

    // Flags
    double flagRotation() const { return rotation; } ///< radians
    void setFlagRotation(double radians);
    /// Lays the flags down, or sets them upright again.
    void toggleFlagRotation();
    bool canRotateFlags() const { return !active.empty(); }
    bool canZoomToFlags() const { return !active.empty(); }
    void zoomToFitActiveLinkablePoints();

    // Gestures on the map (KTGeotaggingControllerGestures.cpp). Each acts on the
    // photos for which it was begun, as far as they are still loaded.
    /// The context menu for a right click there, on the selected photos.
    KTMenu mapViewWasRightClickedAtLocation(KTMapPoint location);
    KTMapPoint rightClickedLocation() const { return clicked; }
    KTMenu contextualGeotaggingMenuForPhotos(const Photos& given);
    void geotagToPointAction(const Photos& given, KTMapPoint location);
    void setImageDirectionToPointAction(const Photos& given, KTMapPoint location);
    void setLocationShownToPointAction(const Photos& given, KTMapPoint location);
    /// Photos dropped on the map.
    void geotagPhotosDraggedToLocation(const Photos& given, KTMapPoint location);
    /// What such a drop would do: "Geotag 3 Photos".
    static std::string descriptionOfDropOfPhotos(std::size_t count);
    void animateNewGeotagAtPoint(KTMapPoint location);

    // Manual geotagging of the selected photos
    void saveMapCenterPoint();
    /// Takes the place of the last selected waypoint of the track library;
    /// nothing where that is a track.
    void saveSelectedWaypoint();
    /// Takes a position in degrees, from the clipboard for instance.
    void saveCoordinates(const KTDecimal& latitude, const KTDecimal& longitude);
    /// Selects the next photo in the list, after the last selected one and then
    /// from the top, that has no position; whether there is one.
    bool selectNextPhotoWithoutLocation();
    /// Whether a waypoint is the last selected record of the track library.
    bool hasSelectedWaypoint() const;

private:
    static void updateSoon(const std::weak_ptr<KTGeotaggingController*>& alive, bool ofPoints);
    void updateMapFunctionsEnabledStatus();
    void selectNearPhotosAndRecentImportsInTrackPicker();
    Points targetPoints() const;
    void replaceActivePoints(Points target);
    void fetchPlaces() const;
    template<class Property>
    void set(std::string_view key, Property& property, Property value) {
        willChange(key);
        property = std::move(value);
        didChange(key);
    }

    KTPhotoController& photos;
    KTAppTrackPickerController& picker;
    KTBatchOperationController& batches;
    KTMapController* map = nullptr;
    std::unique_ptr<KTGeotagger> tagger;
    unsigned formerMode, status = KTGeotaggingStatusBatch;
    bool isShowing = true, shouldStartModeTransition = false;
    Points active;
    std::vector<Animation> animations;
    double rotation = 0;
    KTMapPoint clicked;
    Observation photosObservation, geotaggerObservation;
    const std::shared_ptr<KTGeotaggingController*> self; // for what is posted
};
