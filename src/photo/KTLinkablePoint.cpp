#include "photo/KTLinkablePoint.h"

#include "photo/KTPhoto.h"
#include "platform/cartography/KTPointGeometry.h"
#include "platform/cartography/KTStyle.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/common/KTUnitConverter.h"
#include "platform/gazetteer/KTGazetteer.h"

#include <cmath>

namespace {

/// How the points between a photo and its track are described. Map points have no texts.
struct PointTexts {
    const char* featureName;
    const char* title;
    const char* description; // null for what the distances tell
    const char* longDescription;
};
constexpr PointTexts kTexts[] = {
    {nullptr, nullptr, nullptr, nullptr},
    {"Preceding point", "Preceding track point", "%@ before photo.", "%@ before %@."},
    {"Next point", "Next track point", "%@ after photo.", "%@ after %@."},
    {"Time weighted average point", "Time weighted average point", nullptr, nullptr},
};

std::optional<KTDecimal> unlessNaN(const std::optional<KTDecimal>& number) {
    return number && number->isNaN() ? std::nullopt : number;
}

std::shared_ptr<const KTStyle> makeStyle() {
    auto style = std::make_shared<KTStyle>();
    style->addRule({.symbolizers = {KTLinkablePointSmartSymbolizer{}}});
    return style;
}

} // namespace

std::shared_ptr<KTLinkablePoint> KTLinkablePoint::initWithGeoPoint(const std::optional<KTGeoPoint>& point,
                                                                   KTLinkablePointType forType,
                                                                   std::shared_ptr<KTPhoto> photo) {
    std::shared_ptr<KTLinkablePoint> made(new KTLinkablePoint);
    if (point)
        made->copyGeoPoint(*point);
    made->type = forType;
    made->nameOfPhoto = photo ? photo->filename() : std::string();
    made->madeFor = std::move(photo);
    made->describeRelativeToPhoto();
    made->setLinkablePointType(forType); // observes, so from now on other threads may know the point
    made->reverseGeocoder =
        KTGazetteer::sharedGazetteer().observe([weak = std::weak_ptr(made)](const KTChange& change) {
            if (const auto self = change.isPrior ? nullptr : weak.lock())
                self->clearLocationDictionaryCacheAndRefetch();
        });
    return made;
}

std::shared_ptr<KTLinkablePoint> KTLinkablePoint::initWithGeoPoint(const KTGeoPoint& point,
                                                                   KTLinkablePointType forType) {
    std::shared_ptr<KTLinkablePoint> made(new KTLinkablePoint);
    made->copyGeoPoint(point);
    made->setLinkablePointType(forType);
    return made;
}

void KTLinkablePoint::copyGeoPoint(const KTGeoPoint& point) {
    setDate(point.date);
    setElevation(point.elevation);
    setLatitude(point.latitude);
    setLongitude(point.longitude);
}

void KTLinkablePoint::setLatitude(const std::optional<KTDecimal>& degrees) {
    degreesNorth = unlessNaN(degrees);
}

void KTLinkablePoint::setLongitude(const std::optional<KTDecimal>& degrees) {
    degreesEast = unlessNaN(degrees);
}

void KTLinkablePoint::setElevation(const std::optional<KTDecimal>& metres) {
    metresHigh = unlessNaN(metres);
}

void KTLinkablePoint::setLinkablePointType(KTLinkablePointType newType) {
    type = newType;
    if (type == KTLinkablePointTypeTimeWeighted)
        units =
            KTUnitConverter::sharedUnitConverter().observe([weak = weak_from_this()](const KTChange& change) {
                if (const auto self = change.isPrior ? nullptr : weak.lock())
                    self->updateDescriptions();
            });
}

void KTLinkablePoint::describeRelativeToPhoto() {
    const PointTexts& texts = kTexts[type];
    if (texts.title != nullptr)
        title = KTLocalizedString(texts.title);
    const auto taken = madeFor ? madeFor->dateTimeOriginal() : std::nullopt;
    if (texts.description == nullptr || !taken || !instant)
        return;
    const double seconds = std::abs(KTSecondsBetween(*instant, *taken));
    const std::string duration =
        KTUnitConverter::sharedUnitConverter().descriptionFromSeconds(std::int64_t(seconds));
    shortText = KTStringWithFormat(KTLocalizedString(texts.description), {duration});
    longText = KTStringWithFormat(KTLocalizedString(texts.longDescription), {duration, nameOfPhoto});
}

std::string KTLinkablePoint::pointDescription() const {
    std::lock_guard guard(mutex);
    return shortText;
}

std::string KTLinkablePoint::pointLongDescription() const {
    std::lock_guard guard(mutex);
    return longText;
}

double KTLinkablePoint::precedingDistance() const {
    std::lock_guard guard(mutex);
    return metresToPreceding;
}

double KTLinkablePoint::nextDistance() const {
    std::lock_guard guard(mutex);
    return metresToNext;
}

void KTLinkablePoint::setPrecedingDistance(double metres) {
    setDistance(metresToPreceding, metres);
}

void KTLinkablePoint::setNextDistance(double metres) {
    setDistance(metresToNext, metres);
}

void KTLinkablePoint::setDistance(double& distance, double metres) {
    {
        std::lock_guard guard(mutex);
        distance = metres;
    }
    updateDescriptions();
}

std::string KTLinkablePoint::caution() const {
    return spansDateLine
               ? KTLocalizedString("The track crosses the 180° meridian here; the point lies on the "
                                   "long way round the earth. Better take a track point beside it.")
               : std::string();
}

void KTLinkablePoint::updateDescriptions() {
    if (type != KTLinkablePointTypeTimeWeighted)
        return;
    for (std::string_view key : {"pointDescription", "pointLongDescription"})
        willChange(key);
    {
        std::lock_guard guard(mutex);
        const KTUnitConverter& converter = KTUnitConverter::sharedUnitConverter();
        const std::string preceding =
                              converter.roundedDefaultDistanceDescriptionFromMeters(metresToPreceding),
                          next = converter.roundedDefaultDistanceDescriptionFromMeters(metresToNext);
        shortText = KTStringWithFormat(
            KTLocalizedString("%@ from preceding track point and %@ to next track point"), {preceding, next});
        longText = KTStringWithFormat(
            KTLocalizedString("%@ from preceding track point and %@ to next track point for %@"),
            {preceding, next, nameOfPhoto});
    }
    for (std::string_view key : {"pointDescription", "pointLongDescription"})
        didChange(key);
}

std::string KTLinkablePoint::featureName() const {
    const char* const text = kTexts[type].featureName;
    return text == nullptr ? std::string() : KTLocalizedString(text);
}

std::string KTLinkablePoint::featureDescription() const {
    return KTLocalizedString("No Description.");
}

std::string KTLinkablePoint::kind() const {
    return KTLocalizedString("Linkable Point");
}

std::shared_ptr<const KTStyle> KTLinkablePoint::style() const {
    static const std::shared_ptr<const KTStyle> style = makeStyle(); // the same for every point
    return style;
}

std::shared_ptr<const KTGeometry> KTLinkablePoint::geometry() const {
    std::lock_guard guard(mutex);
    if (!shape) {
        if (hasPosition())
            shape = std::make_shared<KTPointGeometry>(
                KTMapPoint{degreesEast->toDouble(), degreesNorth->toDouble()});
        else
            shape = std::make_shared<KTGeometry>();
    }
    return shape;
}
