#pragma once
#include <memory>
#include <vector>

class KTPhoto;

/// What the photo controller asks of the main window's map. Main thread.
class KTPhotoMap {
public:
    virtual ~KTPhotoMap() = default;
    /// Shows the places of these photos; those without a position are left out.
    virtual void zoomToFitPhotos(const std::vector<std::shared_ptr<KTPhoto>>& photos) = 0;
};
