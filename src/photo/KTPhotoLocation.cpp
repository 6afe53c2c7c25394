#include "photo/KTLinkablePoint.h"
#include "photo/KTPhoto.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/concurrency/KTSerialQueue.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/geodesy/KTGeodesy.h"

#include <cmath>

struct KTPhoto::PlaceName {
    const char* key;
    const char* answerKey;
    const char* saveSetting;
};

/// The names of a place, from the coarsest to the finest.
struct KTPhoto::PlaceNames {
    const char* overwriteSetting;
    PlaceName names[3];
};

const KTPhoto::PlaceNames KTPhoto::kPlaceCreated = {
    "defaultShouldOverwriteLocationCreated",
    {{"countryCreated", "country", "defaultShouldSaveCountryCreated"},
     {"stateCreated", "state", "defaultShouldSaveStateCreated"},
     {"cityCreated", "city", "defaultShouldSaveCityCreated"}}};
const KTPhoto::PlaceNames KTPhoto::kPlaceShown = {
    "defaultShouldOverwriteLocationShown",
    {{"countryShown", "country", "defaultShouldSaveCountryShown"},
     {"stateShown", "state", "defaultShouldSaveStateShown"},
     {"cityShown", "city", "defaultShouldSaveCityShown"}}};

namespace {

bool isOn(std::string_view setting) {
    return KTUserDefaults::standardUserDefaults().boolForKey(setting);
}

/// Waits, one after the other, for the place names that edits of the main thread need.
KTSerialQueue& placeQueue() {
    static KTSerialQueue queue("place names for the main thread", KTSerialQueue::Kind::Announcing);
    return queue;
}

} // namespace

void KTPhoto::setLocationCreatedFromLinkablePoint(const std::shared_ptr<KTLinkablePoint>& point) {
    if (!point || !point->hasPosition())
        return;
    const bool isTrackPoint = point->linkablePointType() == KTLinkablePointTypePreceding ||
                              point->linkablePointType() == KTLinkablePointTypeNext;
    KTValue::Dictionary position{
        {"latitude", point->latitude()},
        {"longitude", point->longitude()},
        {"gpsMapDatum", "WGS-84"},
        {"gpsVersionID", "2.2.0.0"},
        {"gpsDateTime", isTrackPoint && point->date() ? KTValue(*point->date()) : KTValue::null()}};
    const bool mayReplace = !decimalForKey("altitude") || isOn("defaultShouldOverwriteAltitude");
    if (point->elevation() && mayReplace && isOn("defaultShouldSaveAltitude"))
        position.emplace("altitude", *point->elevation());

    Places places;
    if (isOn("defaultLatLonCreatedShouldReverseGeocodeLocationCreated"))
        places.push_back(&kPlaceCreated);
    if (isOn("defaultLatLonCreatedShouldReverseGeocodeLocationShown"))
        places.push_back(&kPlaceShown);
    editLocation(point, position, std::move(places), "Geotag Photos");
}

void KTPhoto::setLocationShownFromLinkablePoint(const std::shared_ptr<KTLinkablePoint>& point) {
    if (!point || !point->hasPosition())
        return;
    KTValue::Dictionary position{{"latitudeShown", point->latitude()},
                                 {"longitudeShown", point->longitude()}};
    const bool mayReplace = !decimalForKey("imageDirection") || isOn("defautShouldOverwriteImageDirection");
    if (mayReplace && isOn("defaultSetImageDirectionFromLatLonShown")) {
        auto degrees = [this](std::string_view key) {
            return decimalForKey(key).value_or(KTDecimal()).toDouble();
        };
        const double bearing =
            KTInitialBearingBetweenPoints(degrees("longitude"), degrees("latitude"),
                                          point->longitude()->toDouble(), point->latitude()->toDouble());
        if (std::isfinite(bearing))
            position.emplace("imageDirection", KTDecimal::fromDouble(bearing));
    }
    Places places;
    if (isOn("defaultLatLonShownShouldReverseGeocodeLocationShown"))
        places.push_back(&kPlaceShown);
    editLocation(point, position, std::move(places), "Set Location Shown");
}

void KTPhoto::reverseGeocodeLocationCreatedFromLinkablePoint(const std::shared_ptr<KTLinkablePoint>& point) {
    if (point)
        editLocation(point, {}, {&kPlaceCreated}, "Reverse Geocode");
}

void KTPhoto::reverseGeocodeLocationShownFromLinkablePoint(const std::shared_ptr<KTLinkablePoint>& point) {
    if (point)
        editLocation(point, {}, {&kPlaceShown}, "Reverse Geocode");
}

/// Edits of the main thread that must wait are made in the order in which they were asked for; so one that
/// need not wait is put off too if another one is.
void KTPhoto::editLocation(const std::shared_ptr<KTLinkablePoint>& point, const KTValue::Dictionary& position,
                           Places places, const char* actionName) {
    std::erase_if(places, [this](const PlaceNames* place) { return wantedNames(*place).empty(); });
    if (!places.empty())
        point->fetchLocationDescription();
    const bool mustWait = !places.empty() && !point->requestCompleted();
    if (!KTMainThread::isCurrent() || (!mustWait && locationEditsPutOff == 0))
        return applyLocation(*point, position, places, actionName);

    ++locationEditsPutOff;
    placeQueue().async([weak = weak_from_this(), point, position, places, actionName] {
        if (!places.empty())
            point->waitUntilLocationDescriptionFetchIsCompleted();
        KTPerformOnMainThread([weak, point, position, places, actionName] {
            if (const auto photo = weak.lock()) {
                --photo->locationEditsPutOff;
                photo->applyLocation(*point, position, places, actionName);
            }
        });
    });
}

void KTPhoto::applyLocation(KTLinkablePoint& point, KTValue::Dictionary edit, const Places& places,
                            const char* actionName) {
    for (const PlaceNames* place : places)
        edit.merge(placeNames(*place, point));
    if (!places.empty() && point.requestFailure())
        log(imageURL, "Reverse geocode", {}, point.requestFailure());
    if (!edit.empty())
        setValuesForKeysWithDictionary(edit, KTLocalizedString(actionName));
}

KTValue::Dictionary KTPhoto::locationCreatedDictionaryFromLinkablePoint(KTLinkablePoint& point) const {
    return placeNames(kPlaceCreated, point);
}

KTValue::Dictionary KTPhoto::locationShownDictionaryFromLinkablePoint(KTLinkablePoint& point) const {
    return placeNames(kPlaceShown, point);
}

/// A finer name is never written where a coarser one must not be.
KTPhoto::Names KTPhoto::wantedNames(const PlaceNames& place) const {
    const bool mayReplace = isOn(place.overwriteSetting);
    Names wanted;
    for (const PlaceName& name : place.names) {
        if (!isOn(name.saveSetting))
            break;
        if (mayReplace || valueForKey(name.key).description().empty())
            wanted.push_back(&name);
    }
    return wanted;
}

/// Names that the point does not have leave the photo's alone.
KTValue::Dictionary KTPhoto::placeNames(const PlaceNames& place, KTLinkablePoint& point) const {
    const Names wanted = wantedNames(place);
    if (wanted.empty())
        return {};
    if (!KTMainThread::isCurrent())
        point.waitUntilLocationDescriptionFetchIsCompleted();
    const KTValue::Dictionary answer = point.locationDictionary();
    KTValue::Dictionary names;
    for (const PlaceName* name : wanted)
        if (const auto found = answer.find(name->answerKey); found != answer.end())
            names.emplace(name->key, found->second);
    return names;
}
