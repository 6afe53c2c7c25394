#include "platform/cartography/KTMapController.h"

#include "platform/cartography/KTSpatialObject.h"
#include "platform/common/KTText.h"
#include "platform/defaults/KTUserDefaults.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kFittingMargin = 48; // logical pixels left free around what is fitted
constexpr double kRevealMargin = 24;
constexpr double kFirstWidth = 1024, kFirstHeight = 640; // of a view that has not told its size

/// The settings that hold a place.
struct LocationSettings {
    std::string_view dataSource, latitude, longitude, scale;
};
constexpr LocationSettings kDefault = {"defaultMapDataSource", "defaultMapLatitude", "defaultMapLongitude",
                                       "defaultMapScale"};
constexpr LocationSettings kPrevious = {"previousMapDataSource", "previousMapLatitude",
                                        "previousMapLongitude", "previousMapScale"};

void store(std::string_view key, double number) {
    KTUserDefaults::standardUserDefaults().setValue(key, KTDecimal::fromDouble(number));
}

KTWorldRect worldRect(const KTMapBounds& bounds) {
    const KTWorldPoint southWest = KTProject(bounds.southWest()), northEast = KTProject(bounds.northEast());
    return {southWest.x, northEast.y, northEast.x, southWest.y};
}

/// The rectangle's repetition whose middle is nearest to the view's.
KTWorldRect nearestTurn(KTWorldRect rect, const KTMapViewState& state) {
    const double turns = std::round(state.worldCentre().x - rect.centre().x);
    rect.left += turns;
    rect.right += turns;
    return rect;
}

} // namespace

KTMapController::KTMapController() {
    const KTUserDefaults& defaults = KTUserDefaults::standardUserDefaults();
    const bool goesToPrevious = defaults.boolForKey("KTMapLaunchesToPreviousLocationDefault") &&
                                defaults.valueForKey(kPrevious.scale).number();
    const LocationSettings& settings = goesToPrevious ? kPrevious : kDefault;
    state =
        KTMapViewState({defaults.doubleForKey(settings.longitude), defaults.doubleForKey(settings.latitude)},
                       defaults.doubleForKey(settings.scale), kFirstWidth, kFirstHeight);
    dataSource = defaults.textForKey(settings.dataSource);
}

void KTMapController::setViewState(const KTMapViewState& newState) {
    if (newState == state)
        return;
    const KTMapPoint before = state.centre(), after = newState.centre();
    std::vector<std::string_view> keys = {"viewState"};
    if (before.y != after.y)
        keys.push_back("latitude");
    if (before.x != after.x)
        keys.push_back("longitude");
    if (before != after)
        keys.push_back("latitudeLongitude");
    if (state.zoom() != newState.zoom())
        keys.push_back("scale");
    for (std::string_view key : keys)
        willChange(key);
    state = newState;
    for (std::string_view key : keys)
        didChange(key);
}

void KTMapController::setLatitudeLongitude(KTMapPoint centre, double withScale) {
    setViewState({centre, withScale, state.width(), state.height(), state.devicePixelRatio()});
}

void KTMapController::setViewSize(double width, double height, double devicePixelRatio) {
    setViewState(state.withSize(width, height, devicePixelRatio));
}

std::optional<KTMapBounds> KTMapController::boundsOf(const Objects& objects) {
    std::vector<KTMapPoint> points;
    for (const auto& object : objects) {
        const auto geometry = object->geometry();
        const auto ofObject = geometry->points();
        points.insert(points.end(), ofObject.begin(), ofObject.end());
    }
    return KTMapBounds::ofPoints(points);
}

void KTMapController::fitBounds(const KTMapBounds& bounds) {
    const KTWorldRect rect = worldRect(bounds);
    const auto zoomFor = [](double room, double length) {
        const double size = std::max(room - 2 * kFittingMargin, room / 4) / std::max(length, 1e-12);
        return std::log2(size / KTMapViewState::kTileSize);
    };
    const double zoom = std::min(
        {zoomFor(state.width(), rect.width()), zoomFor(state.height(), rect.height()), kFittingScale});
    setLatitudeLongitude(KTUnproject(rect.centre()), zoom);
}

void KTMapController::revealBounds(const KTMapBounds& bounds) {
    const KTWorldRect rect = nearestTurn(worldRect(bounds), state);
    const double margin = std::min({kRevealMargin, state.width() / 4, state.height() / 4});
    const KTWorldRect room = state.widenedBy(-margin).visibleRect();
    if (room.contains(rect))
        return;
    if (rect.width() <= room.width() && rect.height() <= room.height())
        setLatitudeLongitude(KTUnproject(rect.centre()));
    else
        fitBounds(bounds);
}

void KTMapController::fitSpatialObjects(const Objects& objects) {
    if (const auto bounds = boundsOf(objects))
        fitBounds(*bounds);
}

void KTMapController::revealSpatialObjects(const Objects& objects) {
    if (const auto bounds = boundsOf(objects))
        revealBounds(*bounds);
}

void KTMapController::setShouldShowCrosshairs(bool shows) {
    if (shows == showsCrosshairs)
        return;
    willChange("shouldShowCrosshairs");
    showsCrosshairs = shows;
    didChange("shouldShowCrosshairs");
}

void KTMapController::setNeedsDisplay() {
    didChange("needsDisplay");
}

void KTMapController::addSpatialObjectController(KTSpatialObjectController& controller) {
    if (std::ranges::find(layers, &controller) != layers.end())
        return;
    willChange("spatialObjectControllers");
    layers.push_back(&controller);
    didChange("spatialObjectControllers");
}

void KTMapController::removeSpatialObjectController(KTSpatialObjectController& controller) {
    const auto found = std::ranges::find(layers, &controller);
    if (found == layers.end())
        return;
    willChange("spatialObjectControllers");
    layers.erase(found);
    didChange("spatialObjectControllers");
}

void KTMapController::setMapDataSource(const std::string& name) {
    if (name == dataSource)
        return;
    willChange("mapDataSource");
    dataSource = name;
    didChange("mapDataSource");
}

void KTMapController::setDefaultMapDataSource(const std::string& name) {
    KTUserDefaults::standardUserDefaults().setValue(kDefault.dataSource, name);
}

void KTMapController::setDefaultLatitudeLongitude(KTMapPoint centre) {
    store(kDefault.latitude, centre.y);
    store(kDefault.longitude, centre.x);
}

void KTMapController::setDefaultScale(double scale) {
    store(kDefault.scale, scale);
}

void KTMapController::saveLocation() const {
    KTUserDefaults::standardUserDefaults().setValue(kPrevious.dataSource, dataSource);
    store(kPrevious.latitude, latitude());
    store(kPrevious.longitude, longitude());
    store(kPrevious.scale, scale());
}
