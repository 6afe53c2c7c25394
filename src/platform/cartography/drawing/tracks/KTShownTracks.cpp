#include "platform/cartography/drawing/tracks/KTShownTracks.h"

#include "platform/concurrency/KTMainThread.h"
#include "platform/concurrency/KTOperationQueue.h"
#include "platform/tracklibrary/KTTrackStore.h"

/// What readings that run know of the object that wants them; it may be gone when they end.
struct KTShownTracks::Reading {
    KTShownTracks* owner = nullptr; // main thread
    std::atomic<bool> isOver = false;
    KTOperationQueue queue{2};
};

KTShownTracks::KTShownTracks(const KTTrackStore& trackStore, KTTrackLayer& trackLayer)
    : store(trackStore), layer(trackLayer), reading(std::make_shared<Reading>()) {
    reading->owner = this;
}

KTShownTracks::~KTShownTracks() {
    reading->owner = nullptr;
    reading->isOver = true;
    reading->queue.cancelAllOperations();
    reading->queue.waitUntilAllOperationsAreFinished();
}

void KTShownTracks::show(std::vector<Track> tracks) {
    wanted = std::move(tracks);
    std::erase_if(lines, [this](const auto& entry) {
        return std::ranges::find(wanted, entry.first, &Track::id) == wanted.end();
    });
    for (const Track& track : wanted)
        if (lines.emplace(track.id, nullptr).second)
            read(track.id);
    update();
}

void KTShownTracks::read(std::int64_t id) {
    reading->queue.addOperationWithBlock([this, id, shared = std::weak_ptr(reading)] {
        const auto living = shared.lock();
        if (!living || living->isOver)
            return;
        auto line = std::make_shared<const KTTrackLine>(store.positions(id)); // the owner waits for this
        KTPerformOnMainThread([shared, id, line = std::move(line)] {
            const auto still = shared.lock();
            if (!still || !still->owner)
                return;
            KTShownTracks& owner = *still->owner;
            if (const auto entry = owner.lines.find(id); entry != owner.lines.end()) {
                entry->second = line;
                owner.update();
            }
        });
    });
}

void KTShownTracks::update() {
    std::vector<KTMapTrack> tracks;
    for (const Track& track : wanted)
        if (const auto& line = lines.at(track.id))
            tracks.push_back({track.id, track.name, line, track.colour});
    layer.setTracks(std::move(tracks));
}

bool KTShownTracks::isComplete() const {
    return std::ranges::all_of(lines, [](const auto& entry) { return entry.second != nullptr; });
}

std::vector<std::shared_ptr<const KTTrackLine>> KTShownTracks::shownLines() const {
    std::vector<std::shared_ptr<const KTTrackLine>> shown;
    for (const auto& [id, line] : lines)
        if (line)
            shown.push_back(line);
    return shown;
}
