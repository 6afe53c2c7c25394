#include "platform/cartography/drawing/tiles/KTTileStore.h"

#include "platform/cartography/drawing/tiles/TileDecoder.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/network/HTTPClient.h"
#include "platform/network/HTTPFailureText.h"
#include "platform/network/HTTPFreshness.h"

namespace {

using namespace std::chrono_literals;
using Failure = HTTPAnswer::Failure;

constexpr std::size_t kLargestTile = 4'000'000; // bytes
constexpr std::chrono::seconds kFreshWithoutExpiry = 7 * 24h;
/// No tile is asked for more often, whatever the server says about keeping it.
constexpr std::chrono::seconds kAskedAtMost = 5min;
constexpr std::chrono::seconds kAbsent = 24h;
constexpr std::chrono::milliseconds kLongestPause = 1h;

std::string text(std::string_view sentence, std::initializer_list<std::string> arguments) {
    return KTStringWithFormat(KTLocalizedString(sentence), arguments);
}

std::string headerOf(const HTTPAnswer& answer, const std::string& name) {
    const auto found = answer.headers.find(name);
    return found == answer.headers.end() ? std::string() : found->second;
}

std::string textForStatus(int status, const std::string& server) {
    const std::string code = std::to_string(status);
    if (status == 404 || status == 410)
        return text(
            "%@ has no tiles for some of the places shown (HTTP status %@). The offline map is shown there.",
            {server, code});
    if (status == 429)
        return text("%@ was asked for map tiles too often and wants a pause (HTTP status %@).",
                    {server, code});
    if (status >= 500)
        return text("%@ cannot give map tiles at the moment (HTTP status %@).", {server, code});
    return text("%@ gave an unexpected answer instead of a map tile (HTTP status %@).", {server, code});
}

} // namespace

KTTileStore::KTTileStore(KTTileSource tileSource, const Options& settings)
    : tiles(std::move(tileSource)), options(settings), server(tiles.host()),
      disk(options.folder, tiles, options.largestCache), memory(options.largestMemory) {
    if (const auto problem = tiles.problem()) {
        isRefused = true;
        report("source", *problem);
    }
}

KTTileStore::~KTTileStore() {
    {
        std::lock_guard guard(mutex);
        isClosing = true;
        for (auto& [tile, stop] : running)
            stop.request_stop();
    }
    changed.notify_all();
    workers.clear(); // joins
}

QImage KTTileStore::image(const KTTileAddress& tile) const {
    std::lock_guard guard(mutex);
    if (isRefused)
        return {};
    const TileMemory::Tile* known = memory.find(tile);
    return known ? known->image : QImage();
}

void KTTileStore::want(std::vector<KTTileAddress> addresses) {
    std::erase_if(addresses, [this](const KTTileAddress& tile) {
        return !tile.exists() || tile.z < tiles.minimumZoom || tile.z > tiles.maximumZoom;
    });
    {
        std::lock_guard guard(mutex);
        wanted = std::move(addresses);
        memory.setSmallestCount(2 * wanted.size() + 1); // else tiles that are shown would take turns
        if (isRefused)
            return;
        for (auto& [tile, stop] : running)
            if (std::ranges::find(wanted, tile) == wanted.end())
                stop.request_stop();
        while (!wanted.empty() && int(workers.size()) < options.connections)
            workers.emplace_back([this] { work(); });
    }
    changed.notify_all();
}

bool KTTileStore::isSettled() const {
    std::lock_guard guard(mutex);
    return isRefused || (running.empty() && !nextTask());
}

bool KTTileStore::hasNoTiles() const {
    std::lock_guard guard(mutex);
    return isRefused;
}

std::vector<std::string> KTTileStore::problems() const {
    std::lock_guard guard(mutex);
    return troubles;
}

// On the store's threads

void KTTileStore::work() {
    HTTPClient client;
    while (const auto task = next()) {
        if (task->isOnDisk)
            lookOnDisk(task->tile);
        else
            fetch(*task, client);
        std::lock_guard guard(mutex);
        running.erase(task->tile);
        changed.notify_all();
    }
}

std::optional<KTTileStore::Task> KTTileStore::next() {
    std::unique_lock lock(mutex);
    for (;;) {
        if (isClosing)
            return std::nullopt;
        if (auto task = nextTask()) {
            task->stop = running[task->tile].get_token();
            return task;
        }
        if (Clock::now() < silentUntil)
            changed.wait_until(lock, silentUntil);
        else
            changed.wait(lock);
    }
}

/// What is on disk comes first, whatever the server does.
std::optional<KTTileStore::Task> KTTileStore::nextTask() const {
    if (isRefused)
        return std::nullopt;
    const auto isFree = [this](const KTTileAddress& tile) { return !running.contains(tile); };
    for (const KTTileAddress& tile : wanted) {
        const TileMemory::Tile* known = memory.peek(tile);
        if (isFree(tile) && !(known && known->wasSoughtOnDisk))
            return Task{tile, true};
    }
    if (Clock::now() < silentUntil)
        return std::nullopt;
    const KTInstant now = options.now();
    for (const KTTileAddress& tile : wanted)
        if (isFree(tile) && memory.peek(tile)->askAgainFrom <= now)
            return Task{tile};
    return std::nullopt;
}

void KTTileStore::lookOnDisk(const KTTileAddress& tile) {
    const auto stored = disk.read(tile);
    const QImage image = stored ? decodedTile(stored->content) : QImage();
    if (stored && image.isNull())
        disk.remove(tile);
    remember(tile, image, image.isNull() ? KTInstant() : stored->freshUntil);
}

void KTTileStore::fetch(const Task& task, HTTPClient& client) {
    const auto old = disk.read(task.tile);
    HTTPGet get{.url = tiles.urlFor(task.tile), .userAgent = tiles.userAgent(), .language = "*"};
    get.timeout = options.timeout;
    get.largestBody = kLargestTile;
    if (old && !old->etag.empty())
        get.headers.emplace_back("If-None-Match", old->etag);
    if (old && !old->lastModified.empty())
        get.headers.emplace_back("If-Modified-Since", old->lastModified);
    const HTTPAnswer answer = client.get(get, task.stop);
    if (answer.failure == Failure::tooLarge) {
        report("content", text("What %@ sent is far larger than a map tile.", {server}));
        askAgainAfter(task.tile, kAbsent);
    } else if (answer.failure == Failure::none) {
        take(task.tile, answer, old);
    } else if (answer.failure != Failure::stopped) {
        report("connection", HTTPFailureText(answer, server, options.timeout));
        pause(answer);
    }
}

void KTTileStore::take(const KTTileAddress& tile, const HTTPAnswer& answer,
                       const std::optional<StoredTile>& old) {
    if (answer.status == 304 && old) {
        takeContent(tile, answer, *old);
    } else if (answer.status == 200 && !answer.body.empty()) {
        takeContent(tile, answer, {.content = answer.body});
    } else if (answer.status == 200 || answer.status == 204) { // says that there is nothing to show
        disk.remove(tile);
        remember(tile, {}, options.now() + kAbsent);
    } else {
        takeRefusal(tile, answer);
    }
}

void KTTileStore::takeContent(const KTTileAddress& tile, const HTTPAnswer& answer, StoredTile stored) {
    const QImage image = decodedTile(stored.content);
    if (image.isNull()) {
        report("content", text("What %@ sent is not a map tile.", {server}));
        askAgainAfter(tile, kAbsent);
        return;
    }
    {
        std::lock_guard guard(mutex);
        lastPause = {};
    }
    const KTInstant now = options.now();
    const HTTPFreshness freshness = HTTPFreshness::of(answer, now, kFreshWithoutExpiry);
    stored.freshUntil = freshness.freshUntil;
    for (auto [value, name] : {std::pair(&stored.etag, "etag"), {&stored.lastModified, "last-modified"}})
        if (std::string said = headerOf(answer, name); !said.empty())
            *value = std::move(said);
    if (freshness.mayBeStored)
        disk.write(tile, stored);
    remember(tile, image, std::max(freshness.freshUntil, now + kAskedAtMost));
}

void KTTileStore::takeRefusal(const KTTileAddress& tile, const HTTPAnswer& answer) {
    if (answer.status == 401 || answer.status == 403) {
        report("refusal",
               text("%@ refuses to give map tiles (HTTP status %@). The offline map is shown instead.",
                    {server, std::to_string(answer.status)}));
        refuse();
        return;
    }
    report("status " + std::to_string(answer.status), textForStatus(answer.status, server));
    if (answer.status == 404 || answer.status == 410) {
        disk.remove(tile);
        remember(tile, {}, options.now() + kAbsent);
    } else if (answer.status == 429 || answer.status >= 500) {
        pause(answer);
    } else {
        askAgainAfter(tile, kAbsent);
    }
}

void KTTileStore::remember(const KTTileAddress& tile, const QImage& image, KTInstant askAgainFrom) {
    {
        std::lock_guard guard(mutex);
        memory.put(tile, {image, true, askAgainFrom});
    }
    if (!image.isNull())
        didChange("tiles");
}

/// What is shown of it stays.
void KTTileStore::askAgainAfter(const KTTileAddress& tile, std::chrono::seconds time) {
    std::lock_guard guard(mutex);
    TileMemory::Tile known{.wasSoughtOnDisk = true};
    if (const TileMemory::Tile* before = memory.peek(tile))
        known = *before;
    known.askAgainFrom = options.now() + time;
    memory.put(tile, std::move(known));
}

/// As long as the server wants; else each time twice as long, until it answers again.
void KTTileStore::pause(const HTTPAnswer& answer) {
    std::lock_guard guard(mutex);
    lastPause = answer.retryAfter ? std::chrono::milliseconds(*answer.retryAfter)
                                  : std::max(options.shortestPause, 2 * lastPause);
    lastPause = std::min(lastPause, kLongestPause);
    silentUntil = Clock::now() + lastPause;
}

void KTTileStore::refuse() {
    {
        std::lock_guard guard(mutex);
        isRefused = true;
        memory.forgetAll();
        for (auto& [tile, stop] : running)
            stop.request_stop();
    }
    didChange("tiles");
}

void KTTileStore::report(const std::string& sort, const std::string& sentence) {
    {
        std::lock_guard guard(mutex);
        if (!reported.insert(sort).second)
            return;
        troubles.push_back(sentence);
    }
    didChange("problems");
}
