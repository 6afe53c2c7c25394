#pragma once
#include "app/thumbnails/KTThumbnailService.h"
#include "photo/KTPhoto.h"
#include "ui/datetools/CoverFlowGeometry.h"
#include "ui/datetools/StandingPicture.h"

#include <QElapsedTimer>
#include <QPalette>

/// The pictures of a strip as they are drawn, made from thumbnails when they come into view and kept as long
/// as they are near it. Making is bounded for each frame; what does not come in time is there in one of the
/// next. Main thread.
class CoverPictures {
public:
    using Photos = std::vector<std::shared_ptr<KTPhoto>>;

    /// The service must outlive this.
    explicit CoverPictures(KTThumbnailService& thumbnails) : service(thumbnails) {}
    ~CoverPictures() { wishNothing(); }

    /// Makes all anew for pictures of this size and these colours.
    void setLook(const CoverFlowGeometry& geometry, const QPalette& colours, double devicePixelRatio);
    /// Asks for the thumbnails of the photos around @p front, nearest first, and forgets the others.
    void wishAround(const Photos& photos, std::size_t front, int reach);
    void wishNothing() { service.setWishes(this, {}); }
    /// Makes those anew of which there is a better thumbnail now. Whether there are some.
    bool takeThumbnails();

    /// Gives the next pictures so much time, in milliseconds.
    void beginFrame(double budget);
    /// Whether a picture did not come in time.
    bool isBehind() const { return wasLate; }
    /// The photo at that place; null when it does not come in time.
    const StandingPicture::View* view(const KTPhoto& photo, const CoverFlowGeometry::Place& place);

private:
    struct Cover {
        StandingPicture standing;
        QSize thumbnailSize; ///< of which it was made
        std::string problem;
        StandingPicture::View view;
        double turn = 2; ///< of the view; 2 for none
    };

    bool isTimeLeft();
    Cover makeCover(const KTPhoto& photo) const;
    KTThumbnailService::Thumbnail thumbnailOf(const KTPhoto& photo) const;

    KTThumbnailService& service;
    QSize box; // logical pixels
    QPalette palette;
    double ratio = 1;
    std::unordered_map<const KTPhoto*, Cover> covers;
    QElapsedTimer clock;
    double timeOfFrame = 0;
    bool wasLate = false;
};
