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

/// @p format filled with the name of the reverse geocoder.
std::string placeholderText(const char* format) {
    return KTStringWithFormat(KTLocalizedString(format),
                              {KTGazetteer::sharedGazetteer().selectedReverseGeocoder()->name()});
}

} // namespace

std::string KTLinkablePoint::locationDescription() {
    fetchLocationDescription();
    const auto answer = answerIfCompleted();
    return answer ? KTGazetteer::locationDescriptionFromDictionary(*answer)
                  : placeholderText("Fetching the location description from %@…");
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
    const auto answer = answerIfCompleted();
    return answer ? textOf(*answer, key) : placeholderText(placeholder);
}

std::optional<KTValue::Dictionary> KTLinkablePoint::answerIfCompleted() const {
    std::lock_guard guard(mutex);
    return isCompleted ? std::optional(place) : std::nullopt;
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
    changePlace([&] {
        if (request != requests) // the answer comes from a reverse geocoder that is no longer wanted
            return std::shared_ptr<KTLatch>();
        place = answer;
        isCompleted = true;
        return completion;
    });
}

/// @p change runs under the lock and returns the latch of those who need not wait any more, null for none.
void KTLinkablePoint::changePlace(const std::function<std::shared_ptr<KTLatch>()>& change) {
    for (std::string_view key : kPlaceKeys)
        willChange(key);
    std::shared_ptr<KTLatch> answered;
    {
        std::lock_guard guard(mutex);
        answered = change();
    }
    if (answered)
        answered->signal();
    for (std::string_view key : kPlaceKeys)
        didChange(key);
}

KTValue::Dictionary KTLinkablePoint::waitUntilLocationDescriptionFetchIsCompleted() {
    const auto deadline = std::chrono::steady_clock::now() + kWaitLimit;
    for (;;) {
        fetchLocationDescription();
        std::shared_ptr<KTLatch> answered;
        {
            std::lock_guard guard(mutex);
            if (isCompleted)
                return place;
            answered = completion;
        }
        const auto left = deadline - std::chrono::steady_clock::now();
        if (!answered->waitFor(std::chrono::ceil<std::chrono::milliseconds>(left)))
            stopWaiting();
    }
}

void KTLinkablePoint::stopWaiting() {
    const std::string reason = placeholderText("%@ did not answer in time.");
    changePlace([&] {
        if (isCompleted || !isRequested)
            return std::shared_ptr<KTLatch>();
        isCompleted = true;
        place = {{"error", reason}};
        return completion;
    });
}

void KTLinkablePoint::clearLocationDictionaryCacheAndRefetch() {
    if (!requestMade())
        return;
    std::shared_ptr<KTLatch> former;
    changePlace([&] {
        isRequested = isCompleted = false;
        place.clear();
        ++requests; // the answer to the former request is not wanted any more
        former = completion;
        return std::shared_ptr<KTLatch>();
    });
    fetchLocationDescription();
    former->signal(); // those who wait for it now wait for the new one
}
