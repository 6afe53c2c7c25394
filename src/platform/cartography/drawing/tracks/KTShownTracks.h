#pragma once
#include "platform/cartography/drawing/tracks/KTTrackLayer.h"

class KTTrackStore;

/// Shows tracks of a library on a map: reads their points on threads of the pool and hands the lines to a
/// layer as they come. Main thread.
class KTShownTracks {
public:
    struct Track {
        std::int64_t id = 0; ///< of the library
        std::string name;
        QColor colour = {};
        bool operator==(const Track&) const = default;
    };

    /// @p trackStore and @p trackLayer must stay until this object is gone, which waits for readings that
    /// run.
    KTShownTracks(const KTTrackStore& trackStore, KTTrackLayer& trackLayer);
    ~KTShownTracks();

    /// From now on exactly @p tracks are shown, from below; those that were shown before are not read again.
    void show(std::vector<Track> tracks);
    /// Reads a track anew; for one whose points have changed.
    void forget(std::int64_t id) { lines.erase(id); }
    /// Whether every track has been read.
    bool isComplete() const;
    /// Around all that has been read.
    std::vector<std::shared_ptr<const KTTrackLine>> shownLines() const;

private:
    struct Reading;

    void read(std::int64_t id);
    void update();

    const KTTrackStore& store;
    KTTrackLayer& layer;
    std::vector<Track> wanted;
    std::map<std::int64_t, std::shared_ptr<const KTTrackLine>> lines; // null while one is being read
    std::shared_ptr<Reading> reading;
};
