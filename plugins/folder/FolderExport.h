#pragma once
#include "FolderExportSettings.h"

#include <waymark/KTPhotoExportPlugin.h>

#include <QCoreApplication>
#include <atomic>
#include <mutex>

/// Copies the photos into a folder, as they are, or smaller, of another type or without their place. Two
/// photos of one name get different ones, and nothing in the folder is replaced.
class FolderExport final : public KTPhotoExportPlugin {
    Q_DECLARE_TR_FUNCTIONS(FolderExport)

public:
    explicit FolderExport(KTPhotoExportManager& exportManager) : manager(exportManager) {}

    bool wantsDestinationPathPrompt() const override { return true; }
    std::filesystem::path defaultDirectory() const override { return {}; }
    bool shouldSaveToIndividualFile() const override { return false; }
    std::string defaultFileName() const override { return {}; }
    std::vector<std::string> allowedFileTypes() const override { return {}; }
    KTViewHandle settingsView() const override { return nullptr; }
    KTViewHandle firstView() const override { return nullptr; }
    KTViewHandle lastView() const override { return nullptr; }

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
    void showProgress(std::size_t photosDone);
    KTPhotoExportResult exportPhoto(const KTExportedPhoto& photo);
    std::filesystem::path destinationFor(const KTExportedPhoto& photo) const;
    void conclude(std::size_t exported, std::size_t failed, const std::string& reason);

    KTPhotoExportManager& manager;
    std::filesystem::path folder;
    FolderExportSettings settings;
    std::atomic<bool> isCancelled = false;

    std::mutex mutex; // guards what follows; the host is never called under it
    std::string progressMessage, conclusion;
    std::uint64_t done = 0;
    std::int64_t total = 0;
};
