#include "export/slideshow/KTSlideShowExporter.h"

#include "export/KTPhotoExportManagerOperation.h"
#include "export/slideshow/KTSlideShowScreen.h"
#include "platform/common/KTLocalizedString.h"
#include "platform/common/KTText.h"
#include "platform/defaults/KTUserDefaults.h"

#include <unordered_set>

namespace {

/// A number of the settings; those that a style cannot be are one that is unknown.
unsigned styleForKey(std::string_view key) {
    const std::int64_t number = KTUserDefaults::standardUserDefaults().integerForKey(key);
    return number >= 0 && number < 1000 ? static_cast<unsigned>(number) : 1000;
}

} // namespace

KTSlideShowExporter::KTSlideShowExporter(KTPhotoExportManagerOperation& manager, KTSlideShowScreen& screen)
    : exportManager(manager), userInterface(screen), view(screen.makeSettingsView()) {}

KTSlideShowExporter::~KTSlideShowExporter() {
    if (controller) {
        controller->setDelegate(nullptr);
        controller->stop();
    }
}

void KTSlideShowExporter::shouldPrepareForExportToPath(const std::optional<std::filesystem::path>&) {
    exportManager.exportManagerShouldBeginExport();
}

void KTSlideShowExporter::performExport() {
    {
        const std::lock_guard guard(progressLock);
        progress = {.currentValue = 0,
                    .totalValue = std::int64_t(exportManager.photos().size()),
                    .isIndeterminate = false,
                    .message = KTLocalizedString("Slide show in progress"),
                    .concludingDescription = {}};
    }
    const KTUserDefaults& defaults = KTUserDefaults::standardUserDefaults();
    controller = std::make_unique<SlideShowController>(
        defaults.doubleForKey("slideshowPlugin.autoAdvanceInterval"),
        styleForKey("slideshowPlugin.autoZoomPhotoStyle"), styleForKey("slideshowPlugin.transitionStyle"));
    choosePhotos();
    if (defaults.boolForKey("slideshowPlugin.shouldShowNearbyTracks"))
        controller->setTracks(exportManager.tracks());
    controller->setDelegate(this);
    controller->setAutomaticallyAdvances(true);
    window = userInterface.makeWindow(*controller, exportManager.window());
    controller->start();
}

void KTSlideShowExporter::choosePhotos() {
    const auto exported = exportManager.photos();
    std::unordered_set<const KTExportedPhoto*> selected;
    for (const auto& photo : exported)
        selected.insert(photo.get());
    std::vector<SlideShowController::Photo> shown;
    std::size_t first = 0;
    for (const auto& copy : exportManager.allPhotos()) {
        const bool isSelected = selected.contains(copy.get());
        if (selected.size() >= 2 && !isSelected)
            continue;
        if (selected.size() == 1 && isSelected)
            first = shown.size();
        shown.push_back(copy->photo());
    }
    controller->setPhotos(std::move(shown), first);
}

void KTSlideShowExporter::shouldCancelExport() {
    if (controller) {
        controller->setDelegate(nullptr); // what follows is no end of its own
        controller->stop();
    }
    exportManager.exportManagerShouldCancelExport();
    conclude(KTLocalizedString("Export canceled."));
}

void KTSlideShowExporter::slideShowDidFinish() {
    exportManager.exportManagerShouldFinishExport();
    conclude(KTLocalizedCount("Exported %lu photos", progress.totalValue));
}

void KTSlideShowExporter::conclude(std::string description) {
    const std::lock_guard guard(progressLock);
    progress.concludingDescription = std::move(description);
}
