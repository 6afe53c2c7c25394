#pragma once
#include "export/slideshow/SlideShowController.h"
#include "export/waymark/KTPhotoExportPlugin.h"

class KTPhotoExportManagerOperation;
class KTSlideShowScreen;
class KTSlideShowWindow;

/// Exports photos by showing them full screen, one after the other, beside a map. The export is over when the
/// show is; it lasts as long on the main thread, which meanwhile goes on with its other work.
class KTSlideShowExporter final : public KTPhotoExportPlugin, private SlideShowControllerDelegate {
public:
    /// Both outlive the exporter.
    KTSlideShowExporter(KTPhotoExportManagerOperation& manager, KTSlideShowScreen& screen);
    /// Ends a running show.
    ~KTSlideShowExporter() override;

    bool wantsDestinationPathPrompt() const override { return false; }
    std::filesystem::path defaultDirectory() const override { return {}; }
    bool shouldSaveToIndividualFile() const override { return false; }
    std::string defaultFileName() const override { return {}; }
    std::vector<std::string> allowedFileTypes() const override { return {}; }
    KTViewHandle settingsView() const override { return view.get(); }
    KTViewHandle firstView() const override { return nullptr; }
    KTViewHandle lastView() const override { return nullptr; }

    void shouldPrepareForExportToPath(const std::optional<std::filesystem::path>& path) override;
    bool canExportOnBackgroundThread() const override { return false; }
    /// Begins the show and returns. With two or more selected photos it is of these, else of all, from the
    /// selected one on.
    void performExport() override;
    void shouldCancelExport() override;

    void lockProgress() override { progressLock.lock(); }
    void unlockProgress() override { progressLock.unlock(); }
    std::string message() const override { return progress.message; }
    std::uint64_t currentValue() const override { return progress.currentValue; }
    std::int64_t totalValue() const override { return progress.totalValue; }
    bool indeterminateProgress() const override { return progress.isIndeterminate; }
    std::string concludingDescription() const override { return progress.concludingDescription; }
    std::string concludingURL() const override { return {}; }

    /// Null before performExport.
    SlideShowController* slideShowController() const { return controller.get(); }

private:
    struct Progress {
        std::uint64_t currentValue = 0;
        std::int64_t totalValue = 0;
        bool isIndeterminate = false;
        std::string message, concludingDescription;
    };

    void slideShowDidFinish() override;
    void choosePhotos();
    void conclude(std::string description);

    KTPhotoExportManagerOperation& exportManager;
    KTSlideShowScreen& userInterface;
    const std::shared_ptr<void> view;
    std::mutex progressLock; // taken by lockProgress: the reading functions above are called in between
    Progress progress;
    std::unique_ptr<SlideShowController> controller;
    std::unique_ptr<KTSlideShowWindow> window;
};
