#include "platform/tracklibrary/KTTrackManager.h"

#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/tracklibrary/TrackFileFormat.h"
#include "platform/tracklibrary/TrackFileReading.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>

namespace {

constexpr std::chrono::hours kNear(24);

/// Why @p file cannot be a track file; empty when it may be one.
std::string unreadableReason(const std::filesystem::path& file) {
    std::error_code error;
    auto status = std::filesystem::status(file, error);
    if (status.type() == std::filesystem::file_type::not_found)
        return KTLocalizedString("there is no such file");
    if (error)
        return error.message();
    if (status.type() == std::filesystem::file_type::directory)
        return KTLocalizedString("this is a folder");
    return std::filesystem::is_regular_file(status) ? "" : KTLocalizedString("this is not a file");
}

} // namespace

KTTrackManager::KTTrackManager(std::unique_ptr<KTTrackStore> ownedStore)
    : trackStore(std::move(ownedStore)), self(std::make_shared<KTTrackManager*>(this)) {}

KTTrackManager::~KTTrackManager() {
    importStop.request_stop();
}

std::vector<std::string> KTTrackManager::validFileTypes() {
    std::vector<std::string> types;
    for (const std::string& extension : trackFileExtensions())
        types.push_back(extension.substr(1));
    return types;
}

bool KTTrackManager::validFileTypePredicate(const std::filesystem::path& path) {
    return std::ranges::count(trackFileExtensions(), KTLowercase(path.extension().string())) != 0;
}

KTTrackImportResult KTTrackManager::importFile(const std::filesystem::path& file,
                                               const std::stop_token& stop) {
    std::string reason = unreadableReason(file);
    if (!reason.empty()) {
        KTTrackImportResult failed;
        failed.error = KTValidUTF8(file.string()) + ": " + reason;
        return failed;
    }
    // A file of a size not seen before is new, and is hashed while it is read.
    std::error_code ignored;
    auto path = std::filesystem::absolute(file, ignored);
    auto size = static_cast<std::int64_t>(std::filesystem::file_size(path, ignored));
    if (trackStore->hasImportOfSize(size)) {
        if (auto earlier = trackStore->importedContent(trackFileHash(path)))
            return *earlier;
    }
    auto result = trackStore->importTracks(
        path, [&](TrackFileSink& sink) { return readTrackFile(path, sink); }, stop);
    if (result.addedSomething())
        post({KTTrackManagerDidAddNewImportSource, result.trackIDs});
    return result;
}

KTTrackStore::Deletion KTTrackManager::deleteTracks(const std::vector<std::int64_t>& ids) {
    auto result = trackStore->deleteTracks(ids);
    if (!result.deleted.empty())
        post({KTTrackManagerDidDeleteObjects, result.deleted});
    return result;
}

KTNearbyPredicates KTTrackManager::nearbyPredicatesForDates(std::vector<KTInstant> dates) const {
    std::ranges::sort(dates);
    KTTrackPredicate near;
    for (KTInstant date : dates) {
        if (near.spans.empty() || near.spans.back().last < date - kNear)
            near.spans.push_back({date - kNear, date + kNear});
        else
            near.spans.back().last = date + kNear;
    }
    return {near, near};
}

std::vector<KTTrack> KTTrackManager::tracksForPredicate(const KTTrackPredicate& predicate) const {
    std::vector<KTTrack> found = trackStore->tracks();
    std::erase_if(found, [&](const KTTrack& track) {
        return track.kind == KTTrack::Kind::Waypoints || !predicate.matches(track);
    });
    return found;
}

std::vector<KTWaypoint> KTTrackManager::waypointsForPredicate(const KTTrackPredicate& predicate) const {
    std::vector<KTWaypoint> found;
    if (!predicate.meansEverything)
        for (const KTTrackPredicate::Span& span : predicate.spans)
            std::ranges::move(trackStore->waypointsBetween(span.first, span.last), std::back_inserter(found));
    std::unordered_set<std::int64_t> known;
    for (const KTWaypoint& waypoint : found)
        known.insert(waypoint.id);
    if (!predicate.meansEverything && predicate.sources.empty())
        return found;
    for (const KTTrack& track : trackStore->tracks())
        if (track.waypointCount > 0 && predicate.matchesSource(track.source))
            for (KTWaypoint& waypoint : trackStore->waypoints(track.id))
                if (known.insert(waypoint.id).second)
                    found.push_back(std::move(waypoint));
    return found;
}

int KTTrackManager::addHandler(Handler handler) {
    std::lock_guard lock(handlersMutex);
    handlers.emplace(++lastNumber, std::move(handler));
    return lastNumber;
}

void KTTrackManager::removeHandler(int number) {
    std::lock_guard lock(handlersMutex);
    handlers.erase(number);
}

void KTTrackManager::post(const KTTrackNotification& notification) {
    std::vector<int> numbers;
    {
        std::lock_guard lock(handlersMutex);
        for (const auto& [number, handler] : handlers)
            numbers.push_back(number);
    }
    for (int number : numbers) {
        Handler handler;
        {
            std::lock_guard lock(handlersMutex);
            auto found = handlers.find(number);
            if (found != handlers.end())
                handler = found->second;
        }
        if (handler)
            handler(notification);
    }
}
