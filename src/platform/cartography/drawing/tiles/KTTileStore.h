#pragma once
#include "platform/cartography/drawing/tiles/TileDiskCache.h"
#include "platform/cartography/drawing/tiles/TileMemory.h"
#include "platform/network/HTTPAnswer.h"
#include "platform/observing/KTObservable.h"

#include <condition_variable>
#include <set>
#include <stop_token>
#include <thread>

class HTTPClient;

/// The tiles of one source: those that a map shows are fetched on threads of the store, from disk, else from
/// the server, and kept. What was asked for and is no longer shown is not fetched. Any thread; a
/// QCoreApplication must outlive it.
///
/// Announces "tiles" when one has arrived and "problems" when there is something new to tell, on the store's
/// threads.
///
/// A server that refuses (HTTP status 401 or 403) is not asked again and no tile of it is shown any more; one
/// that is not reached, does not answer or wants a pause is left alone for a while. Each sort of trouble is
/// told once.
class KTTileStore : public KTObservable {
public:
    struct Options {
        std::filesystem::path folder = {};         ///< of the tiles on disk; empty for none
        std::uintmax_t largestCache = 500'000'000; ///< bytes on disk
        std::size_t largestMemory = 200'000'000;   ///< bytes of decoded images
        std::chrono::milliseconds timeout = std::chrono::seconds(15);
        std::chrono::milliseconds shortestPause = std::chrono::seconds(20); ///< for a server in trouble
        int connections = 2;
        KTInstant (*now)() = KTInstantNow;
    };

    KTTileStore(KTTileSource tileSource, const Options& settings);
    ~KTTileStore() override;

    const KTTileSource& source() const { return tiles; }
    /// The image of a tile; null when it is not in memory or there is none. Never waits for a file or server.
    QImage image(const KTTileAddress& tile) const;
    /// From now on exactly @p addresses are wanted, the first ones first. Those beyond the source's zooms are
    /// left out.
    void want(std::vector<KTTileAddress> addresses);
    /// Whether everything wanted has arrived, or will not.
    bool isSettled() const;

    /// Whether no tile of the source is shown any more, or never was.
    bool hasNoTiles() const;
    /// What went wrong, for the user, each sort of trouble once.
    std::vector<std::string> problems() const;

private:
    using Clock = std::chrono::steady_clock;
    struct Task {
        KTTileAddress tile;
        bool isOnDisk = false; // where to look for it
        std::stop_token stop = {};
    };

    void work();
    std::optional<Task> next();
    std::optional<Task> nextTask() const; // the mutex must be held

    void lookOnDisk(const KTTileAddress& tile);
    void fetch(const Task& task, HTTPClient& client);
    void take(const KTTileAddress& tile, const HTTPAnswer& answer, const std::optional<StoredTile>& old);
    void takeContent(const KTTileAddress& tile, const HTTPAnswer& answer, StoredTile stored);
    void takeRefusal(const KTTileAddress& tile, const HTTPAnswer& answer);
    void remember(const KTTileAddress& tile, const QImage& image, KTInstant askAgainFrom);
    void askAgainAfter(const KTTileAddress& tile, std::chrono::seconds time);
    void pause(const HTTPAnswer& answer);
    void refuse();
    void report(const std::string& sort, const std::string& text);

    const KTTileSource tiles;
    const Options options;
    const std::string server; // for people
    TileDiskCache disk;
    mutable std::mutex mutex; // guards what follows; never held while announcing, reading or asking
    std::condition_variable changed;
    mutable TileMemory memory;
    std::vector<KTTileAddress> wanted;
    std::map<KTTileAddress, std::stop_source> running;
    Clock::time_point silentUntil = {};
    std::chrono::milliseconds lastPause{0};
    bool isRefused = false, isClosing = false;
    std::set<std::string> reported; // sorts of trouble
    std::vector<std::string> troubles;
    std::vector<std::jthread> workers; // begin with the first tile that is wanted
};
