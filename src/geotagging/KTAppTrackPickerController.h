#pragma once
#include "collection/KTPhotoManager.h"
#include "geotagging/KTNearPhotosAndRecentImportsSmartFile.h"
#include "platform/cartography/KTMapBounds.h"
#include "platform/tracklibrary/KTSmartRecentImportsFile.h"
#include "platform/tracklibrary/KTTrackPickerController.h"

class KTMapController;
class KTPhotoMatchController;

/// The track library's window as the application has it: with entries for what
/// was recorded near the loaded photos, and with a map that goes to what was
/// just imported. Main thread.
class KTAppTrackPickerController : public KTTrackPickerController {
public:
    /// @p library must outlive the controller.
    explicit KTAppTrackPickerController(KTTrackManager& library);
    ~KTAppTrackPickerController() override;

    /// Must outlive the controller; set before setup().
    void setPhotoManager(KTPhotoManager* collection) { photoManager = collection; }
    /// The map of the main window; null while there is none.
    void setMapController(KTMapController* shownMap) { map = shownMap; }
    /// From now on the entries follow the photos and the imports.
    void setup();

    /// Who knows how many photos match which track; null for nobody.
    void setMatchController(KTPhotoMatchController* knower);
    /// How many loaded photos would take their place from that track; 0 where nobody knows. Changes are
    /// announced under "matchedPhotos".
    std::size_t matchedPhotosOfTrack(std::int64_t track) const;

    // The smart files, in the order of the list
    const SmartFile& allWaypoints() const { return waypoints; } ///< "All Waypoints"
    const std::shared_ptr<KTSmartRecentImportsFile>& recentImports() const { return recent; }
    const std::shared_ptr<KTNearPhotosSmartFile>& nearPhotos() const { return near; } ///< "Near Photos"
    /// "Near & Recent"
    const std::shared_ptr<KTNearPhotosAndRecentImportsSmartFile>& nearPhotosAndRecentImports() const {
        return nearAndRecent;
    }

    /// Looks up, on another thread, when the photos were taken, and then sets the
    /// predicates of the two files near photos. Calls during a look-up are
    /// followed by one more.
    void refreshPredicates();

private:
    void refreshSoon();
    void takePredicates(const KTNearbyPredicates& found);
    void recentImportsDidChange();
    void showOnMap(const std::optional<KTMapBounds>& bounds, std::int64_t style);

    KTPhotoManager* photoManager = nullptr;
    KTMapController* map = nullptr;
    KTPhotoMatchController* matches = nullptr;
    const SmartFile waypoints;
    const std::shared_ptr<KTSmartRecentImportsFile> recent;
    const std::shared_ptr<KTNearPhotosSmartFile> near;
    const std::shared_ptr<KTNearPhotosAndRecentImportsSmartFile> nearAndRecent;
    bool isRefreshDue = false, isRefreshing = false;
    Observation photosObservation, importsObservation, matchesObservation;
    const std::shared_ptr<KTAppTrackPickerController*> self; // for what is posted
    KTOperationQueue lookUps;                                // last: its end is waited for first
};
