#pragma once
#include "platform/cartography/KTMapBounds.h"
#include "platform/cartography/KTMapViewState.h"
#include "platform/cartography/KTSpatialObjectController.h"

#include <span>

/// What a map shows: place, scale, layers of features, crosshairs, the source of the base map; and how one
/// gets from place to place. Knows no widget; one that shows the map tells its size and follows the
/// controller.
///
/// Observable under "latitude", "longitude", "latitudeLongitude", "scale", "viewState" (any of these, or the
/// view's size), "shouldShowCrosshairs", "mapDataSource", "spatialObjectControllers" and "needsDisplay" (a
/// redraw is wished though nothing of the above has changed). Nothing is announced that stays as it was. The
/// map's place is kept in the settings. Main thread.
class KTMapController : public KTObservable {
public:
    /// A map of a common size where the user left the last one, or at the default place, as the setting
    /// KTMapLaunchesToPreviousLocationDefault has it.
    KTMapController();

    // Place and scale
    const KTMapViewState& viewState() const { return state; }
    double latitude() const { return state.centre().y; }  ///< of the centre, in degrees
    double longitude() const { return state.centre().x; } ///< within [-180, 180)
    KTMapPoint latitudeLongitude() const { return state.centre(); }
    /// The zoom of KTMapViewState: the binary logarithm of the map's size.
    double scale() const { return state.zoom(); }
    /// Moves the centre; what the view's size does not allow is brought to the nearest that it does.
    void setLatitudeLongitude(KTMapPoint centre) { setLatitudeLongitude(centre, scale()); }
    void setLatitudeLongitude(KTMapPoint centre, double withScale);
    void setLatitude(double degrees) { setLatitudeLongitude({longitude(), degrees}); }
    void setLongitude(double degrees) { setLatitudeLongitude({degrees, latitude()}); }
    void setScale(double scale) { setViewState(state.zoomedTo(scale)); }
    void setViewState(const KTMapViewState& newState);
    /// What a view that shows the map calls when it is resized: logical pixels, physical pixels a logical
    /// one.
    void setViewSize(double width, double height, double devicePixelRatio);

    // Going to features
    using Objects = KTSpatialObjectController::Objects;
    /// Shows all of them, as large as the view allows with room for their symbols, up to kFittingScale. Does
    /// nothing when none of them has a place.
    void fitSpatialObjects(const Objects& objects);
    /// Brings them into view: not at all when they are, by moving the map where its scale allows it, else by
    /// fitting.
    void revealSpatialObjects(const Objects& objects);
    // The same for places, of a track's points for instance.
    void fitBounds(const KTMapBounds& bounds);
    void revealBounds(const KTMapBounds& bounds);
    /// The smallest box around their geometries; nothing when none of them has a place.
    static std::optional<KTMapBounds> boundsOf(const Objects& objects);
    static constexpr double kFittingScale = 15; ///< one place is not shown larger by fitting

    // What is drawn
    bool shouldShowCrosshairs() const { return showsCrosshairs; }
    void setShouldShowCrosshairs(bool shows);
    /// Asks whoever shows the map to draw its features anew.
    void setNeedsDisplay();
    /// The sources of features that the map shows as layers, from below. They must stay until they are
    /// removed.
    const std::vector<KTSpatialObjectController*>& spatialObjectControllers() const { return layers; }
    void addSpatialObjectController(KTSpatialObjectController& controller);
    void removeSpatialObjectController(KTSpatialObjectController& controller);

    // The base map and the place at which maps begin
    /// Empty for the offline map, else the name of a source of tiles.
    const std::string& mapDataSource() const { return dataSource; }
    void setMapDataSource(const std::string& name);
    void setDefaultMapDataSource(const std::string& name);
    void setDefaultLatitudeLongitude(KTMapPoint centre);
    void setDefaultScale(double scale);
    /// Keeps place, scale and data source for the next start. For the end of the program, or of the window.
    void saveLocation() const;

private:
    KTMapViewState state;
    bool showsCrosshairs = false;
    std::string dataSource;
    std::vector<KTSpatialObjectController*> layers;
};
