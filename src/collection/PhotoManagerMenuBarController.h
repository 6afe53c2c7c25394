#pragma once
#include "platform/observing/KTObservable.h"

#include <array>
#include <unordered_map>

class KTPhoto;
class KTPhotoManager;
class SelectedPhotoObserver;

/// Tells which commands of the menu bar make sense for the selected photos. The flags follow the selection
/// and edits of its photos, and are observable under their names. Main thread.
class PhotoManagerMenuBarController : public KTObservable {
public:
    /// @p collection must outlive the controller. All flags are false up to setup().
    explicit PhotoManagerMenuBarController(KTPhotoManager& collection);
    ~PhotoManagerMenuBarController() override;
    void setup();

    KTPhotoManager& photoManager() const { return manager; }
    bool hasSelectedPhotos() const { return flags[0]; }
    /// Whether any selected photo has both coordinates of its camera, of the place shown, a direction.
    bool hasLocationCreated() const { return flags[1]; }
    bool hasLocationShown() const { return flags[2]; }
    bool hasImageDirection() const { return flags[3]; }

private:
    using Flags = std::array<bool, 4>;
    static Flags flagsOf(const KTPhoto& photo);
    void count(const KTPhoto& photo);
    void publish();

    KTPhotoManager& manager;
    Flags flags = {};
    std::array<std::size_t, 4> counts = {}; // of the selected photos that have each flag
    std::unordered_map<const KTPhoto*, Flags> counted;
    std::unique_ptr<SelectedPhotoObserver> observer;
};
