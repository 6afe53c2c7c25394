#include "photo/KTPhoto.h"

#include "photo/KTPhotoPropertyTable.h"
#include "platform/cartography/KTGeodesicGeometry.h"
#include "platform/cartography/KTPointGeometry.h"
#include "platform/cartography/KTStyle.h"
#include "platform/common/KTLocalizedString.h"

namespace {

constexpr double kDirectionScaleLimit = 1000000; // scale denominator
constexpr double kGeodesicResolution = 1000.0;   // metres

std::shared_ptr<const KTStyle> makeStyle() {
    auto style = std::make_shared<KTStyle>();
    style->addRule({.symbolizers = {KTShinyBallSymbolizer{}}});
    style->addRule({.presentKey = "imageDirection", .symbolizers = {KTCompassFingerSymbolizer{}}});
    style->addRule(
        {.presentKey = "latitudeShown", .onlySelected = true, .symbolizers = {KTGeodesicLineSymbolizer{}}});
    style->addRule({.presentKey = "imageDirection",
                    .onlySelected = true,
                    .maximumScaleDenominator = kDirectionScaleLimit,
                    .symbolizers = {KTPieWedgeSymbolizer{}, KTGeodesicLineSymbolizer{}}});
    style->addRule({.onlySelected = true, .symbolizers = {KTStarSymbolizer{}}});
    return style;
}

} // namespace

/// The position that two stored properties make up; the mutex must be held.
std::optional<KTMapPoint> KTPhoto::positionOf(std::string_view longitude, std::string_view latitude) const {
    auto degrees = [&](std::string_view key) {
        return values[KTPhotoPropertyTable::propertyForKey(key)->place].number();
    };
    const auto x = degrees(longitude), y = degrees(latitude);
    if (!x || !y)
        return std::nullopt;
    return KTMapPoint{x->toDouble(), y->toDouble()};
}

bool KTPhoto::isGeotagged() const {
    std::lock_guard guard(mutex);
    return positionOf("longitude", "latitude").has_value();
}

bool KTPhoto::hasLatitudeLongitudeShown() const {
    std::lock_guard guard(mutex);
    return positionOf("longitudeShown", "latitudeShown").has_value();
}

std::string KTPhoto::imageSubtitle() const {
    std::lock_guard guard(mutex);
    const auto position = positionOf("longitude", "latitude");
    if (!position)
        return KTLocalizedString("Not geotagged");
    char text[80];
    std::snprintf(text, sizeof text, "(%.4f, %.4f)", position->x, position->y);
    return text;
}

std::string KTPhoto::featureDescription() const {
    return KTLocalizedString("No Description.");
}

std::string KTPhoto::kind() const {
    return KTLocalizedString("Photo");
}

std::shared_ptr<const KTStyle> KTPhoto::style() const {
    static const std::shared_ptr<const KTStyle> style = makeStyle(); // the same for every photo
    return style;
}

bool KTPhoto::isPositionPending() const {
    return unsaved && std::ranges::any_of(std::array{"latitude", "longitude"}, [this](std::string_view key) {
               const KTMetadataField* field = KTPhotoPropertyTable::propertyForKey(key)->field;
               return field && std::ranges::any_of(sources, [&](const KTMetadataSource& source) {
                          return hasPendingKeys(*field, source.changes);
                      });
           });
}

KTFeatureValues KTPhoto::featureValues() const {
    static const std::size_t direction = KTPhotoPropertyTable::propertyForKey("imageDirection")->place,
                             view = KTPhotoPropertyTable::propertyForKey("fieldOfView")->place;
    const auto degrees = [this](std::size_t place) {
        const auto number = values[place].number();
        return number ? std::optional(number->toDouble()) : std::nullopt;
    };
    std::lock_guard guard(mutex);
    return {.imageDirection = degrees(direction),
            .fieldOfView = degrees(view),
            .placeShown = positionOf("longitudeShown", "latitudeShown"),
            .isProvisional = isPositionPending()};
}

std::shared_ptr<const KTGeometry> KTPhoto::geometry() const {
    std::lock_guard guard(mutex);
    if (!shape) {
        if (const auto position = positionOf("longitude", "latitude"))
            shape = std::make_shared<KTPointGeometry>(*position);
        else
            shape = std::make_shared<KTGeometry>();
    }
    return shape;
}

void KTPhoto::setGeometry(std::shared_ptr<const KTGeometry> newGeometry) {
    willChange("geometry");
    {
        std::lock_guard guard(mutex);
        shape.swap(newGeometry);
    }
    didChange("geometry");
}

std::shared_ptr<const KTMultiPointGeometry> KTPhoto::geodesicToLocationShown() const {
    std::lock_guard guard(mutex);
    const auto from = positionOf("longitude", "latitude"), to = positionOf("longitudeShown", "latitudeShown");
    if (!geodesicLine && from && to)
        geodesicLine = std::make_shared<KTGeodesicGeometry>(*from, *to, kGeodesicResolution);
    return geodesicLine;
}

void KTPhoto::setGeodesicToLocationShown(std::shared_ptr<const KTMultiPointGeometry> geodesic) {
    willChange("geodesicToLocationShown");
    {
        std::lock_guard guard(mutex);
        geodesicLine.swap(geodesic);
    }
    didChange("geodesicToLocationShown");
}
