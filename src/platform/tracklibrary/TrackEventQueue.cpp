#include "platform/tracklibrary/TrackEventQueue.h"

namespace {

constexpr std::size_t kPointsPerBatch = 4096, kMarksPerBatch = 256, kWaitingBatches = 8;

} // namespace

void TrackEventQueue::push(Batch&& batch) {
    std::unique_lock lock(mutex);
    changed.wait(lock, [&] { return waiting.size() < kWaitingBatches || isAbandoned; });
    if (!isAbandoned)
        waiting.push_back(std::move(batch));
    changed.notify_all();
}

void TrackEventQueue::finish() {
    std::lock_guard lock(mutex);
    isFinished = true;
    changed.notify_all();
}

void TrackEventQueue::close() {
    std::lock_guard lock(mutex);
    isAbandoned = true;
    waiting.clear();
    changed.notify_all();
}

bool TrackEventQueue::isClosed() const {
    std::lock_guard lock(mutex);
    return isAbandoned;
}

std::optional<TrackEventQueue::Batch> TrackEventQueue::next() {
    std::unique_lock lock(mutex);
    changed.wait(lock, [&] { return !waiting.empty() || isFinished; });
    if (waiting.empty())
        return std::nullopt;
    Batch batch = std::move(waiting.front());
    waiting.pop_front();
    changed.notify_all();
    return batch;
}

void TrackEventQueue::drainInto(TrackFileSink& sink) {
    try {
        while (auto batch = next())
            replay(std::move(*batch), sink);
    } catch (...) {
        close();
        throw;
    }
}

void TrackEventQueue::replay(Batch&& batch, TrackFileSink& sink) {
    std::size_t sent = 0;
    auto sendPointsUpTo = [&](std::size_t end) {
        for (; sent < end; ++sent)
            sink.addPoint(std::move(batch.points[sent]));
    };
    for (Mark& mark : batch.marks) {
        sendPointsUpTo(mark.pointsBefore);
        switch (mark.event) {
        case Event::BeginTrack:
            sink.beginTrack(mark.kind);
            break;
        case Event::BeginSegment:
            sink.beginSegment();
            break;
        case Event::EndTrack:
            sink.endTrack(std::move(mark.waypoint.name));
            break;
        case Event::Waypoint:
            sink.addWaypoint(std::move(mark.waypoint));
            break;
        }
    }
    sendPointsUpTo(batch.points.size());
}

TrackEventQueue::Writer::~Writer() {
    handOn();
    queue.finish();
}

void TrackEventQueue::Writer::handOn() {
    queue.push(std::exchange(batch, {}));
    batch.points.reserve(kPointsPerBatch);
}

void TrackEventQueue::Writer::add(Mark&& mark) {
    mark.pointsBefore = batch.points.size();
    batch.marks.push_back(std::move(mark));
    if (batch.marks.size() >= kMarksPerBatch)
        handOn();
}

void TrackEventQueue::Writer::beginTrack(KTTrack::Kind kind) {
    add({.pointsBefore = 0, .event = Event::BeginTrack, .kind = kind});
}

void TrackEventQueue::Writer::beginSegment() {
    add({.pointsBefore = 0, .event = Event::BeginSegment});
}

void TrackEventQueue::Writer::addPoint(TrackFilePoint&& point) {
    batch.points.push_back(std::move(point));
    if (batch.points.size() >= kPointsPerBatch)
        handOn();
}

void TrackEventQueue::Writer::endTrack(std::string name) {
    add({.pointsBefore = 0,
         .event = Event::EndTrack,
         .waypoint = {.name = std::move(name), .comment = {}, .point = {}}});
}

void TrackEventQueue::Writer::addWaypoint(TrackFileWaypoint&& waypoint) {
    add({.pointsBefore = 0, .event = Event::Waypoint, .waypoint = std::move(waypoint)});
}
