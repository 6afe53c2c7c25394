#pragma once
#include "FolderExportSettings.h"

#include <waymark/KTPhotoExportPlugin.h>

#include <QCoreApplication>
#include <atomic>
#include <memory>
#include <mutex>

class FolderSettingsView;

/// Copies the photos into a folder, as they are, or smaller, of another type or without their place. Two
/// photos of one name get different ones; what is done about files that are there already, the user decides.
class FolderExport final : public KTPhotoExportPlugin {
    Q_DECLARE_TR_FUNCTIONS(FolderExport)

public:
    explicit FolderExport(KTPhotoExportManager& exportManager);
    ~FolderExport() override;

    bool wantsDestinationPathPrompt() const override { return true; }
    std::filesystem::path defaultDirectory() const override { return {}; }
    bool shouldSaveToIndividualFile() const override { return false; }
    std::string defaultFileName() const override { return {}; }
    std::vector<std::string> allowedFileTypes() const override { return {}; }
    /// None where the program has no windows.
    KTViewHandle settingsView() const override;
    KTViewHandle firstView() const override;
    KTViewHandle lastView() const override;

    void shouldPrepareForExportToPath(const std::optional<std::filesystem::path>& path) override;
    bool canExportOnBackgroundThread() const override { return true; }
    void performExport() override;
    void shouldCancelExport() override { isCancelled = true; }

    void lockProgress() override { mutex.lock(); }
    void unlockProgress() override { mutex.unlock(); }
    // Read on the main thread between the two, or, like the folder, when nothing is exported any more.
    std::string message() const override { return progressMessage; }
    std::uint64_t currentValue() const override { return done; }
    std::int64_t totalValue() const override { return total; }
    bool indeterminateProgress() const override { return false; }
    std::string concludingDescription() const override { return conclusion; }
    std::string concludingURL() const override;

private:
    void begin(KTExistingFiles answer, std::vector<std::filesystem::path> wanted);
    void exportPhotos(std::atomic<std::size_t>& next);
    KTPhotoExportResult exportPhoto(std::size_t index);
    void showProgress();
    void conclude();

    KTPhotoExportManager& manager;
    std::unique_ptr<FolderSettingsView> view; // null without windows
    std::filesystem::path folder;
    FolderExportSettings settings;
    std::vector<std::shared_ptr<const KTExportedPhoto>> photos;
    std::vector<std::filesystem::path> destinations;
    std::atomic<bool> isCancelled = false;

    std::mutex mutex; // guards what follows; the host is never called under it
    std::string progressMessage, conclusion;
    std::string firstReason; // of the first failure
    std::uint64_t done = 0, failed = 0;
    std::int64_t total = 0;
};
