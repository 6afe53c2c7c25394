#include "photo/KTLinkablePoint.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/gazetteer/KTGazetteer.h"

// The place names of a point: asked for once, by the first reader.

namespace {

constexpr std::string_view kPlaceKeys[] = {"locationDescription", "city", "state", "country"};

std::string textOf(const KTValue::Dictionary& answer, std::string_view key) {
    const auto entry = answer.find(key);
    const std::string* text = entry == answer.end() ? nullptr : entry->second.text();
    return text ? *text : std::string();
}

std::string noAnswerText() {
    return KTStringWithFormat(KTLocalizedString("%@ did not answer in time."),
                              {KTGazetteer::sharedGazetteer().selectedReverseGeocoder()->name()});
}

} // namespace

std::string KTLinkablePoint::locationDescription() {
    const std::string waiting = placeText({}, "Fetching the location description from %@…");
    return waiting.empty() ? KTGazetteer::locationDescriptionFromDictionary(locationDictionary()) : waiting;
}

std::string KTLinkablePoint::city() {
    return placeText("city", "Fetching the city from %@…");
}

std::string KTLinkablePoint::state() {
    return placeText("state", "Fetching the state from %@…");
}

std::string KTLinkablePoint::country() {
    return placeText("country", "Fetching the country from %@…");
}

std::string KTLinkablePoint::placeText(std::string_view key, const char* placeholder) {
    fetchLocationDescription();
    {
        std::lock_guard guard(mutex);
        if (isCompleted)
            return textOf(place, key);
    }
    return KTStringWithFormat(KTLocalizedString(placeholder),
                              {KTGazetteer::sharedGazetteer().selectedReverseGeocoder()->name()});
}

KTValue::Dictionary KTLinkablePoint::locationDictionary() const {
    std::lock_guard guard(mutex);
    return place;
}

bool KTLinkablePoint::requestMade() const {
    std::lock_guard guard(mutex);
    return isRequested;
}

bool KTLinkablePoint::requestCompleted() const {
    std::lock_guard guard(mutex);
    return isCompleted;
}

std::optional<std::string> KTLinkablePoint::requestFailure() const {
    std::lock_guard guard(mutex);
    const std::string failure = textOf(place, "error");
    return failure.empty() ? std::nullopt : std::optional(failure);
}

void KTLinkablePoint::fetchLocationDescription() {
    unsigned request = 0;
    {
        std::lock_guard guard(mutex);
        if (isRequested)
            return;
        isRequested = true;
        isCompleted = false;
        completion = std::make_shared<KTLatch>();
        request = ++requests;
    }
    if (!hasPosition())
        return setRequestedLocationDictionary({}, request);
    KTGazetteer::sharedGazetteer().descriptionForLatitude(
        degreesNorth->toDouble(), degreesEast->toDouble(),
        [weak = weak_from_this(), request](const KTValue::Dictionary& answer) {
            if (const auto self = weak.lock())
                self->setRequestedLocationDictionary(answer, request);
        });
}

void KTLinkablePoint::setRequestedLocationDictionary(const KTValue::Dictionary& answer, unsigned request) {
    for (std::string_view key : kPlaceKeys)
        willChange(key);
    std::shared_ptr<KTLatch> answered;
    {
        std::lock_guard guard(mutex);
        if (request == requests) { // else the answer comes from a reverse geocoder that is no longer wanted
            place = answer;
            isCompleted = true;
            answered = completion;
        }
    }
    if (answered)
        answered->signal();
    for (std::string_view key : kPlaceKeys)
        didChange(key);
}

void KTLinkablePoint::waitUntilLocationDescriptionFetchIsCompleted() {
    const auto deadline = std::chrono::steady_clock::now() + kWaitLimit;
    for (fetchLocationDescription(); !requestCompleted(); fetchLocationDescription()) {
        std::shared_ptr<KTLatch> answered;
        {
            std::lock_guard guard(mutex);
            answered = completion;
        }
        const auto left = deadline - std::chrono::steady_clock::now();
        if (answered->waitFor(std::chrono::ceil<std::chrono::milliseconds>(left)))
            continue; // answered, or asked anew
        KTGazetteer::sharedGazetteer().answerDidNotCome();
        return stopWaiting();
    }
}

void KTLinkablePoint::stopWaiting() {
    const std::string reason = noAnswerText();
    std::shared_ptr<KTLatch> given;
    {
        std::lock_guard guard(mutex);
        if (isCompleted || !isRequested)
            return;
        isCompleted = true;
        place = {{"error", reason}};
        given = completion;
    }
    given->signal();
}

void KTLinkablePoint::clearLocationDictionaryCacheAndRefetch() {
    bool wasRequested = false;
    std::shared_ptr<KTLatch> former;
    for (std::string_view key : kPlaceKeys)
        willChange(key);
    {
        std::lock_guard guard(mutex);
        wasRequested = std::exchange(isRequested, false);
        isCompleted = false;
        place.clear();
        ++requests; // the answer to the former request is not wanted any more
        former = completion;
    }
    for (std::string_view key : kPlaceKeys)
        didChange(key);
    if (wasRequested)
        fetchLocationDescription();
    if (former)
        former->signal(); // those who wait for it now wait for the new one
}
