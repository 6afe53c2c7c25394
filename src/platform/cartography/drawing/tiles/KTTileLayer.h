#pragma once
#include "platform/cartography/drawing/KTMapLayer.h"
#include "platform/cartography/drawing/tiles/KTTileStore.h"

/// Tiles of the source that the user has chosen, over the offline map, which shows wherever there is no tile.
/// Main thread.
class KTTileLayer final : public KTMapLayer {
public:
    KTTileLayer() : KTMapLayer(Place::Tiles) {}
    ~KTTileLayer() override;

    /// The source that a map names as its data source, by KTTileSource::named and the settings of the
    /// process, with the user's cache; none, and so no tiles, for the empty name.
    void setDataSource(const std::string& name);
    /// Nothing for no tiles.
    void setStore(std::shared_ptr<KTTileStore> newStore);
    const std::shared_ptr<KTTileStore>& store() const { return tiles; }

    /// From now on exactly the tiles of this view are fetched.
    void willShow(const KTMapViewState& visible) override;
    /// The tiles that have arrived.
    std::shared_ptr<const KTMapDrawing> drawing(const KTMapViewState& state) override;
    std::string attribution() const override;
    /// What went wrong with the tiles last; another text for each sort of trouble.
    std::optional<std::string> problem() const override;

private:
    struct Relay;

    void leaveStore();

    std::shared_ptr<KTTileStore> tiles;
    std::shared_ptr<Relay> relay; // what the store's threads know of this layer
    KTObservable::Observation observation;
};
