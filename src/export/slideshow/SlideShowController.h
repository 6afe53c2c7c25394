#pragma once
#include "export/slideshow/SlideShowPhotosOnMap.h"
#include "export/waymark/KTExportedTrack.h"
#include "platform/cartography/KTMapController.h"

class QTimer;

class SlideShowControllerDelegate {
public:
    virtual ~SlideShowControllerDelegate() = default;
    /// The show has been stopped. May not destroy the controller.
    virtual void slideShowDidFinish() = 0;
};

/// A slide show without its drawing: which photo is shown, for how long, and what the map beside it does.
///
/// Observable under "isRunning", "currentPhoto", "automaticallyAdvances", "transitionStyle" and
/// "cyclesTransitionStyles". Main thread, whose event loop must run.
class SlideShowController final : public KTObservable {
public:
    using Photo = std::shared_ptr<KTPhoto>;
    using Tracks = std::vector<std::shared_ptr<const KTExportedTrack>>;

    static constexpr unsigned kRevealPhotos = 1, kFitPhotos = 2; ///< zoom styles; others leave the map alone
    static constexpr unsigned kTransitionStyles = 13;

    /// @p interval: seconds that a photo stays; photos change only when they are told to where it is not
    /// greater than 0.
    SlideShowController(double interval, unsigned autoZoomPhotoStyle, unsigned firstTransitionStyle);
    ~SlideShowController() override;

    // Before the start
    /// @p first is shown first; beyond the end it is none.
    void setPhotos(std::vector<Photo> photos, std::size_t first);
    void setTracks(Tracks tracks) { nearbyTracks = std::move(tracks); }
    void setDelegate(SlideShowControllerDelegate* receiver) { delegate = receiver; }

    /// Without photos the show ends at once.
    void start();
    /// Nothing when the show is not running.
    void stop();
    bool isRunning() const { return running; }

    const std::vector<Photo>& photos() const { return shownPhotos; }
    const Tracks& tracks() const { return nearbyTracks; }
    const std::optional<std::size_t>& currentIndex() const { return current; }
    /// The photo @p steps after the current one, before it where negative, around the ends; null for none.
    Photo photoBeside(long steps = 0) const;
    void nextPhoto();     ///< the first one when there is no current photo
    void previousPhoto(); ///< the last one when there is no current photo
    /// Nothing for one that is not in the show.
    void showPhoto(const KTSpatialObject& photo);

    bool automaticallyAdvances() const { return advances; }
    void setAutomaticallyAdvances(bool shouldAdvance);
    /// Whether photos can change by themselves at all.
    bool hasInterval() const { return seconds > 0; }
    /// While the current photo is still being loaded, it is not replaced by the clock.
    void setLoadsPhoto(bool isLoading) { loadsPhoto = isLoading; }

    unsigned transitionStyle() const { return style; }
    void setTransitionStyle(unsigned newStyle);
    /// Whether each new photo comes with the style after that of the last one.
    bool cyclesTransitionStyles() const { return cycles; }
    void setCyclesTransitionStyles(bool shouldCycle);

    KTMapController& mapController() { return map; }
    SlideShowPhotosOnMap& photosOnMap() { return mapPhotos; }
    bool hasGeotaggedPhotos() const { return !mapPhotos.geotaggedPhotos().empty(); }
    /// Brings the current photo into the map's view, as the zoom style says; after the view was resized.
    void moveMapToPhoto();

private:
    void show(std::size_t index);
    void showByHand(long steps);
    void moveMap(const KTMapController::Objects& objects);
    void startTimer();
    void tick();
    std::size_t indexBeside(long steps) const;

    const double seconds;
    const unsigned zoomStyle;
    unsigned style;
    std::vector<Photo> shownPhotos;
    Tracks nearbyTracks;
    std::size_t first = 0;
    std::optional<std::size_t> current;
    bool running = false, advances = false, cycles = false, loadsPhoto = false;
    SlideShowControllerDelegate* delegate = nullptr;
    KTMapController map;
    SlideShowPhotosOnMap mapPhotos;
    const std::unique_ptr<QTimer> timer;
};
