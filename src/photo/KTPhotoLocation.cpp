#include "photo/KTLinkablePoint.h"
#include "photo/KTPhoto.h"
#include "platform/common/KTCallContext.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/concurrency/KTSerialQueue.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/gazetteer/KTGazetteer.h"
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

/// What each of the operations does.
struct KTPhoto::LocationEdit {
    struct OfPlace {
        const PlaceNames* names;
        const char* setting; ///< that must be on; null for none
    };
    const char* actionName;
    KTValue::Dictionary (KTPhoto::*position)(const KTLinkablePoint& point) const; ///< null for none
    std::vector<OfPlace> places;
};

namespace {

/// What makes an edit obsolete that is on its way.
constexpr std::string_view kLocationKeys[] = {
    "latitude",      "longitude",      "altitude",       "gpsDateTime",     "imageDirection",
    "latitudeShown", "longitudeShown", "countryCreated", "stateCreated",    "cityCreated",
    "countryShown",  "stateShown",     "cityShown",      "dateTimeOriginal"};

bool isOn(std::string_view setting) {
    return KTUserDefaults::standardUserDefaults().boolForKey(setting);
}

/// Waits, one after the other, for the place names that edits of the main thread need.
KTSerialQueue& placeQueue() {
    static KTSerialQueue queue("place names for the main thread", KTSerialQueue::Kind::Announcing);
    return queue;
}

/// One for all edits that are put off at a time. Main thread.
std::shared_ptr<KTGazetteer::Batch> batchOfEditsPutOff() {
    static std::weak_ptr<KTGazetteer::Batch> present;
    auto batch = present.lock();
    if (!batch)
        present = batch = std::make_shared<KTGazetteer::Batch>(KTGazetteer::sharedGazetteer());
    return batch;
}

} // namespace

const KTPhoto::LocationEdit KTPhoto::kLocationCreated = {
    "Geotag Photos",
    &KTPhoto::positionCreatedFrom,
    {{&kPlaceCreated, "defaultLatLonCreatedShouldReverseGeocodeLocationCreated"},
     {&kPlaceShown, "defaultLatLonCreatedShouldReverseGeocodeLocationShown"}}};
const KTPhoto::LocationEdit KTPhoto::kLocationShown = {
    "Set Location Shown",
    &KTPhoto::positionShownFrom,
    {{&kPlaceShown, "defaultLatLonShownShouldReverseGeocodeLocationShown"}}};
const KTPhoto::LocationEdit KTPhoto::kNamesCreated = {
    "Reverse Geocode", nullptr, {{&kPlaceCreated, nullptr}}};
const KTPhoto::LocationEdit KTPhoto::kNamesShown = {"Reverse Geocode", nullptr, {{&kPlaceShown, nullptr}}};

void KTPhoto::setLocationCreatedFromLinkablePoint(const std::shared_ptr<KTLinkablePoint>& point) {
    editLocation(point, kLocationCreated);
}

void KTPhoto::setLocationShownFromLinkablePoint(const std::shared_ptr<KTLinkablePoint>& point) {
    editLocation(point, kLocationShown);
}

void KTPhoto::reverseGeocodeLocationCreatedFromLinkablePoint(const std::shared_ptr<KTLinkablePoint>& point) {
    editLocation(point, kNamesCreated);
}

void KTPhoto::reverseGeocodeLocationShownFromLinkablePoint(const std::shared_ptr<KTLinkablePoint>& point) {
    editLocation(point, kNamesShown);
}

KTValue::Dictionary KTPhoto::positionCreatedFrom(const KTLinkablePoint& point) const {
    const bool isTrackPoint = point.linkablePointType() == KTLinkablePointTypePreceding ||
                              point.linkablePointType() == KTLinkablePointTypeNext;
    KTValue::Dictionary position{
        {"latitude", point.latitude()},
        {"longitude", point.longitude()},
        {"gpsMapDatum", "WGS-84"},
        {"gpsVersionID", "2.2.0.0"},
        {"gpsDateTime", isTrackPoint && point.date() ? KTValue(*point.date()) : KTValue::null()}};
    const bool mayReplace = !decimalForKey("altitude") || isOn("defaultShouldOverwriteAltitude");
    if (point.elevation() && mayReplace && isOn("defaultShouldSaveAltitude"))
        position.emplace("altitude", *point.elevation());
    return position;
}

KTValue::Dictionary KTPhoto::positionShownFrom(const KTLinkablePoint& point) const {
    KTValue::Dictionary position{{"latitudeShown", point.latitude()}, {"longitudeShown", point.longitude()}};
    const bool mayReplace = !decimalForKey("imageDirection") || isOn("defautShouldOverwriteImageDirection");
    if (!mayReplace || !isOn("defaultSetImageDirectionFromLatLonShown"))
        return position;
    auto degrees = [this](std::string_view key) {
        return decimalForKey(key).value_or(KTDecimal()).toDouble();
    };
    const double bearing =
        KTInitialBearingBetweenPoints(degrees("longitude"), degrees("latitude"),
                                      point.longitude()->toDouble(), point.latitude()->toDouble());
    if (std::isfinite(bearing))
        position.emplace("imageDirection", KTDecimal::fromDouble(bearing));
    return position;
}

/// Edits of the main thread that must wait are made in the order in which they were asked for; so one that
/// need not wait is put off too if another one is.
void KTPhoto::editLocation(const std::shared_ptr<KTLinkablePoint>& point, const LocationEdit& edit) {
    if (!point || (edit.position != nullptr && !point->hasPosition()))
        return;
    const bool wantsNames = !placesToName(edit).empty();
    if (!KTMainThread::isCurrent())
        return applyLocation(*point, edit,
                             wantsNames ? point->waitUntilLocationDescriptionFetchIsCompleted()
                                        : KTValue::Dictionary());
    if (wantsNames)
        point->fetchLocationDescription();
    const auto answer = wantsNames ? point->answerIfCompleted() : KTValue::Dictionary();
    if (answer && locationEditsPutOff == 0)
        return applyLocation(*point, edit, *answer);
    putOffLocation(point, edit);
}

/// An edit of the main thread that waits for place names. What is edited meanwhile is newer, and makes it
/// obsolete; except by edits that were put off before it.
struct KTPhoto::LocationEditPutOff {
    LocationEditPutOff(KTPhoto& photo, std::shared_ptr<KTLinkablePoint> editPoint,
                       const LocationEdit& theEdit)
        : point(std::move(editPoint)), edit(theEdit),
          observation(photo.observe([this](const KTChange& change) {
              if (std::ranges::count(kLocationKeys, change.key) != 0 && KTCallMark::count(&placeQueue()) == 0)
                  isObsolete = true;
          })) {}

    const std::shared_ptr<KTLinkablePoint> point;
    const LocationEdit& edit;
    const std::shared_ptr<KTGazetteer::Batch> batch = batchOfEditsPutOff();
    std::atomic<bool> isObsolete = false;
    const Observation observation;
};

void KTPhoto::putOffLocation(const std::shared_ptr<KTLinkablePoint>& point, const LocationEdit& edit) {
    ++locationEditsPutOff;
    placeQueue().async(
        [weak = weak_from_this(), putOff = std::make_shared<LocationEditPutOff>(*this, point, edit)] {
            const auto answer = putOff->point->waitUntilLocationDescriptionFetchIsCompleted();
            KTPerformOnMainThread([weak, putOff, answer] {
                const auto photo = weak.lock();
                if (!photo)
                    return;
                --photo->locationEditsPutOff;
                const KTCallMark mark(&placeQueue());
                if (putOff->isObsolete)
                    photo->log(
                        photo->imageURL, putOff->edit.actionName, {},
                        KTLocalizedString("The photo was edited before the names of the place were known, so "
                                          "this was not done."));
                else
                    photo->applyLocation(*putOff->point, putOff->edit, answer);
            });
        });
}

void KTPhoto::applyLocation(const KTLinkablePoint& point, const LocationEdit& edit,
                            const KTValue::Dictionary& answer) {
    KTValue::Dictionary changes =
        edit.position != nullptr ? (this->*edit.position)(point) : KTValue::Dictionary();
    for (const PlaceNames* place : placesToName(edit))
        changes.merge(namesToWrite(*place, answer));
    if (const auto failure = answer.find("error"); failure != answer.end())
        log(imageURL, "Reverse geocode", {}, failure->second.description());
    if (!changes.empty())
        setValuesForKeysWithDictionary(changes, KTLocalizedString(edit.actionName));
}

KTValue::Dictionary KTPhoto::locationCreatedDictionaryFromLinkablePoint(KTLinkablePoint& point) const {
    return namesFrom(point, kPlaceCreated);
}

KTValue::Dictionary KTPhoto::locationShownDictionaryFromLinkablePoint(KTLinkablePoint& point) const {
    return namesFrom(point, kPlaceShown);
}

KTValue::Dictionary KTPhoto::namesFrom(KTLinkablePoint& point, const PlaceNames& place) const {
    if (wantedNames(place).empty())
        return {};
    if (KTMainThread::isCurrent()) {
        point.fetchLocationDescription();
        return namesToWrite(place, point.answerIfCompleted().value_or(KTValue::Dictionary()));
    }
    return namesToWrite(place, point.waitUntilLocationDescriptionFetchIsCompleted());
}

bool KTPhoto::geotaggingWantsPlaceNames() const {
    return !placesToName(kLocationCreated).empty();
}

KTPhoto::Places KTPhoto::placesToName(const LocationEdit& edit) const {
    Places places;
    for (const auto& [names, setting] : edit.places)
        if ((setting == nullptr || isOn(setting)) && !wantedNames(*names).empty())
            places.push_back(names);
    return places;
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

/// Names that the answer does not have leave the photo's alone.
KTValue::Dictionary KTPhoto::namesToWrite(const PlaceNames& place, const KTValue::Dictionary& answer) const {
    KTValue::Dictionary names;
    for (const PlaceName* name : wantedNames(place))
        if (const auto found = answer.find(name->answerKey); found != answer.end())
            names.emplace(name->key, found->second);
    return names;
}
