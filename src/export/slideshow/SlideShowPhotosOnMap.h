#pragma once
#include "photo/KTPhoto.h"
#include "platform/cartography/KTSpatialObjectController.h"

/// The photos of a slide show as a layer of its map, of which the one being shown is selected. Main thread.
class SlideShowPhotosOnMap final : public KTSpatialObjectController {
public:
    using Photo = std::shared_ptr<KTPhoto>;

    ~SlideShowPhotosOnMap() override { setPhotos({}); }

    void setPhotos(std::vector<Photo> shown);
    void setCurrentIndex(std::size_t index);
    /// Those that have a place.
    Objects geotaggedPhotos() const;

    std::string name() const override; ///< "Photos"
    Objects spatialObjects() const override { return {photos.begin(), photos.end()}; }
    Indexes spatialObjectSelectionIndexes() const override;
    // Which photo is shown is the show's affair.
    bool addSelectedSpatialObjects(const Objects&) override { return false; }
    bool removeSelectedSpatialObjects(const Objects&) override { return false; }

private:
    std::vector<Photo> photos;
    std::optional<std::size_t> current;
};
