#pragma once
#include "collection/KTPhotoManager.h"

/// The loaded photos as a layer of the main window's map, from south to north: by latitude, photos without
/// one first, and where it is the same by path; with the collection's selection.
///
/// Latitudes may change on any thread. What is read is always in the new order; the changes of
/// "spatialObjects" are announced together, once a turn of the event loop, or before a change of the
/// selection if that comes first, each time followed by "spatialObjectSelectionIndexes". Main thread.
class KTPhotoSpatialObjectController : public KTSpatialObjectController {
public:
    /// @p collection must outlive the controller.
    explicit KTPhotoSpatialObjectController(KTPhotoManager& collection);
    ~KTPhotoSpatialObjectController() override;
    /// Lists the photos, becomes their owner and follows them.
    void setup();
    /// Lists nothing any more.
    void tearDown();

    std::string name() const override; ///< "Photos"
    Objects spatialObjects() const override;
    Indexes spatialObjectSelectionIndexes() const override;
    /// Announces the selection; it is looked up when it is read.
    void updateSpatialObjectSelectionIndexes();
    /// Makes exactly these the collection's selection.
    bool addSelectedSpatialObjects(const Objects& objects) override;
    bool removeSelectedSpatialObjects(const Objects&) override { return false; }

private:
    struct Feature;
    struct Moves;

    void photosDidChange(const KTChange& change);
    void synchronize();
    void add(const KTPhotoManager::Photo& photo);
    void forget(Feature& feature);
    static void noteMove(const std::shared_ptr<Moves>& moves, const KTPhoto* photo);
    void sort() const;
    bool announceMoves();

    KTPhotoManager& manager;
    const std::shared_ptr<Moves> moves;
    std::unordered_map<const KTPhoto*, std::unique_ptr<Feature>> features;
    mutable std::vector<Feature*> order; // of the features, as of the last sort
    Observation managerObservation;
};
