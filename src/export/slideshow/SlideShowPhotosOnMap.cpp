#include "export/slideshow/SlideShowPhotosOnMap.h"

#include "platform/common/KTLocalizedString.h"

#include <algorithm>

void SlideShowPhotosOnMap::setPhotos(std::vector<Photo> shown) {
    willChange("spatialObjects");
    for (const Photo& photo : photos)
        photo->setObjectOwner(nullptr);
    photos = std::move(shown);
    current.reset();
    for (const Photo& photo : photos)
        photo->setObjectOwner(this);
    didChange("spatialObjects");
}

void SlideShowPhotosOnMap::setCurrentIndex(std::size_t index) {
    willChange("spatialObjectSelectionIndexes");
    current = index;
    didChange("spatialObjectSelectionIndexes");
}

KTSpatialObjectController::Objects SlideShowPhotosOnMap::geotaggedPhotos() const {
    Objects result;
    std::ranges::copy_if(photos, std::back_inserter(result), &KTPhoto::isGeotagged);
    return result;
}

std::string SlideShowPhotosOnMap::name() const {
    return KTLocalizedString("Photos");
}

KTSpatialObjectController::Indexes SlideShowPhotosOnMap::spatialObjectSelectionIndexes() const {
    return current ? Indexes{*current} : Indexes{};
}
