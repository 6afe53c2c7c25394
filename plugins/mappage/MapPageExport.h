#pragma once
#include "MapPageFiles.h"

#include <waymark/KTPhotoExportPlugin.h>

#include <QCoreApplication>
#include <atomic>
#include <mutex>

/// Makes a folder that shows the photos on a map with their tracks, in any browser and without a network:
/// index.html, the pictures in "photos", and the same as photos.kmz for other programs.
class MapPageExport final : public KTPhotoExportPlugin {
    Q_DECLARE_TR_FUNCTIONS(MapPageExport)

public:
    explicit MapPageExport(KTPhotoExportManager& exportManager) : manager(exportManager) {}

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
    std::string message() const override { return progressMessage; }
    std::uint64_t currentValue() const override { return done; }
    std::int64_t totalValue() const override { return total; }
    bool indeterminateProgress() const override { return false; }
    std::string concludingDescription() const override { return conclusion; }
    std::string concludingURL() const override { return url; }

private:
    bool makeFolder();
    void exportPhotos(MapPageContent& content);
    std::string imageNameFor(const KTExportedPhoto& photo, std::size_t number) const;
    KTPhotoExportOptions options() const;
    bool writePage(const MapPageContent& content);
    void showProgress(std::size_t photosDone);
    void conclude(const MapPageContent& content, bool isWritten);

    KTPhotoExportManager& manager;
    std::filesystem::path destination, folder; // the folder is the page's own
    std::atomic<bool> isCancelled = false;
    std::size_t failed = 0;
    std::string firstReason;

    std::mutex mutex; // guards what follows; the host is never called under it
    std::string progressMessage, conclusion, url;
    std::uint64_t done = 0;
    std::int64_t total = 0;
};
