#pragma once
#include "platform/tracklibrary/TrackFileSink.h"

#include <condition_variable>
#include <deque>

/// Hands what one thread reads from a track file to another thread, in batches and in order. At most a few
/// batches wait; the reading thread then waits in turn.
class TrackEventQueue {
public:
    /// The sink of the reading thread. Its last events are handed on when it is destroyed.
    class Writer;

    /// Passes everything that comes to @p sink, on the calling thread, until the writer is gone. An exception
    /// of the sink closes the queue and goes on to the caller.
    void drainInto(TrackFileSink& sink);

private:
    enum class Event : std::uint8_t { BeginTrack, BeginSegment, EndTrack, Waypoint };
    struct Mark {
        std::size_t pointsBefore; // of the batch's points
        Event event;
        KTTrack::Kind kind = KTTrack::Kind::Track;
        TrackFileWaypoint waypoint = {}; // a track's name is its name
    };
    struct Batch {
        std::vector<TrackFilePoint> points;
        std::vector<Mark> marks;
    };

    void push(Batch&& batch);
    void finish();
    void close();
    bool isClosed() const;
    std::optional<Batch> next();
    static void replay(Batch&& batch, TrackFileSink& sink);

    mutable std::mutex mutex;
    std::condition_variable changed;
    std::deque<Batch> waiting;
    bool isFinished = false;  // by the writer
    bool isAbandoned = false; // by the reader
};

class TrackEventQueue::Writer : public TrackFileSink {
public:
    explicit Writer(TrackEventQueue& target) : queue(target) {}
    ~Writer() override;

    void beginTrack(KTTrack::Kind kind) override;
    void beginSegment() override;
    void addPoint(TrackFilePoint&& point) override;
    void endTrack(std::string name) override;
    void addWaypoint(TrackFileWaypoint&& waypoint) override;
    bool isClosed() const override { return queue.isClosed(); }

private:
    void add(Mark&& mark);
    void handOn();

    TrackEventQueue& queue;
    Batch batch;
};
