#include "platform/cartography/drawing/tiles/KTTileLayer.h"

#include "platform/cartography/drawing/tiles/TileDrawing.h"
#include "platform/concurrency/KTMainThread.h"
#include "platform/defaults/KTUserDefaults.h"

/// Brings what the store's threads announce to the main thread, once for many tiles.
struct KTTileLayer::Relay : std::enable_shared_from_this<Relay> {
    KTTileLayer* layer = nullptr; // null when the layer is gone or has another store; main thread
    std::atomic<bool> isPosted = false;

    void post() {
        if (isPosted.exchange(true))
            return;
        KTPerformOnMainThread([self = shared_from_this()] {
            self->isPosted = false;
            if (self->layer)
                self->layer->changed();
        });
    }
};

KTTileLayer::~KTTileLayer() {
    leaveStore();
}

void KTTileLayer::leaveStore() {
    observation.stop();
    if (relay)
        relay->layer = nullptr;
    relay = nullptr;
}

void KTTileLayer::setDataSource(const std::string& name) {
    const KTUserDefaults& settings = KTUserDefaults::standardUserDefaults();
    const auto source = KTTileSource::named(name, settings);
    if (!source) {
        setStore(nullptr);
        return;
    }
    KTTileStore::Options options;
    options.folder = TileDiskCache::userFolder();
    options.largestCache = std::uintmax_t(std::clamp<std::int64_t>(
                               settings.integerForKey("mapTilesCacheMegabytes"), 0, 1'000'000)) *
                           1'000'000;
    setStore(std::make_shared<KTTileStore>(*source, options));
}

void KTTileLayer::setStore(std::shared_ptr<KTTileStore> newStore) {
    leaveStore();
    tiles = std::move(newStore);
    if (tiles) {
        relay = std::make_shared<Relay>();
        relay->layer = this;
        observation = tiles->observe([weak = std::weak_ptr(relay)](const KTChange&) {
            if (const auto living = weak.lock())
                living->post();
        });
    }
    changed();
}

void KTTileLayer::willShow(const KTMapViewState& visible) {
    if (!tiles)
        return;
    std::vector<KTTileAddress> wanted;
    for (const TileView::Place& place : TileView::placesIn(visible, tiles->source()))
        if (std::ranges::find(wanted, place.tile) ==
            wanted.end()) // the world may be in the view several times
            wanted.push_back(place.tile);
    tiles->want(std::move(wanted));
}

std::shared_ptr<const KTMapDrawing> KTTileLayer::drawing(const KTMapViewState& state) {
    if (!tiles)
        return nullptr;
    auto drawing = std::make_shared<TileDrawing>(TileView::placesIn(state, tiles->source()), *tiles);
    return drawing->isEmpty() ? nullptr : drawing;
}

std::string KTTileLayer::attribution() const {
    return tiles && !tiles->hasNoTiles() ? tiles->source().attribution : std::string();
}

std::optional<std::string> KTTileLayer::problem() const {
    const auto problems = tiles ? tiles->problems() : std::vector<std::string>();
    return problems.empty() ? std::nullopt : std::optional(problems.back());
}
