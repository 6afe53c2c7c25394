#include "geotagging/KTPhotoMatchController.h"

#include "geotagging/KTAppTrackPickerController.h"
#include "geotagging/KTGeotaggingController.h"
#include "platform/common/KTTimeZoneManager.h"
#include "platform/common/KTUnitConverter.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/defaults/KTUserDefaults.h"
#include "platform/undo/KTUndoManager.h"

#include <algorithm>

namespace {

/// Photos are linked meanwhile, and a change of zone reaches them little by
/// little.
constexpr std::chrono::milliseconds kPause{200};

constexpr std::string_view kSettings[] = {"shouldUseDistanceRestriction",
                                          "distanceRestriction",
                                          "shouldANDRestrictions",
                                          "shouldUseTimeRestriction",
                                          "timeRestriction",
                                          "shouldUseTimeWeightedAverage",
                                          "shouldIgnorePreviouslyTaggedPhotos",
                                          "defaultAssumedTimeZoneOffset"};

/// Waits, unless the end is asked for; whether it is not.
bool pause(const std::stop_token& stop) {
    std::mutex mutex;
    std::condition_variable_any changed;
    std::unique_lock lock(mutex);
    changed.wait_for(lock, stop, kPause, [] { return false; });
    return !stop.stop_requested();
}

} // namespace

bool KTPhotoMatchController::Look::isSameAs(const Look& other) const {
    if (fates.size() != other.fates.size() || matches != other.matches)
        return false;
    return std::ranges::all_of(fates, [&](const auto& entry) {
        const auto same = other.fates.find(entry.first);
        return same != other.fates.end() && same->second.links == entry.second.links &&
               same->second.verdict == entry.second.verdict && same->second.choice == entry.second.choice;
    });
}

KTPhotoMatchController::KTPhotoMatchController(KTGeotaggingController& owner)
    : geotagging(owner), self(std::make_shared<KTPhotoMatchController*>(this)) {}

KTPhotoMatchController::~KTPhotoMatchController() {
    tearDown();
}

void KTPhotoMatchController::setup() {
    isSetUp = true;
    auto follow = [this](KTObservable& observed, bool (*isWanted)(std::string_view key), bool mustAnnounce) {
        observations.push_back(
            observed.observe([isWanted, mustAnnounce, alive = std::weak_ptr(self)](const KTChange& change) {
                if (change.isPrior || !isWanted(change.key))
                    return;
                KTPerformOnMainThread([alive, mustAnnounce] {
                    if (const auto controller = alive.lock())
                        (*controller)->lookSoon(mustAnnounce);
                });
            }));
    };
    auto any = [](std::string_view) { return true; };
    follow(
        geotagging.photoController(), [](std::string_view key) { return key == "photos"; }, false);
    follow(
        geotagging.geotagger(),
        [](std::string_view key) { return key == "batchPointArray" || key == "hasLoadedValidTracks"; },
        false);
    follow(
        KTUserDefaults::standardUserDefaults(),
        [](std::string_view key) { return std::ranges::find(kSettings, key) != std::end(kSettings); }, true);
    follow(KTTimeZoneManager::sharedTimeZoneManager(), any, true);
    follow(KTUnitConverter::sharedUnitConverter(), any, true);
    if (const auto undo = geotagging.photoController().photoManager().undoManager())
        follow(*undo, any, false); // edits of dates and positions
    trackHandler = geotagging.trackPickerController().trackManager().addHandler(
        [alive = std::weak_ptr(self)](const KTTrackNotification&) {
            KTPerformOnMainThread([alive] {
                if (const auto controller = alive.lock())
                    (*controller)->lookSoon();
            });
        });
    lookSoon();
}

void KTPhotoMatchController::tearDown() {
    if (!std::exchange(isSetUp, false))
        return;
    observations.clear();
    geotagging.trackPickerController().trackManager().removeHandler(trackHandler);
    stop.request_stop();
    queue.cancelAllOperations();
    queue.waitUntilAllOperationsAreFinished();
}

void KTPhotoMatchController::lookSoon(bool mustAnnounce) {
    if (!isSetUp)
        return;
    mustAnnounceNext |= mustAnnounce;
    if (isLooking)
        mustLookAgain = true;
    else
        look(false);
}

void KTPhotoMatchController::look(bool afterAWhile) {
    isLooking = true;
    mustLookAgain = false;
    queue.addOperationWithBlock([this, afterAWhile, token = stop.get_token(), alive = std::weak_ptr(self)] {
        if (token.stop_requested() || (afterAWhile && !pause(token)))
            return;
        KTPerformOnMainThread([alive, found = lookAtPhotos()] {
            if (const auto controller = alive.lock())
                (*controller)->take(found);
        });
    });
}

std::shared_ptr<const KTPhotoMatchController::Look> KTPhotoMatchController::lookAtPhotos() const {
    const auto photos = geotagging.photoController().photos();
    KTGeotaggingComputation computation = KTGeotaggingComputation::computationOf(
        *photos, KTGeotagger::criteria(), *geotagging.geotagger().asynchronousWaymark());
    auto found = std::make_shared<Look>();
    found->criteria = computation.criteria;
    found->counters = computation.counters;
    found->isComplete = computation.photosBeingLinked == 0;
    std::vector<KTInstant> times;
    for (KTGeotaggingFate& fate : computation.fates) {
        if (const KTLinkedPoints::Point point = fate.choice ? KTNearestPoint(*fate.links) : nullptr)
            times.push_back(*point->date());
        const KTPhoto* key = fate.photo.get();
        found->fates.insert_or_assign(key, std::move(fate));
    }
    if (!times.empty())
        for (const auto& track :
             geotagging.trackPickerController().trackManager().store().tracksWithPointsAt(times))
            if (track)
                ++found->matches[*track];
    return found;
}

void KTPhotoMatchController::take(const std::shared_ptr<const Look>& found) {
    if (!isSetUp)
        return;
    isLooking = false;
    const bool isNew = !found->isSameAs(*known);
    if (std::exchange(mustAnnounceNext, false) || isNew) {
        willChange("matches");
        known = found;
        didChange("matches");
    }
    if (mustLookAgain || isNew || !found->isComplete)
        look(true);
}

const KTGeotaggingFate* KTPhotoMatchController::fateOfPhoto(const Photo& photo) const {
    const auto fate = known->fates.find(photo.get());
    return fate == known->fates.end() ? nullptr : &fate->second;
}

KTPhotoMatchTexts KTPhotoMatchController::textsOfPhoto(const Photo& photo) const {
    const KTGeotaggingFate* fate = fateOfPhoto(photo);
    return fate == nullptr
               ? KTPhotoMatchTexts()
               : KTPhotoMatchTexts::textsOf(*fate, known->criteria,
                                            KTTimeZoneManager::sharedTimeZoneManager().timeZone());
}

bool KTPhotoMatchController::isFarFromTracks(const Photo& photo) const {
    const KTGeotaggingFate* fate = fateOfPhoto(photo);
    if (fate == nullptr || !fate->links || !fate->links->instant)
        return false;
    const KTLinkedPoints::Point nearest = KTNearestPoint(*fate->links);
    return !nearest ||
           KTSecondsBetween(*fate->links->instant, *nearest->date()) >= known->criteria.timeRestriction;
}

std::size_t KTPhotoMatchController::matchedPhotosOfTrack(std::int64_t track) const {
    const auto matches = known->matches.find(track);
    return matches == known->matches.end() ? 0 : matches->second;
}
