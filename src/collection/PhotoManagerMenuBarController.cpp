#include "collection/PhotoManagerMenuBarController.h"

#include "collection/SelectedPhotoObserver.h"

PhotoManagerMenuBarController::PhotoManagerMenuBarController(KTPhotoManager& collection)
    : manager(collection) {}

PhotoManagerMenuBarController::~PhotoManagerMenuBarController() = default;

void PhotoManagerMenuBarController::setup() {
    auto isFollowed = [](std::string_view key) {
        return key == "hasLatitudeLongitudeCreated" || key == "hasLatitudeLongitudeShown" ||
               key == "imageDirection";
    };
    auto didSelect = [this](const KTPhotoManager::Photos& selected) {
        counts = {};
        counted.clear();
        for (const auto& photo : selected)
            count(*photo);
        publish();
    };
    auto didChange = [this](const KTPhoto& photo, std::string_view) {
        count(photo);
        publish();
    };
    observer = std::make_unique<SelectedPhotoObserver>(manager, isFollowed,
                                                       SelectedPhotoObserver::Handlers{didSelect, didChange});
}

PhotoManagerMenuBarController::Flags PhotoManagerMenuBarController::flagsOf(const KTPhoto& photo) {
    return {true, photo.hasLatitudeLongitudeCreated(), photo.hasLatitudeLongitudeShown(),
            photo.valueForKey("imageDirection").isSomething()};
}

/// Counts a photo, or its changes; looking at every selected photo for each of them would take a batch of
/// thousands minutes.
void PhotoManagerMenuBarController::count(const KTPhoto& photo) {
    Flags& before = counted[&photo];
    const Flags now = flagsOf(photo);
    for (std::size_t i = 0; i < now.size(); ++i)
        counts[i] = counts[i] + now[i] - before[i];
    before = now;
}

void PhotoManagerMenuBarController::publish() {
    static constexpr std::string_view kKeys[] = {"hasSelectedPhotos", "hasLocationCreated",
                                                 "hasLocationShown", "hasImageDirection"};
    for (std::size_t i = 0; i < flags.size(); ++i) {
        if (flags[i] == (counts[i] > 0))
            continue;
        willChange(kKeys[i]);
        flags[i] = counts[i] > 0;
        didChange(kKeys[i]);
    }
}
